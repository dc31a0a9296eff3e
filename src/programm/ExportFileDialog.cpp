#include "programm/ExportFileDialog.h"

#include <filesystem>
#include <system_error>

#include "core/Datei.h"

namespace zerna {

std::vector<Dateityp> exportTypes(bool isDiagram, bool is3D)
{
    if (!isDiagram)
        return {{"DAT-File (*.dat)", "*.dat"}, {"Friedelminima (*.fri)", "*.fri"}};
    if (is3D)
        return {{"Daten 3D (*.3dd)", "*.3dd"}, {"Bitmap (*.bmp)", ""}};
    return {{"DAT-File (*.dat)", "*.dat"}, {"Bitmap (*.bmp)", ""}};
}

std::string withExtension(std::string_view name, int filterIndex, bool isDiagram, bool is3D)
{
    std::string_view extension;
    if (filterIndex == 1)
        extension = isDiagram && is3D ? ".3dd" : ".dat";
    else if (filterIndex == 2)
        extension = isDiagram ? ".bmp" : ".fri";
    return name.ends_with(extension) ? std::string(name) : std::string(name).append(extension);
}

std::string ExportFileDialog(SaveFileDialog& dialog, int& filterIndex, bool isDiagram, bool is3D)
{
    const auto choice = dialog.choose("Daten exportieren ...", exportTypes(isDiagram, is3D));
    if (!choice)
        return {};
    const std::filesystem::path path = pathFromUtf8(choice->path);
    const std::string typed = utf8FromPath(path.filename());
    if (typed.empty())
        return {};
    std::error_code failed;
    std::filesystem::current_path(path.parent_path(), failed);
    if (failed)
        return {};
    std::string name = withExtension(typed, choice->filterIndex, isDiagram, is3D);
    const bool hitsAnother = name != typed && std::filesystem::exists(pathFromUtf8(name), failed);
    if (hitsAnother && !dialog.confirmReplace(name))
        return {};
    filterIndex = choice->filterIndex;
    return name;
}

} // namespace zerna
