#pragma once

#include "programm/OpenFileDialog.h"

namespace zerna {

/// The toolkit's dialog for a document or a picture that carries one, or for a measured curve.
class QtOpenFileDialog : public OpenFileDialog {
public:
    std::optional<std::string> choose(Dateiwahl wahl) override;
};

} // namespace zerna
