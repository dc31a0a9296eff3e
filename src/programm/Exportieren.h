#pragma once

#include <span>
#include <string_view>

#include "core/MessageBoxes.h"
#include "programm/ExportFileDialog.h"

namespace zerna {

/// Lets the user choose a file name and one of the kinds, and writes that kind's bytes under that name. A failure is
/// shown with the file's name and the reason and leaves an earlier file of that name untouched. Whether a file was
/// written.
bool exportieren(MessageBoxes& boxes, SaveFileDialog& dialog, std::string_view titel, std::span<const Exportart> arten);

} // namespace zerna
