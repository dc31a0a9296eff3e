#pragma once

#include "programm/InputBox.h"

namespace zerna {

/// The toolkit's input dialog.
class QtInputBox : public InputBox {
public:
    std::optional<std::string> ask(std::string_view title, std::string_view prompt, std::string_view standard) override;
};

} // namespace zerna
