#pragma once

#include <optional>
#include <string>

namespace zerna {

/// The platform's dialog for a file to open.
class OpenFileDialog {
public:
    virtual ~OpenFileDialog() = default;

    /// Asks for the path of a file, UTF-8; no value on cancel.
    virtual std::optional<std::string> choose() = 0;
};

} // namespace zerna
