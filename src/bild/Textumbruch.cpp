#include "bild/Textumbruch.h"

#include <algorithm>

namespace zerna {

namespace {

/// Where the character before byte `end` begins.
std::size_t previous(std::string_view text, std::size_t end)
{
    constexpr unsigned Mark = 0xC0U;
    constexpr unsigned Continuation = 0x80U;
    do
        --end;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & Mark) == Continuation);
    return end;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isUnit(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '%'; }

/// Where the next line may begin: "Al: 2,7 g/cm³" and "z = 1" stay whole.
std::size_t nextBlank(std::string_view text, std::size_t from)
{
    for (std::size_t i = text.find(' ', from); i < text.size(); i = text.find(' ', i + 1)) {
        const char before = i > 0 ? text[i - 1] : ' ';
        const char behind = i + 1 < text.size() ? text[i + 1] : ' ';
        const bool isWithin = (isDigit(before) && isUnit(behind)) || (before == ':' && isDigit(behind));
        if (!isWithin && before != '=' && behind != '=')
            return i;
    }
    return text.size();
}

/// How many bytes of the text are a line of their own: up to the last blank that lets it fit, or up to the first one.
/// Texts take long to measure: the first that is tried is the one that fits if all letters are of one width.
std::size_t lineLength(std::string_view text, double room, const Textbreite& width)
{
    std::vector<std::size_t> ends{nextBlank(text, 0)};
    while (ends.back() < text.size())
        ends.push_back(nextBlank(text, ends.back() + 1));
    const auto fits = [&](auto end) { return width(text.substr(0, *end)) <= room; };
    const double guess = room / width(text) * static_cast<double>(text.size());
    auto end = std::ranges::find_if(ends, [&](std::size_t each) { return static_cast<double>(each) >= guess; });
    while (end != ends.end() && fits(end))
        ++end;
    while (end != ends.begin() && (end == ends.end() || !fits(end)))
        --end;
    return *end;
}

} // namespace

std::string gekuerzt(std::string_view text, double room, const Textbreite& width)
{
    if (width(text) <= room)
        return std::string(text);
    std::vector<std::size_t> ends; // of what may stay, the longest first
    for (std::size_t end = text.size(); end > 0 && (end = previous(text, end)) > 0;)
        ends.push_back(end);
    const auto upTo = [&](std::size_t end) {
        return std::string(text.substr(0, text.find_last_not_of(' ', end - 1) + 1)) + "…";
    };
    const auto fitting = std::ranges::partition_point(ends, [&](std::size_t end) { return width(upTo(end)) > room; });
    return fitting == ends.end() ? std::string() : upTo(*fitting);
}

std::string gekuerztVor(std::size_t end, std::string_view text, double room, const Textbreite& width)
{
    if (width(text) <= room)
        return std::string(text);
    const std::string rest(text.substr(std::min(end, text.size())));
    const std::string head = gekuerzt(text.substr(0, end), room - width(rest), width);
    return head.empty() ? head : head + rest;
}

std::string gekuerztMitEinheit(std::string_view text, double room, const Textbreite& width)
{
    const bool hasUnit = text.ends_with(']') || text.ends_with(')');
    return gekuerztVor(hasUnit ? text.rfind(" [") : std::string_view::npos, text, room, width);
}

std::vector<std::string> umgebrochen(std::string_view text, double room, int lines, const Textbreite& width)
{
    std::vector<std::string> result;
    while (!text.empty() && lines > 0) {
        const bool isLast = --lines == 0;
        const std::size_t length = isLast || width(text) <= room ? text.size() : lineLength(text, room, width);
        if (std::string line = gekuerzt(text.substr(0, length), room, width); !line.empty())
            result.push_back(std::move(line));
        text.remove_prefix(std::min(text.size(), length + 1));
    }
    return result;
}

} // namespace zerna
