#pragma once

#include <algorithm>
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

    std::size_t choose(std::string_view caption, std::string_view text, std::span<const std::string_view> ways) override
    {
        std::string question = std::string(caption) + ": " + std::string(text) + " [";
        for (const std::string_view button : ways)
            question += std::string(button) + (button == ways.back() ? "]" : "|");
        asked.push_back(question);
        return std::min(way, ways.size() - 1);
    }

    std::vector<Box> shown;
    std::vector<std::string> asked;
    bool answer = true; ///< to all questions whether to go on
    std::size_t way = 0; ///< chosen in all questions which way to go
};

} // namespace zerna
