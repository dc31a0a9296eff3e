#include "bild/Kurvenablesung.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include "core/Zahlentext.h"
#include "model/rechnung/Werttext.h"

namespace zerna {

namespace {

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();

std::string gelesenerWert(double wert, const std::string& einheit)
{
    return std::isfinite(wert) ? werttext(static_cast<float>(wert), einheit) : "unbekannt";
}

/// Two decimals, and more where the range is so small that they would not tell its pixels apart.
int decimalsOf(const Bereich& x)
{
    constexpr double Pixels = 1000;
    constexpr int Most = 8;
    return std::clamp(static_cast<int>(std::ceil(-std::log10((x.max - x.min) / Pixels))), 2, Most);
}

const Achse& axisOf(const Kurvenbild& bild, const Kurve& kurve)
{
    return kurve.rechts && bild.rechts ? *bild.rechts : bild.y;
}

/// Without what the legend adds: the value of a single point in "Al60Cu40: 9,4835 eV", the axis.
std::string kurzname(const Kurve& kurve)
{
    return kurve.name.substr(0, kurve.name.find(kurve.punkte.size() == 1 ? ": " : RechteAchse));
}

/// The value of the other quantity at x, of the first curve of the same series that has one.
std::string otherQuantity(const Kurvenbild& bild, const Kurvenpunkt& punkt)
{
    const Kurve& own = bild.kurven[punkt.kurve];
    for (const Kurve& kurve : bild.kurven) {
        const double wert = wertBei(kurve.punkte, punkt.x);
        if (kurve.reihe != own.reihe || kurve.rechts == own.rechts || !std::isfinite(wert))
            continue;
        return "; " + kurzname(kurve) + (kurve.name.empty() ? "" : ": ")
            + gelesenerWert(wert, axisOf(bild, kurve).einheit);
    }
    return {};
}

/// A sign close to a position.
std::optional<Kurvenpunkt> signAt(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& position)
{
    constexpr double Close = 8; // pixels
    std::optional<Kurvenpunkt> found;
    double nearest = Close;
    for (std::size_t i = 0; i < bild.kurven.size(); ++i) {
        const Kurve& kurve = bild.kurven[i];
        if (kurve.linie != Linienart::Keine)
            continue;
        const Abbildung& abbildung = kurve.rechts ? layout.rechts : layout.links;
        const double x = abbildung.x(position.x - Close);
        for (auto punkt = std::ranges::lower_bound(kurve.punkte, x, {}, &Punkt::x); punkt != kurve.punkte.end();
             ++punkt) {
            const Punkt pixel = abbildung.punkt(punkt->x, punkt->y);
            if (pixel.x > position.x + Close)
                break;
            if (const double way = std::hypot(pixel.x - position.x, pixel.y - position.y); way < nearest) {
                nearest = way;
                found = {i, punkt->x, punkt->y};
            }
        }
    }
    return found;
}

} // namespace

double wertBei(std::span<const Punkt> punkte, double x)
{
    const auto next = std::ranges::lower_bound(punkte, x, {}, &Punkt::x);
    if (next == punkte.end())
        return Nan;
    if (next->x == x)
        return next->y;
    if (next == punkte.begin())
        return Nan;
    const Punkt& before = *(next - 1);
    return before.y + (next->y - before.y) * (x - before.x) / (next->x - before.x);
}

std::optional<Kurvenpunkt> punktBei(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& position)
{
    if (const auto sign = signAt(bild, layout, position))
        return sign;
    const double x = layout.links.x(position.x);
    std::optional<Kurvenpunkt> found;
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < bild.kurven.size(); ++i) {
        const Kurve& kurve = bild.kurven[i];
        if (kurve.linie == Linienart::Keine)
            continue;
        const double y = wertBei(kurve.punkte, x);
        const double way = std::abs((kurve.rechts ? layout.rechts : layout.links).punkt(x, y).y - position.y);
        if (way < nearest || !found) {
            nearest = std::isfinite(way) ? way : nearest;
            found = {i, x, y};
        }
    }
    return found;
}

std::string ablesung(const Kurvenbild& bild, const Kurvenpunkt& punkt, const Bereich& x)
{
    const Kurve& kurve = bild.kurven.at(punkt.kurve);
    const bool areSeveral = std::ranges::count_if(bild.kurven, [](const Kurve& k) { return !k.name.empty(); }) > 1;
    const std::string name = areSeveral && !kurve.name.empty() ? kurzname(kurve) + ": " : "";
    const std::string& einheit = kurve.einheit.empty() ? bild.x.einheit : kurve.einheit;
    return name + fixedText(punkt.x, decimalsOf(x)) + ' ' + einheit + " - "
        + gelesenerWert(punkt.y, axisOf(bild, kurve).einheit) + otherQuantity(bild, punkt);
}

Kurvenpunkt naechsterPunkt(const Kurvenbild& bild, const Kurvenpunkt& from, int steps, double pixel)
{
    const std::vector<Punkt>& punkte = bild.kurven.at(from.kurve).punkte;
    Kurvenpunkt at = from;
    const auto known = [](const Punkt& punkt) { return std::isfinite(punkt.y); };
    const auto take = [&](auto next, auto end) {
        next = std::find_if(next, end, known);
        if (next != end)
            at = {at.kurve, next->x, next->y};
    };
    for (int i = 0; i < std::abs(steps); ++i) {
        if (steps > 0)
            take(std::ranges::lower_bound(punkte, at.x + pixel, {}, &Punkt::x), punkte.end());
        else
            take(std::make_reverse_iterator(std::ranges::upper_bound(punkte, at.x - pixel, {}, &Punkt::x)),
                punkte.rend());
    }
    return at;
}

std::optional<Kurvenpunkt> randpunkt(const Kurvenbild& bild, std::size_t kurve, const Bereich& x, bool last)
{
    std::optional<Kurvenpunkt> found;
    for (const Punkt& punkt : bild.kurven.at(kurve).punkte) {
        if (punkt.x < x.min || punkt.x > x.max || !std::isfinite(punkt.y))
            continue;
        found = {kurve, punkt.x, punkt.y};
        if (!last)
            break;
    }
    return found;
}

} // namespace zerna
