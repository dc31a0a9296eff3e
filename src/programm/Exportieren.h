#pragma once

#include <span>
#include <string_view>

#include "core/MessageBoxes.h"
#include "programm/ExportFileDialog.h"

namespace zerna {

/// Lets the user choose a file name and one of the kinds, and writes that kind's bytes under that name. A failure is
/// shown with the file's name and the reason, leaves an earlier file of that name untouched, and the dialog comes again
/// with what was chosen. Without any kind there is nothing to save, which is said. Whether a file was written.
bool exportieren(MessageBoxes& boxes, SaveFileDialog& dialog, std::string_view titel, std::span<const Exportart> arten);

/// Says that there is nothing to save and why; `grund` is a sentence.
void zeigeNichtsZuSpeichern(MessageBoxes& boxes, std::string_view grund);

} // namespace zerna
