#include "programm/Exportieren.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "core/Datei.h"
#include "core/Exportdatei.h"

namespace zerna {

namespace {

void showSaveFailure(MessageBoxes& boxes, const std::string& name, const std::string& reason)
{
    boxes.show(Icon::Exclamation, Programmtitel,
        "Die Datei \"" + name + "\" konnte nicht gespeichert werden:\r\n" + reason + ".");
}

/// Writes the file, or shows why not.
bool isWritten(MessageBoxes& boxes, const std::string& name, std::string_view bytes)
{
    try {
        writeExport(pathFromUtf8(name), bytes);
        return true;
    } catch (const Laufzeitfehler& error) {
        showSaveFailure(boxes, name, error.what());
        return false;
    }
}

/// The bytes of one kind, made once however often the dialog comes: making them may ask the user.
struct Inhalt {
    int filterIndex = 0;
    std::optional<std::string> bytes;

    void make(int kind, std::span<const Exportart> arten)
    {
        if (kind != std::exchange(filterIndex, kind))
            bytes = arten[static_cast<std::size_t>(kind) - 1].bytes();
    }
};

} // namespace

void zeigeNichtsZuSpeichern(MessageBoxes& boxes, std::string_view grund)
{
    boxes.show(Icon::Exclamation, Programmtitel, "Es gibt nichts zu speichern: " + std::string(grund));
}

bool exportieren(MessageBoxes& boxes, SaveFileDialog& dialog, std::string_view titel, std::span<const Exportart> arten)
{
    if (arten.empty()) {
        zeigeNichtsZuSpeichern(boxes, "Es ist kein Wert bekannt.");
        return false;
    }
    int filterIndex = 1;
    Inhalt inhalt;
    std::optional<SaveFileDialog::Choice> refused;
    while (true) {
        const std::string name = ExportFileDialog(dialog, boxes, filterIndex, titel, arten, refused);
        if (name.empty())
            return false;
        try {
            inhalt.make(filterIndex, arten);
        } catch (const Laufzeitfehler& error) {
            showSaveFailure(boxes, name, error.what());
            return false;
        }
        if (!inhalt.bytes)
            return false;
        if (inhalt.bytes->empty())
            zeigeNichtsZuSpeichern(boxes, "Für diese Dateiart ist kein Wert bekannt.");
        else if (isWritten(boxes, name, *inhalt.bytes))
            return true;
        std::error_code unknown;
        refused = {utf8FromPath(std::filesystem::current_path(unknown) / pathFromUtf8(name)), filterIndex};
    }
}

} // namespace zerna
