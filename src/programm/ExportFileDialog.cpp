#include "programm/ExportFileDialog.h"

#include <filesystem>
#include <system_error>

#include "core/Datei.h"

namespace zerna {

namespace {

std::string withExtension(const std::string& name, std::string_view extension)
{
    return name.ends_with(extension) ? name : name + std::string(extension);
}

} // namespace

std::string ExportFileDialog(
    SaveFileDialog& dialog, int& filterIndex, std::string_view titel, std::span<const Exportart> arten)
{
    const auto choice = dialog.choose(titel, arten);
    if (!choice || choice->filterIndex < 1 || choice->filterIndex > std::ssize(arten))
        return {};
    const std::filesystem::path path = pathFromUtf8(choice->path);
    const std::string typed = utf8FromPath(path.filename());
    if (typed.empty())
        return {};
    std::error_code failed;
    std::filesystem::current_path(path.parent_path(), failed);
    if (failed)
        return {};
    const auto chosen = static_cast<std::size_t>(choice->filterIndex) - 1;
    std::string name = withExtension(typed, arten[chosen].endung);
    const bool hitsAnother = name != typed && std::filesystem::exists(pathFromUtf8(name), failed);
    if (hitsAnother && !dialog.confirmReplace(name))
        return {};
    filterIndex = choice->filterIndex;
    return name;
}

} // namespace zerna
