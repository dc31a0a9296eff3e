#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/MessageBoxes.h"
#include "programm/Exportart.h"

namespace zerna {

/// Title of the save dialog for values.
inline constexpr std::string_view Exporttitel = "Daten exportieren ...";

/// The platform's save dialog.
class SaveFileDialog {
public:
    struct Choice {
        std::string path; ///< UTF-8: the dialog's folder and, as it was typed, the name
        int filterIndex = 1; ///< of the chosen kind, from 1
    };

    virtual ~SaveFileDialog() = default;

    /// Asks for a file name and one of the kinds; no value on cancel. `refused` is an earlier choice that could not be
    /// used: its folder, name and kind are offered again.
    virtual std::optional<Choice> choose(
        std::string_view title, std::span<const Exportart> arten, const std::optional<Choice>& refused) = 0;

    /// Asks whether an existing file may be replaced.
    virtual bool confirmReplace(std::string_view name) = 0;

    /// Hears the name of a file that has been written.
    virtual void gespeichert(std::string_view) { }
};

/// Asks for an export's file name. Returns the name without its folder, which has become the current folder, or an
/// empty text on cancel; `filterIndex` (of the kind, from 1) is then left as it was. An existing file is asked for
/// before it is replaced. A name that cannot be used is refused with the reason, and the dialog comes again.
std::string ExportFileDialog(SaveFileDialog& dialog, MessageBoxes& boxes, int& filterIndex, std::string_view titel,
    std::span<const Exportart> arten, std::optional<SaveFileDialog::Choice> refused = {});

} // namespace zerna
