#include "programm/ExportFileDialog.h"

#include <filesystem>

#include "core/Datei.h"
#include "programm/Exportziel.h"

namespace zerna {

namespace {

/// Makes it the current folder; why it cannot be, else empty.
std::string enter(const std::filesystem::path& folder)
{
    std::error_code failed;
    std::filesystem::current_path(folder, failed);
    if (!failed)
        return {};
    const int error = failed.default_error_condition().value(); // an errno on every platform
    return "Der Ordner \"" + utf8FromPath(folder) + "\" lässt sich nicht öffnen: " + systemfehler(error).what() + ".";
}

} // namespace

std::string ExportFileDialog(SaveFileDialog& dialog, MessageBoxes& boxes, int& filterIndex, std::string_view titel,
    std::span<const Exportart> arten, std::optional<SaveFileDialog::Choice> refused)
{
    while (true) {
        const auto choice = dialog.choose(titel, arten, refused);
        if (!choice || choice->filterIndex < 1 || choice->filterIndex > std::ssize(arten))
            return {};
        refused = choice;
        const Exportziel ziel = exportziel(choice->path, static_cast<std::size_t>(choice->filterIndex) - 1, arten);
        std::string grund = hindernis(ziel);
        if (grund.empty()) {
            std::error_code unknown;
            if (std::filesystem::exists(ziel.ordner / pathFromUtf8(ziel.name), unknown)
                && !dialog.confirmReplace(ziel.name))
                continue;
            grund = enter(ziel.ordner);
        }
        if (grund.empty()) {
            filterIndex = static_cast<int>(ziel.art) + 1;
            return ziel.name;
        }
        boxes.show(Icon::Exclamation, Programmtitel, grund);
    }
}

} // namespace zerna
