#include "bild/Kurventabelle.h"

#include <cmath>

namespace zerna {

namespace {

/// Where curves run over different components, each says which is its own.
std::string spaltenname(const Kurvenbild& bild, const Kurve& kurve)
{
    const bool isSaid = bild.x.titel == bild.x.einheit || !kurve.einheit.empty();
    return kurve.name + (isSaid ? "" : " (" + bild.x.einheit + ')');
}

} // namespace

Tabelle kurventabelle(const Kurvenbild& bild, Dezimaltrenner trenner)
{
    Tabelle tabelle{{{bild.x.titel, true}}, {}};
    for (const Punkt& punkt : bild.kurven.front().punkte)
        tabelle.zeilen.push_back({textOfDouble(punkt.x, trenner)});
    for (const Kurve& kurve : bild.kurven) {
        if (kurve.linie == Linienart::Keine)
            continue;
        const Achse& achse = kurve.rechts && bild.rechts ? *bild.rechts : bild.y;
        tabelle.spalten.push_back({spaltenname(bild, kurve) + " [" + achse.einheit + ']', true});
        for (std::size_t i = 0; i < tabelle.zeilen.size(); ++i) {
            const double y = i < kurve.punkte.size() ? kurve.punkte[i].y : NAN;
            tabelle.zeilen[i].push_back(std::isnan(y) ? "" : textOfSingle(static_cast<float>(y), trenner));
        }
    }
    return tabelle;
}

} // namespace zerna
