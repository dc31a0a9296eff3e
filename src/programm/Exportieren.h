#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/MessageBoxes.h"
#include "programm/ExportFileDialog.h"

namespace zerna {

/// Lets the user choose a file name and one of the kinds, and writes that kind's bytes under that name. A failure is
/// shown with the file's name and the reason, leaves an earlier file of that name untouched, and the dialog comes again
/// with what was chosen. Without any kind there is nothing to save, which is said. Whether a file was written.
bool exportieren(MessageBoxes& boxes, SaveFileDialog& dialog, std::string_view titel, std::span<const Exportart> arten);

/// As exportieren, with a first suggestion if there is one; the path of the file that was written.
std::optional<std::filesystem::path> speichereAls(MessageBoxes& boxes, SaveFileDialog& dialog, std::string_view titel,
    std::span<const Exportart> arten, std::optional<SaveFileDialog::Choice> vorschlag);

/// Says that a file could not be written and why; `grund` has no full stop.
void zeigeSpeicherfehler(MessageBoxes& boxes, const std::string& name, const std::string& grund);

/// Says that there is nothing to save and why; `grund` is a sentence.
void zeigeNichtsZuSpeichern(MessageBoxes& boxes, std::string_view grund);

} // namespace zerna
