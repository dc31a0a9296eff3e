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

    std::vector<Box> shown;
};

} // namespace zerna
