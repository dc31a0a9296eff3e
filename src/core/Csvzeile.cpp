#include "core/Csvzeile.h"

namespace zerna {

std::vector<std::string> csvZeile(std::string_view text, std::size_t& position)
{
    std::vector<std::string> cells(1);
    bool quoted = false;
    for (; position < text.size(); ++position) {
        const char c = text[position];
        if (c == '"') {
            const bool doubled = quoted && position + 1 < text.size() && text[position + 1] == '"';
            if (doubled)
                cells.back() += text[position++];
            else
                quoted = !quoted;
        } else if (quoted || std::string_view(",\n\r").find(c) == std::string_view::npos) {
            cells.back() += c;
        } else if (c == ',') {
            cells.emplace_back();
        } else if (c == '\n') {
            ++position;
            break;
        }
    }
    return cells;
}

} // namespace zerna
