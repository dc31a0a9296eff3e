#pragma once

#include <set>
#include <string>

#include "core/MessageBoxes.h"

namespace zerna {

/// Passes each text on once per edit: one edit recalculates many times, and its message must not come as often.
class OncePerEdit : public MessageBoxes {
public:
    explicit OncePerEdit(MessageBoxes& boxes)
        : m_boxes(boxes)
    {
    }

    void beginEdit() { m_shown.clear(); }

    void show(Icon icon, std::string_view caption, std::string_view text) override
    {
        if (m_shown.emplace(text).second)
            m_boxes.show(icon, caption, text);
    }

private:
    MessageBoxes& m_boxes;
    std::set<std::string> m_shown;
};

} // namespace zerna
