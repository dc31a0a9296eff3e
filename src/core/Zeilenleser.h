#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zerna {

/// The lines of a stream one after the other, in memory of fixed size however long the stream or a line is. A line ends
/// with LF or CR LF; the last one needs no end. A byte order mark in front of the first is passed over.
class Zeilenleser {
public:
    /// The longest line, without its end.
    static constexpr std::size_t LaengsteZeile = 65536;

    /// Puts the next bytes of the stream into the span and says how many; 0 at its end. What it throws reaches next().
    using Quelle = std::function<std::size_t(std::span<char>)>;

    explicit Zeilenleser(Quelle quelle);

    /// The next line, valid until the next call; no value at the end. Of a line that is too long there is the
    /// beginning.
    std::optional<std::string_view> next();

    std::size_t nummer() const { return m_nummer; } ///< of the last line, from 1
    bool zuLang() const { return m_zuLang; } ///< whether it was too long

private:
    void passOverRest();
    bool fill();
    std::string_view unread() const { return std::string_view(m_buffer).substr(m_begin, m_end - m_begin); }

    Quelle m_quelle;
    std::string m_buffer;
    std::size_t m_begin = 0; // of what is not yet handed out
    std::size_t m_end = 0;
    std::size_t m_nummer = 0;
    bool m_zuLang = false;
    bool m_insideLine = false; // the last line has not come to its end yet
    bool m_atEnd = false;
};

} // namespace zerna
