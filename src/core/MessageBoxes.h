#pragma once

#include <string_view>

namespace zerna {

enum class Icon { None, Exclamation };

/// Caption of message boxes that give none of their own, and the program's display name.
inline constexpr std::string_view Programmtitel = "Zerna";

/// Shows one modal box with OK only and returns when it is closed. Texts are UTF-8, lines end in "\r\n".
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    virtual void show(Icon icon, std::string_view caption, std::string_view text) = 0;
};

} // namespace zerna
