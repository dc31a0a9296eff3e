#pragma once

#include <string>
#include <vector>

#include "core/MessageBoxes.h"

namespace zerna {

/// Remembers message boxes instead of showing them.
class RecordingBoxes : public MessageBoxes {
public:
    struct Box {
        Icon icon;
        std::string caption;
        std::string text;
        bool operator==(const Box&) const = default;
    };

    void show(Icon icon, std::string_view caption, std::string_view text) override
    {
        shown.push_back({icon, std::string(caption), std::string(text)});
    }

    bool ask(std::string_view caption, std::string_view text, std::string_view go) override
    {
        asked.push_back(std::string(caption) + ": " + std::string(text) + " [" + std::string(go) + ']');
        return answer;
    }

    std::optional<std::size_t> choose(
        std::string_view caption, std::string_view text, std::span<const std::string_view> buttons) override
    {
        asked.push_back(std::string(caption) + ": " + std::string(text) + " [" + std::string(buttons[0]) + '|'
            + std::string(buttons[1]) + ']');
        return chosen;
    }

    std::vector<Box> shown;
    std::vector<std::string> asked;
    bool answer = true; ///< to all questions
    std::optional<std::size_t> chosen = 0; ///< of all questions that offer several things
};

} // namespace zerna
