#pragma once

#include <string_view>

#include "core/MessageBoxes.h"

namespace zerna {

/// Writes an export (UTF-8 text with CR LF) under a file name in the current folder, as Windows-1252. A failure is
/// shown with the file's name and the reason and leaves an earlier file of that name untouched; false then.
bool saveExport(MessageBoxes& boxes, std::string_view name, std::string_view text);

/// Shows that a file could not be written and why.
void showSaveFailure(MessageBoxes& boxes, std::string_view name, std::string_view reason);

} // namespace zerna
