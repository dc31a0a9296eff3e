#include "bild/Kurvenansicht.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zerna {

namespace {

double spanOf(const Bereich& bereich) { return bereich.max - bereich.min; }

/// A range of that span inside the whole one, as near as can be to where it was.
Bereich inside(double min, double span, const Bereich& whole)
{
    constexpr double Smallest = 1e-5; // of the whole: single precision has no more to show
    if (span >= spanOf(whole)) // exactly: rounding must not leave a last bit zoomed
        return whole;
    span = std::max(span, Smallest * spanOf(whole));
    min = std::clamp(min, whole.min, std::max(whole.min, whole.max - span));
    return {min, std::min(whole.max, min + span)};
}

/// A range scaled around a part of it, 0 at its lower end.
Bereich scaled(const Bereich& shown, double part, double factor, const Bereich& whole)
{
    const double span = std::min(spanOf(whole), spanOf(shown) * factor);
    return inside(shown.min + part * (spanOf(shown) - span), span, whole);
}

/// The part between two places of a range, 0 at its lower end.
Bereich between(const Bereich& shown, double a, double b, const Bereich& whole)
{
    const auto [low, high] = std::minmax({std::clamp(a, 0.0, 1.0), std::clamp(b, 0.0, 1.0)});
    return inside(shown.min + low * spanOf(shown), (high - low) * spanOf(shown), whole);
}

bool meets(const Bereich& a, const Bereich& b) { return a.min < b.max && b.min < a.max; }

} // namespace

void Kurvenansicht::passeAn(const Kurvenbild& bild)
{
    const Ausschnitt whole = ganzerAusschnitt(bild);
    if (m_ausschnitt && meets(m_ausschnitt->x, whole.x) && meets(m_ausschnitt->y, whole.y))
        setAusschnitt(bild, *m_ausschnitt);
    else
        m_ausschnitt.reset();
    if (m_kreuz && m_kreuz->kurve < bild.kurven.size())
        m_kreuz->y = wertBei(bild.kurven[m_kreuz->kurve].punkte, m_kreuz->x);
    else
        m_kreuz.reset();
}

void Kurvenansicht::setAusschnitt(const Kurvenbild& bild, const Ausschnitt& ausschnitt)
{
    const Ausschnitt whole = ganzerAusschnitt(bild);
    const auto fit = [](const Bereich& part, const Bereich& all) { return inside(part.min, spanOf(part), all); };
    m_ausschnitt = {fit(ausschnitt.x, whole.x), fit(ausschnitt.y, whole.y), fit(ausschnitt.rechts, whole.rechts)};
    if (m_ausschnitt == whole)
        m_ausschnitt.reset();
}

void Kurvenansicht::zoome(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& position, double notches)
{
    constexpr double PerNotch = 0.8;
    if (layout.istLeer())
        return;
    const double factor = std::pow(PerNotch, notches);
    const double along = std::clamp(position.x / layout.plot.width, 0.0, 1.0);
    const double up = std::clamp(1 - position.y / layout.plot.height, 0.0, 1.0);
    const Ausschnitt& shown = layout.ausschnitt;
    const Ausschnitt whole = ganzerAusschnitt(bild);
    setAusschnitt(bild,
        {scaled(shown.x, along, factor, whole.x), scaled(shown.y, up, factor, whole.y),
            scaled(shown.rechts, up, factor, whole.rechts)});
}

bool Kurvenansicht::zoomeAuf(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& a, const Punkt& b)
{
    constexpr double Spot = 6; // pixels
    const bool isWide = std::abs(a.x - b.x) >= Spot;
    const bool isHigh = std::abs(a.y - b.y) >= Spot;
    if (layout.istLeer() || (!isWide && !isHigh))
        return false;
    Ausschnitt part = layout.ausschnitt;
    const Ausschnitt whole = ganzerAusschnitt(bild);
    const auto up = [&](const Punkt& corner) { return 1 - corner.y / layout.plot.height; };
    if (isWide)
        part.x = between(part.x, a.x / layout.plot.width, b.x / layout.plot.width, whole.x);
    if (isHigh) {
        part.y = between(part.y, up(a), up(b), whole.y);
        part.rechts = between(part.rechts, up(a), up(b), whole.rechts);
    }
    setAusschnitt(bild, part);
    return true;
}

bool Kurvenansicht::zeigeGanz() { return std::exchange(m_ausschnitt, std::nullopt).has_value(); }

void Kurvenansicht::zeigeAuf(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& position)
{
    m_kreuz = punktBei(bild, layout, position);
}

bool Kurvenansicht::gehe(const Kurvenbild& bild, const Kurvenlayout& layout, int steps)
{
    if (!m_kreuz)
        return geheAnsEnde(bild, layout, false);
    m_kreuz = naechsterPunkt(bild, *m_kreuz, steps, spanOf(layout.ausschnitt.x) / std::max(1.0, layout.plot.width));
    follow(bild);
    return true;
}

bool Kurvenansicht::geheAnsEnde(const Kurvenbild& bild, const Kurvenlayout& layout, bool last)
{
    const std::size_t kurve = m_kreuz ? m_kreuz->kurve : 0;
    if (kurve >= bild.kurven.size())
        return false;
    if (const auto punkt = randpunkt(bild, kurve, layout.ausschnitt.x, last))
        m_kreuz = punkt;
    return m_kreuz.has_value();
}

bool Kurvenansicht::wechsle(const Kurvenbild& bild, const Kurvenlayout& layout, int way)
{
    if (!m_kreuz)
        return geheAnsEnde(bild, layout, false);
    const std::size_t count = bild.kurven.size();
    std::size_t kurve = m_kreuz->kurve;
    for (std::size_t i = 0; i < count; ++i) {
        kurve = (kurve + (way > 0 ? 1 : count - 1)) % count;
        const double y = wertBei(bild.kurven[kurve].punkte, m_kreuz->x);
        const auto punkt = std::isfinite(y) ? std::optional(Kurvenpunkt{kurve, m_kreuz->x, y})
                                            : randpunkt(bild, kurve, layout.ausschnitt.x, false);
        if (punkt) {
            m_kreuz = punkt;
            break;
        }
    }
    return true;
}

bool Kurvenansicht::ohneKreuz() { return std::exchange(m_kreuz, std::nullopt).has_value(); }

/// Shifts what is shown so that the crosshair is in it.
void Kurvenansicht::follow(const Kurvenbild& bild)
{
    if (!m_ausschnitt || !m_kreuz)
        return;
    Ausschnitt shown = *m_ausschnitt;
    const auto shift = [](Bereich& range, double value) {
        const double way = value < range.min ? value - range.min : std::max(0.0, value - range.max);
        range = {range.min + way, range.max + way};
    };
    shift(shown.x, m_kreuz->x);
    shift(bild.kurven.at(m_kreuz->kurve).rechts ? shown.rechts : shown.y, m_kreuz->y);
    setAusschnitt(bild, shown);
}

} // namespace zerna
