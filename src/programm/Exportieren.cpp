#include "programm/Exportieren.h"

#include <string>

#include "core/Datei.h"
#include "core/Exportdatei.h"

namespace zerna {

namespace {

void showSaveFailure(MessageBoxes& boxes, const std::string& name, const std::string& reason)
{
    boxes.show(Icon::Exclamation, Programmtitel,
        "Die Datei \"" + name + "\" konnte nicht gespeichert werden:\r\n" + reason + ".");
}

} // namespace

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
