#pragma once

#include "programm/OpenFileDialog.h"

namespace zerna {

/// The toolkit's dialog for a document or a picture that carries one.
class QtOpenFileDialog : public OpenFileDialog {
public:
    std::optional<std::string> choose() override;
};

} // namespace zerna
