#include "core/ElementCollection.h"

#include <algorithm>

#include "core/Zahlentext.h"

namespace zerna {

void ElementCollection::Add(Element element, std::string_view key)
{
    if (m_elements.empty()) {
        m_elements.reserve(Tafelgroesse);
        m_positions.reserve(Tafelgroesse);
    }
    if (!m_positions.emplace(key, m_elements.size()).second)
        throw Laufzeitfehler(Fehler::SchluesselVergeben);
    m_elements.push_back(std::move(element));
    ++m_stand;
}

const ElementCollection::Element& ElementCollection::Item(int position) const
{
    if (position < 1 || position > Count())
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    return m_elements[static_cast<std::size_t>(position) - 1];
}

const ElementCollection::Element& ElementCollection::Item(std::string_view key) const
{
    const auto found = m_positions.find(key);
    if (found == m_positions.end())
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return m_elements[found->second];
}

const ElementCollection::Element& ElementCollection::find(std::string_view key, bool ignoringCase) const
{
    static const Element None;
    if (const auto found = m_positions.find(key); found != m_positions.end())
        return m_elements[found->second];
    if (!ignoringCase)
        return None;
    const auto found = std::ranges::find_if(
        m_elements, [wanted = lowerCase(key)](const Element& e) { return lowerCase(e->symbol()) == wanted; });
    return found == m_elements.end() ? None : *found;
}

void ElementCollection::clear()
{
    m_positions.clear();
    m_elements.clear();
    ++m_stand;
}

} // namespace zerna
