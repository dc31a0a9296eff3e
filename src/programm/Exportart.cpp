#include "programm/Exportart.h"

#include <utility>

#include "core/Datei.h"
#include "core/Exportdatei.h"
#include "core/Zeichensatz.h"
#include "programm/ExportFileDialog.h"

namespace zerna {

namespace {

void showSaveFailure(MessageBoxes& boxes, const std::string& name, const std::string& reason)
{
    boxes.show(Icon::Exclamation, Programmtitel,
        "Die Datei \"" + name + "\" konnte nicht gespeichert werden:\r\n" + reason + ".");
}

} // namespace

Exportart textdatei(std::string_view beschreibung, std::string_view muster, std::string_view endung, Exporttext text)
{
    return {beschreibung, muster, endung, [text = std::move(text)]() -> std::optional<std::string> {
                const auto utf8 = text();
                return utf8 ? std::optional(toWindows1252(*utf8)) : std::nullopt;
            }};
}

Exportart datDatei(Exporttext text) { return textdatei("DAT-File (*.dat)", "*.dat", ".dat", std::move(text)); }

Exportart friedelminima(Exporttext text)
{
    return textdatei("Friedelminima (*.fri)", "*.fri", ".fri", std::move(text));
}

bool exportieren(MessageBoxes& boxes, SaveFileDialog& dialog, std::string_view titel, std::span<const Exportart> arten)
{
    int filterIndex = 1;
    const std::string name = ExportFileDialog(dialog, filterIndex, titel, arten);
    if (name.empty())
        return false;
    try {
        const auto bytes = arten[static_cast<std::size_t>(filterIndex) - 1].bytes();
        if (bytes)
            writeExport(pathFromUtf8(name), *bytes);
        return bytes.has_value();
    } catch (const Laufzeitfehler& error) {
        showSaveFailure(boxes, name, error.what());
        return false;
    }
}

} // namespace zerna
