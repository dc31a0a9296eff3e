#pragma once

#include "core/MessageBoxes.h"

namespace zerna {

/// Message boxes of the toolkit, modal to the active window.
class QtMessageBoxes : public MessageBoxes {
public:
    void show(Icon icon, std::string_view caption, std::string_view text) override;
    bool ask(std::string_view caption, std::string_view text, std::string_view go) override;
    std::size_t choose(
        std::string_view caption, std::string_view text, std::span<const std::string_view> ways) override;
};

} // namespace zerna
