#include "ui/platform/Kontrast.h"

#include <QtMath>

#include <algorithm>

#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr int Steps = 64; // from one colour to another

/// The first of the steps from one colour to the other that will do; the other if none does.
template <class WillDo>
QColor firstBetween(const QColor& one, const QColor& other, const WillDo& willDo)
{
    for (int step = 0; step < Steps; ++step) {
        if (const QColor colour = gemischt(one, other, static_cast<double>(step) / Steps); willDo(colour))
            return colour;
    }
    return other;
}

} // namespace

double kontrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({leuchtdichte(fromQt(a)), leuchtdichte(fromQt(b))});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor gemischt(const QColor& one, const QColor& other, double share)
{
    const auto channel = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {channel(one.red(), other.red()), channel(one.green(), other.green()), channel(one.blue(), other.blue())};
}

QColor textOn(const QColor& colour)
{
    return kontrast(Qt::white, colour) > kontrast(Qt::black, colour) ? Qt::white : Qt::black;
}

QColor lesbar(const QColor& text, const QColor& ground)
{
    return kontrast(text, ground) >= Textkontrast ? text : textOn(ground);
}

QColor abgesetzt(const QColor& ground, const QColor& text, double contrast)
{
    return firstBetween(ground, text, [&](const QColor& colour) { return kontrast(colour, ground) >= contrast; });
}

double kleinsterKontrast(const QColor& colour, std::initializer_list<QColor> grounds)
{
    double smallest = 21;
    for (const QColor& ground : grounds)
        smallest = std::min(smallest, kontrast(colour, ground));
    return smallest;
}

QColor abgehoben(const QColor& colour, std::initializer_list<QColor> grounds, double contrast)
{
    const bool lighten = kleinsterKontrast(Qt::white, grounds) > kleinsterKontrast(Qt::black, grounds);
    return firstBetween(colour, lighten ? Qt::white : Qt::black,
        [&](const QColor& moved) { return kleinsterKontrast(moved, grounds) >= contrast; });
}

} // namespace zerna
