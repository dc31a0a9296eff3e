#include "core/Zeilenleser.h"

#include <algorithm>
#include <utility>

namespace zerna {

namespace {

constexpr std::string_view Bytereihenfolge = "\xEF\xBB\xBF";

} // namespace

Zeilenleser::Zeilenleser(Quelle quelle)
    : m_quelle(std::move(quelle))
    , m_buffer(2 * LaengsteZeile, '\0')
{
}

std::optional<std::string_view> Zeilenleser::next()
{
    passOverRest();
    std::size_t end = unread().find('\n');
    while (end == std::string_view::npos && unread().size() <= LaengsteZeile + 1) { // one more: a CR is no part of it
        const std::size_t searched = unread().size();
        if (!fill())
            break;
        end = unread().find('\n', searched);
    }
    if (unread().empty())
        return std::nullopt;
    std::string_view line = unread().substr(0, end);
    m_begin += std::min(line.size() + 1, unread().size());
    m_insideLine = end == std::string_view::npos;
    if (++m_nummer == 1 && line.starts_with(Bytereihenfolge))
        line.remove_prefix(Bytereihenfolge.size());
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    m_zuLang = line.size() > LaengsteZeile;
    return line.substr(0, LaengsteZeile);
}

/// Goes on behind a line that was handed out before its end came.
void Zeilenleser::passOverRest()
{
    while (m_insideLine) {
        const std::size_t end = unread().find('\n');
        m_insideLine = end == std::string_view::npos;
        m_begin = m_insideLine ? m_end : m_begin + end + 1;
        if (m_insideLine && !fill())
            return;
    }
}

/// Reads on behind what is unread; false at the end.
bool Zeilenleser::fill()
{
    std::copy(m_buffer.data() + m_begin, m_buffer.data() + m_end, m_buffer.data());
    m_end -= std::exchange(m_begin, 0);
    const std::size_t count = m_atEnd ? 0 : m_quelle(std::span(m_buffer).subspan(m_end));
    m_atEnd = count == 0;
    m_end += count;
    return count > 0;
}

} // namespace zerna
