#include "core/Elementvorschlag.h"

#include <algorithm>
#include <vector>

#include "core/Namensnaehe.h"

namespace zerna {

std::string elementvorschlag(std::string_view text, std::span<const clsElement* const> elements)
{
    std::vector<std::string_view> namen;
    namen.reserve(2 * elements.size());
    for (const clsElement* const element : elements)
        namen.insert(namen.end(), {element->symbol(), element->Name()});
    std::vector<std::string> symbole;
    for (const std::size_t position : naechsteNamen(text, namen)) {
        const std::string& symbol = elements[position / 2]->symbol();
        if (std::ranges::find(symbole, symbol) == symbole.end())
            symbole.push_back(symbol);
    }
    return meintenSie(symbole);
}

std::string elementvorschlag(std::string_view text, const ElementCollection& elements)
{
    std::vector<const clsElement*> all;
    all.reserve(static_cast<std::size_t>(elements.Count()));
    for (const auto& element : elements)
        all.push_back(element.get());
    return elementvorschlag(text, all);
}

} // namespace zerna
