#pragma once

#include <filesystem>
#include <string_view>

namespace zerna {

/// Writes the bytes to a file beside the target and renames that over it once the disk has them all, so that a write
/// that fails (disk full, no permission) or is killed leaves an earlier file of that name untouched. Links, further
/// names, owner and permissions of the earlier file stay; one with further names is written over in place, which is
/// undone if it fails. Error 70 if the target must not be written, 75 for a folder,
/// a pipe or a device, 76 for a folder that is not there, 61 for a full disk.
void writeExport(const std::filesystem::path& target, std::string_view bytes);

} // namespace zerna
