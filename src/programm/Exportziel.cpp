#include "programm/Exportziel.h"

#include <algorithm>
#include <system_error>

#include "core/Datei.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

bool isBlank(std::string_view name) { return trimmed(name).empty() || name == "." || name == ".."; }

std::string quoted(const std::filesystem::path& path) { return "\"" + utf8FromPath(path) + "\""; }

/// Why the folder cannot hold a file of that name; empty if it is there.
std::string folderMissing(const Exportziel& ziel)
{
    const std::filesystem::path there = vorhandenerOrdner(ziel.ordner);
    const std::filesystem::path rest = ziel.ordner.lexically_relative(there);
    std::error_code unknown;
    if (rest.empty() || rest == "." || std::filesystem::is_directory(ziel.ordner, unknown))
        return {};
    const std::filesystem::path missing = *rest.begin();
    if (std::filesystem::exists(there / missing, unknown))
        return quoted(missing) + " ist kein Ordner.";
    std::string text = "In " + quoted(there) + " gibt es keinen Ordner " + quoted(missing) + ".";
    if (isBlank(ziel.name))
        return text;
    std::string joined = utf8FromPath(rest / pathFromUtf8(ziel.name));
    std::ranges::replace(joined, '/', '-');
    std::ranges::replace(joined, '\\', '-');
    return text + "\r\nEin Schrägstrich trennt Ordner. Als Dateiname geht zum Beispiel\r\n\"" + joined + "\".";
}

} // namespace

Exportziel exportziel(std::string_view path, std::size_t chosen, std::span<const Exportart> arten)
{
    const std::filesystem::path whole = pathFromUtf8(path);
    Exportziel ziel{whole.parent_path(), utf8FromPath(whole.filename()), chosen};
    if (isBlank(ziel.name))
        return ziel;
    const bool exact = arten[chosen].endungGenau;
    const auto chooses = [&, lower = lowerCase(ziel.name)](const Exportart& art) {
        return lower.ends_with(lowerCase(art.endung)) && !(exact && art.endungGenau);
    };
    if (const auto other = std::ranges::find_if(arten, chooses); other != arten.end())
        ziel.art = static_cast<std::size_t>(other - arten.begin());
    else if (!exact || !ziel.name.ends_with(arten[chosen].endung))
        ziel.name += arten[chosen].endung;
    return ziel;
}

std::string hindernis(const Exportziel& ziel)
{
    if (std::string grund = folderMissing(ziel); !grund.empty())
        return grund;
    if (isBlank(ziel.name))
        return "Bitte geben Sie einen Dateinamen ein.";
    std::error_code failed;
    const auto status = std::filesystem::status(ziel.ordner / pathFromUtf8(ziel.name), failed);
    if (std::filesystem::is_directory(status))
        return "\"" + ziel.name + "\" ist ein Ordner. Bitte wählen Sie einen anderen Dateinamen.";
    if (failed == std::errc::filename_too_long)
        return "Der Dateiname ist zu lang. Bitte wählen Sie einen kürzeren.";
    return {};
}

std::filesystem::path vorhandenerOrdner(const std::filesystem::path& path)
{
    std::filesystem::path folder = path;
    std::error_code unknown;
    while (folder.has_relative_path() && !std::filesystem::is_directory(folder, unknown))
        folder = folder.parent_path();
    return folder;
}

} // namespace zerna
