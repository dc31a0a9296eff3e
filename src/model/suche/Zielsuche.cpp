#include "model/suche/Zielsuche.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/Unbekannt.h"
#include "model/suche/Nullstellen.h"

namespace zerna {

namespace {

constexpr double Von = 0;
constexpr double Bis = 100;

/// One unit in the last place of a single, as a part of it.
constexpr double Stelle = std::numeric_limits<float>::epsilon();

double gerundet(double value, int decimals)
{
    const double shift = std::pow(10.0, decimals);
    return std::round(value * shift) / shift;
}

/// Where in a root, whose values are the wanted one within rounding, they are so as closely as that: what is nearest to
/// its middle; the whole root if they are so nowhere.
Nullstelle genaueste(const Nullstelle& stelle, const Funktion& f, double genau)
{
    if (stelle.von == stelle.bis)
        return stelle;
    const auto parts =
        nullstellen(f, {.von = stelle.von, .bis = stelle.bis, .schritte = 50, .toleranz = genau}).stellen;
    const auto nearest = std::ranges::min_element(
        parts, {}, [&](const Nullstelle& part) { return std::abs(part.mitte() - stelle.mitte()); });
    return nearest == parts.end() ? stelle : *nearest;
}

/// The roundest place in a root, with up to so many decimals; the ends of the series are round.
std::optional<double> rundeste(const Nullstelle& stelle, int decimals)
{
    if (stelle.von == Von || stelle.bis == Bis)
        return stelle.von == Von ? Von : Bis;
    for (int i = 0; i <= decimals; ++i) {
        const double round = gerundet(stelle.mitte(), i);
        if (stelle.von <= round && round <= stelle.bis)
            return round;
    }
    return std::nullopt;
}

/// The at% to be told of a root. The alloy itself is computed in other steps, which may differ in the last place: parts
/// as they are typed are found all the same.
double anteil(const Nullstelle& stelle, const Funktion& f, double ziel)
{
    constexpr int Typed = 1; // decimals
    constexpr int Decimals = 6;
    const double lastPlace = Stelle * std::abs(ziel);
    if (const auto typed = rundeste(genaueste(stelle, f, 2 * lastPlace), Typed))
        return *typed;
    const Nullstelle best = genaueste(stelle, f, lastPlace / 2);
    return rundeste(best, Decimals).value_or(best.mitte());
}

/// The place of the nearest value, as round as single precision lets it be: rounding makes it fall beside the end.
Loesung naechste(double x, const Reihenwert& wert, double ziel)
{
    const float found = wert(x);
    for (int decimals = 4; decimals <= 6; ++decimals) {
        const double round = gerundet(x, decimals);
        const float value = wert(round);
        if (!istUnbekannt(value) && std::abs(value - ziel) <= std::abs(found - ziel) + 8 * Stelle * std::abs(found))
            return {round, value};
    }
    return {x, found};
}

} // namespace

/// What rounding to singles makes of a value stays within eight units of the last place; a root is the middle of the
/// stretch of those values.
Zielantwort sucheZiel(const Reihenwert& wert, double ziel)
{
    const Funktion f = [&](double prozent) {
        const float value = wert(prozent);
        return istUnbekannt(value) ? std::numeric_limits<double>::quiet_NaN() : value - ziel;
    };
    const Nullstellen found =
        nullstellen(f, {.von = Von, .bis = Bis, .schritte = 400, .toleranz = 8 * Stelle * std::abs(ziel)});
    Zielantwort antwort;
    antwort.ueberall = !found.stellen.empty() && found.stellen.front() == Nullstelle{Von, Bis};
    for (const Nullstelle& stelle : found.stellen) {
        const double prozent = anteil(stelle, f, ziel);
        if (!antwort.ueberall)
            antwort.loesungen.push_back({prozent, wert(prozent)});
    }
    if (found.stellen.empty() && found.naechste)
        antwort.naechste = naechste(found.naechste->x, wert, ziel);
    return antwort;
}

} // namespace zerna
