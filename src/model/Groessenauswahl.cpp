#include "model/Groessenauswahl.h"

#include <algorithm>

#include "core/Zahlentext.h"
#include "core/Zeichensatz.h"

namespace zerna {

namespace {

const Groesse* findErgebnis(std::string_view entry)
{
    const std::string wanted = lowerCase(entry);
    const auto isMeant = [&](const Groesse& g) {
        const bool hasCode = g.kennzahl >= 0 && wanted == std::to_string(g.kennzahl);
        return hasCode || wanted == lowerCase(g.bezeichnung()) || wanted == lowerCase(g.name);
    };
    const auto found = wanted.empty() ? ergebniszeilen().end() : std::ranges::find_if(ergebniszeilen(), isMeant);
    return found == ergebniszeilen().end() ? nullptr : &*found;
}

} // namespace

Groessenauswahl groessenauswahl(std::string_view liste)
{
    Groessenauswahl auswahl;
    if (liste.empty()) {
        std::ranges::transform(
            ergebniszeilen(), std::back_inserter(auswahl.groessen), [](const Groesse& g) { return &g; });
        return auswahl;
    }
    for (std::size_t begin = 0; begin <= liste.size();) {
        const std::size_t end = std::min(liste.find(',', begin), liste.size());
        const std::string_view entry = trimmed(liste.substr(begin, end - begin));
        const Groesse* const groesse = findErgebnis(entry);
        if (groesse == nullptr)
            return {{}, '"' + std::string(entry) + '"'};
        auswahl.groessen.push_back(groesse);
        begin = end + 1;
    }
    return auswahl;
}

} // namespace zerna
