#include "model/Zielsuche.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/Unbekannt.h"
#include "model/Nullstellen.h"

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

/// The roundest place of a root where the value is the wanted one to the last place of a single; the root's ends are
/// as good as the series' ends.
double rundeste(const Nullstelle& stelle, const Funktion& f, double genau)
{
    constexpr int Decimals = 6;
    if (stelle.von == Von && std::abs(f(Von)) <= genau)
        return Von;
    if (stelle.bis == Bis && std::abs(f(Bis)) <= genau)
        return Bis;
    for (int decimals = 0; decimals < Decimals; ++decimals) {
        const double round = gerundet(stelle.mitte(), decimals);
        if (stelle.von <= round && round <= stelle.bis && std::abs(f(round)) <= genau)
            return round;
    }
    return std::clamp(gerundet(stelle.mitte(), Decimals), stelle.von, stelle.bis);
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
        const double prozent = rundeste(stelle, f, Stelle * std::abs(ziel));
        if (!antwort.ueberall)
            antwort.loesungen.push_back({prozent, wert(prozent)});
    }
    if (found.stellen.empty() && found.naechste)
        antwort.naechste = {found.naechste->x, wert(found.naechste->x)};
    return antwort;
}

} // namespace zerna
