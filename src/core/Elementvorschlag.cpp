#include "core/Elementvorschlag.h"

#include <algorithm>
#include <vector>

#include "core/Namensnaehe.h"

namespace zerna {

std::string elementvorschlag(std::string_view text, const ElementCollection& elements)
{
    std::vector<std::string_view> namen;
    namen.reserve(2 * static_cast<std::size_t>(elements.Count()));
    for (const auto& element : elements)
        namen.insert(namen.end(), {element->symbol(), element->Name()});
    std::vector<std::string> symbole;
    for (const std::size_t position : naechsteNamen(text, namen)) {
        const std::string_view symbol = namen[position - position % 2]; // in front of its element's name
        if (std::ranges::find(symbole, symbol) == symbole.end())
            symbole.emplace_back(symbol);
    }
    return meintenSie(symbole);
}

} // namespace zerna
