#pragma once

#include "programm/ExportFileDialog.h"
#include "ui/platform/QtText.h"

namespace zerna {

/// The toolkit's save dialog.
class QtSaveFileDialog : public SaveFileDialog {
public:
    std::optional<Choice> choose(
        std::string_view title, std::span<const Exportart> arten, const std::optional<Choice>& refused) override;
    bool confirmReplace(std::string_view name) override;

private:
    QString m_title = toQt(Exporttitel); // of the last question
};

} // namespace zerna
