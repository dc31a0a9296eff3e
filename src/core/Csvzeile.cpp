#include "core/Csvzeile.h"

namespace zerna {

std::vector<std::string> csvZeile(std::string_view text, std::size_t& position, char separator)
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
        } else if (quoted || (c != separator && c != '\n' && c != '\r')) {
            cells.back() += c;
        } else if (c == separator) {
            cells.emplace_back();
        } else if (c == '\n') {
            ++position;
            break;
        }
    }
    return cells;
}

} // namespace zerna
