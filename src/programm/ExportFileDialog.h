#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "programm/Exportart.h"

namespace zerna {

/// Title of the save dialog for values.
inline constexpr std::string_view Exporttitel = "Daten exportieren ...";

/// The platform's save dialog.
class SaveFileDialog {
public:
    struct Choice {
        std::string path; ///< UTF-8, with folder
        int filterIndex = 1; ///< of the chosen kind, from 1
    };

    virtual ~SaveFileDialog() = default;

    /// Asks for a file name and one of the kinds, and before overwriting an existing file; no value on cancel.
    virtual std::optional<Choice> choose(std::string_view title, std::span<const Exportart> arten) = 0;

    /// Asks whether an existing file may be replaced.
    virtual bool confirmReplace(std::string_view name) = 0;
};

/// Asks for an export's file name. Returns the name without its folder, which has become the current folder, or an
/// empty text on cancel; `filterIndex` (of the chosen kind, from 1) is then left as it was. The kind's extension is
/// appended unless the name ends in exactly that; when this makes the name of another existing file, the user is asked
/// before it is replaced.
/// Intended: the comparison respects case, so "werte.DAT" becomes "werte.DAT.dat".
std::string ExportFileDialog(
    SaveFileDialog& dialog, int& filterIndex, std::string_view titel, std::span<const Exportart> arten);

} // namespace zerna
