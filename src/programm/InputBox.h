#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zerna {

/// The platform's box that asks for one line of text.
class InputBox {
public:
    virtual ~InputBox() = default;

    /// The text that was entered; no value on cancel. Lines of the prompt end in "\r\n".
    virtual std::optional<std::string> ask(
        std::string_view title, std::string_view prompt, std::string_view standard) = 0;
};

} // namespace zerna
