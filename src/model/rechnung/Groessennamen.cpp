#include "model/rechnung/Groessennamen.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/Namensnaehe.h"
#include "core/Zeichensatz.h"

namespace zerna {

namespace {

constexpr std::array<std::pair<Groessenart, std::string_view>, 3> Arten{
    {{Groessenart::Ergebnis, "ergebnis"}, {Groessenart::Legierung, "legierung"}, {Groessenart::Element, "element"}}};

/// "flüssige Dichte" of "flüssige Dichte [g/cm³]".
std::string_view titleWithoutUnit(std::string_view titel) { return titel.substr(0, titel.find('[')); }

bool isCalled(const Groesse& groesse, std::string_view wanted)
{
    const auto is = [&](std::string_view name) { return vergleichsname(name) == wanted; };
    return is(groesse.name) || is(groesse.beschriftung) || is(titleWithoutUnit(groesse.elementtitel));
}

/// What names a quantity, those with a code first, in its order.
std::vector<const Groesse*> inOrder()
{
    std::vector<const Groesse*> all;
    std::ranges::transform(groessen(), std::back_inserter(all), [](const Groesse& g) { return &g; });
    std::ranges::stable_sort(all, {}, [](const Groesse* g) { return static_cast<unsigned>(g->kennzahl); });
    return all;
}

} // namespace

bool gibtEs(const Groesse& groesse, Groessenart art)
{
    return art == Groessenart::Ergebnis ? groesse.zeile >= 0
        : art == Groessenart::Legierung ? groesse.ueberLegierungen()
                                        : groesse.ueberElementen();
}

const Groesse* findeGroesse(std::string_view text, Groessenart art)
{
    const std::string wanted = vergleichsname(text);
    const auto isMeant = [&](const Groesse& g) {
        const bool hasCode = g.kennzahl >= 0 && text == std::to_string(g.kennzahl);
        return gibtEs(g, art) && (hasCode || (!wanted.empty() && isCalled(g, wanted)));
    };
    const auto found = std::ranges::find_if(groessen(), isMeant);
    return found == groessen().end() ? nullptr : &*found;
}

std::string eingabename(const Groesse& groesse)
{
    const std::string lower = lowerCase(groesse.name.empty() ? groesse.bezeichnung() : groesse.name);
    std::string name;
    for (std::size_t begin = 0; begin < lower.size();) {
        const std::size_t end = std::min(lower.find_first_of(" -./()", begin), lower.size());
        const std::string word = vergleichsname(std::string_view(lower).substr(begin, end - begin));
        const bool isParted = !name.empty() && !word.empty() && name != "2";
        name += (isParted ? "-" : "") + word;
        begin = end + 1;
    }
    return name;
}

std::vector<std::string> eingabenamen(Groessenart art)
{
    std::vector<std::string> namen;
    for (const Groesse* const groesse : inOrder()) {
        if (gibtEs(*groesse, art))
            namen.push_back(eingabename(*groesse));
    }
    return namen;
}

std::string_view einheitVon(const Groesse& groesse)
{
    if (!groesse.einheit.empty())
        return groesse.einheit;
    const std::string_view titel = groesse.elementtitel;
    const std::size_t begin = titel.find('[');
    return begin == std::string_view::npos ? std::string_view() : titel.substr(begin + 1, titel.find(']') - begin - 1);
}

Tabelle groessenverzeichnis()
{
    Tabelle tabelle{{{"kennzahl", true}, {"eingabe"}, {"name"}, {"einheit"}, {"art"}}, {}};
    for (const Groesse* const groesse : inOrder()) {
        std::string arten;
        for (const auto& [art, name] : Arten)
            arten += gibtEs(*groesse, art) ? (arten.empty() ? "" : ",") + std::string(name) : "";
        const bool hasCode = groesse->kennzahl >= 0;
        tabelle.zeilen.push_back({hasCode ? std::to_string(groesse->kennzahl) : std::string(), eingabename(*groesse),
            std::string(groesse->name.empty() ? groesse->bezeichnung() : groesse->name),
            std::string(einheitVon(*groesse)), arten});
    }
    return tabelle;
}

} // namespace zerna
