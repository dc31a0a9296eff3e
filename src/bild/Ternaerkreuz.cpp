#include "bild/Ternaerkreuz.h"

#include <algorithm>
#include <cmath>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Werttext.h"

namespace zerna {

Anteile3 anteileBei(const Ternaergitter& gitter, const Ternaerkreuz& kreuz)
{
    const double first = static_cast<double>(kreuz.i) / gitter.n;
    const double second = static_cast<double>(kreuz.j) / gitter.n;
    return {first, second, static_cast<double>(gitter.n - kreuz.i - kreuz.j) / gitter.n};
}

Ternaerkreuz kreuzBei(const Ternaergitter& gitter, const Anteile3& anteile)
{
    const auto divisions = [&](double share, int most) {
        return std::clamp(static_cast<int>(std::lround(share * gitter.n)), 0, most);
    };
    const int i = divisions(anteile[0], gitter.n);
    return {i, divisions(anteile[1], gitter.n - i)};
}

Ternaerkreuz nachbar(const Ternaergitter& gitter, Ternaerkreuz kreuz, int nachRechts, int nachOben)
{
    const bool fromFirst = nachOben < 0 || kreuz.i > 0;
    const Ternaerkreuz next{
        kreuz.i - nachRechts - (fromFirst ? nachOben : 0), kreuz.j + nachRechts - (fromFirst ? 0 : nachOben)};
    const bool isInside = next.i >= 0 && next.j >= 0 && next.i + next.j <= gitter.n;
    return isInside ? next : kreuz;
}

std::string ternaerablesung(const Ternaergitter& gitter, const Anteile3& anteile, float wert)
{
    std::string text;
    for (std::size_t k = 0; k < 3; ++k)
        text += gitter.symbole.at(k) + " " + fixedText(std::max(0.0, anteile.at(k)) * 100, 1) + " at%  ";
    return text + "-  " + (istUnbekannt(wert) ? "unbekannt" : werttext(wert, gitter.einheit));
}

} // namespace zerna
