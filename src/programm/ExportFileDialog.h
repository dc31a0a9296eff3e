#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zerna {

/// One entry of a save dialog's file types.
struct Dateityp {
    std::string_view description;
    std::string_view pattern; ///< empty for the bitmap entry, which has none of its own
};

/// The platform's save dialog.
class SaveFileDialog {
public:
    struct Choice {
        std::string path; ///< UTF-8, with folder
        int filterIndex = 1; ///< from 1
    };

    virtual ~SaveFileDialog() = default;

    /// Asks for a file name, and before overwriting an existing file; no value on cancel.
    virtual std::optional<Choice> choose(std::string_view title, std::span<const Dateityp> types) = 0;

    /// Asks whether an existing file may be replaced.
    virtual bool confirmReplace(std::string_view name) = 0;
};

/// The file types that an export offers.
std::vector<Dateityp> exportTypes(bool isDiagram, bool is3D);

/// The file name with the extension of the chosen type (from 1), unless it ends in exactly that.
/// Intended: the comparison respects case, so "werte.DAT" becomes "werte.DAT.dat".
std::string withExtension(std::string_view name, int filterIndex, bool isDiagram, bool is3D);

/// Asks for an export's file name. Returns the name without its folder, which has become the current folder, or an
/// empty text on cancel; `filterIndex` is then left as it was. When the added extension makes the name of another
/// existing file, the user is asked before it is replaced.
std::string ExportFileDialog(SaveFileDialog& dialog, int& filterIndex, bool isDiagram, bool is3D);

} // namespace zerna
