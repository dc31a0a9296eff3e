#include "core/Kuerzung.h"

#include "core/Zeichensatz.h"

namespace zerna {

namespace {

bool isInsideCharacter(std::string_view text, std::size_t position)
{
    return position < text.size() && !beginntZeichen(text[position]);
}

} // namespace

std::string gekuerzt(std::string_view text, std::size_t length)
{
    if (text.size() <= length)
        return std::string(text);
    std::size_t head = length * 2 / 3;
    std::size_t tail = text.size() - (length - head);
    while (head > 0 && isInsideCharacter(text, head))
        --head;
    while (isInsideCharacter(text, tail))
        ++tail;
    return std::string(text.substr(0, head)) + "…" + std::string(text.substr(tail));
}

std::string zitiert(std::string_view text, std::size_t length) { return '"' + gekuerzt(text, length) + '"'; }

std::string zitierteDatei(std::string_view name)
{
    constexpr std::size_t LongestName = 255;
    return zitiert(name, LongestName);
}

} // namespace zerna
