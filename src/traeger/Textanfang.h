#pragma once

#include <string_view>

namespace zerna {

/// The first character of a text in UTF-8 or UTF-16 that is no blank, behind its byte order mark; NUL if there is none.
inline char textanfang(std::string_view bytes)
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    const bool isWide = bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE");
    for (const char c : bytes.substr(isWide ? 2 : 0)) {
        const bool isBlank = c == ' ' || c == '\t' || c == '\r' || c == '\n' || (isWide && c == '\0');
        if (!isBlank)
            return c;
    }
    return '\0';
}

} // namespace zerna
