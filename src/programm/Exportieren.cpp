#include "programm/Exportieren.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "core/Datei.h"
#include "core/Exportdatei.h"

namespace zerna {

namespace {

/// Writes the file, or shows why not.
bool isWritten(MessageBoxes& boxes, const std::string& name, std::string_view bytes)
{
    try {
        writeExport(pathFromUtf8(name), bytes);
        return true;
    } catch (const Laufzeitfehler& error) {
        zeigeSpeicherfehler(boxes, name, error.what());
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

void zeigeSpeicherfehler(MessageBoxes& boxes, const std::string& name, const std::string& grund)
{
    boxes.show(Icon::Exclamation, Programmtitel,
        "Die Datei \"" + name + "\" konnte nicht gespeichert werden:\r\n" + grund + ".");
}

void zeigeNichtsZuSpeichern(MessageBoxes& boxes, std::string_view grund)
{
    boxes.show(Icon::Exclamation, Programmtitel, "Es gibt nichts zu speichern: " + std::string(grund));
}

bool exportieren(MessageBoxes& boxes, SaveFileDialog& dialog, std::string_view titel, std::span<const Exportart> arten)
{
    if (arten.empty())
        zeigeNichtsZuSpeichern(boxes, "Es ist kein Wert bekannt.");
    return !arten.empty() && speichereAls(boxes, dialog, titel, arten, {});
}

std::optional<std::filesystem::path> speichereAls(MessageBoxes& boxes, SaveFileDialog& dialog, std::string_view titel,
    std::span<const Exportart> arten, std::optional<SaveFileDialog::Choice> vorschlag)
{
    int filterIndex = 1;
    Inhalt inhalt;
    std::optional<SaveFileDialog::Choice> refused = std::move(vorschlag);
    while (true) {
        const std::string name = ExportFileDialog(dialog, boxes, filterIndex, titel, arten, refused);
        if (name.empty())
            return std::nullopt;
        try {
            inhalt.make(filterIndex, arten);
        } catch (const Laufzeitfehler& error) {
            zeigeSpeicherfehler(boxes, name, error.what());
            return std::nullopt;
        }
        if (!inhalt.bytes)
            return std::nullopt;
        std::error_code unknown;
        const std::filesystem::path file = std::filesystem::current_path(unknown) / pathFromUtf8(name);
        if (inhalt.bytes->empty())
            zeigeNichtsZuSpeichern(boxes, "Für diese Dateiart ist kein Wert bekannt.");
        else if (isWritten(boxes, name, *inhalt.bytes)) {
            dialog.gespeichert(name);
            return file;
        }
        refused = {utf8FromPath(file), filterIndex};
    }
}

} // namespace zerna
