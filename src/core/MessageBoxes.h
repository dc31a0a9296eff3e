#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace zerna {

enum class Icon { None, Exclamation };

/// Caption of message boxes that give none of their own, and the program's display name.
inline constexpr std::string_view Programmtitel = "Zerna";

/// Modal boxes; each call returns when its box is closed. Texts are UTF-8, lines end in "\r\n".
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// One with OK only.
    virtual void show(Icon icon, std::string_view caption, std::string_view text) = 0;

    /// Asks whether to go on all the same; `go` is the caption of the button for it. Yes where nobody can be asked.
    virtual bool ask(std::string_view /*caption*/, std::string_view /*text*/, std::string_view /*go*/) { return true; }

    /// Asks which way to go, and answers with its position; `ways` are the captions of the buttons: first the usual
    /// one, last the one that leaves everything as it is. The first one where nobody can be asked.
    virtual std::size_t choose(
        std::string_view /*caption*/, std::string_view /*text*/, std::span<const std::string_view> /*ways*/)
    {
        return 0;
    }
};

} // namespace zerna
