#include "model/rechnung/Groessenauswahl.h"

#include <algorithm>

#include "core/Zahlentext.h"
#include "model/rechnung/Groessennamen.h"

namespace zerna {

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
        const Groesse* const groesse = findeGroesse(entry, Groessenart::Ergebnis);
        if (groesse == nullptr)
            return {{}, '"' + std::string(entry) + '"'};
        auswahl.groessen.push_back(groesse);
        begin = end + 1;
    }
    return auswahl;
}

} // namespace zerna
