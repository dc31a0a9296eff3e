#pragma once

#include "programm/ExportFileDialog.h"

namespace zerna {

/// The toolkit's save dialog.
class QtSaveFileDialog : public SaveFileDialog {
public:
    std::optional<Choice> choose(
        std::string_view title, std::span<const Exportart> arten, const std::optional<Choice>& refused) override;
    bool confirmReplace(std::string_view name) override;
};

} // namespace zerna
