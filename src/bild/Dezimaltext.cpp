#include "bild/Dezimaltext.h"

namespace zerna {

std::string mitDezimal(std::string text, Dezimaltrenner trenner)
{
    constexpr std::string_view Digits = "0123456789";
    const auto isDigit = [&](std::size_t at) { return Digits.find(text[at]) != std::string_view::npos; };
    for (std::size_t at = 1; at + 1 < text.size(); ++at) {
        if (text[at] == ',' && isDigit(at - 1) && isDigit(at + 1))
            text[at] = static_cast<char>(trenner);
    }
    return text;
}

} // namespace zerna
