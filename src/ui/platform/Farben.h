#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QPalette>

#include "bild/Farbskala.h"

namespace zerna {

inline QColor toQt(const Farbe& farbe) { return {farbe.red, farbe.green, farbe.blue}; }

/// The colour without its opacity.
inline Farbe fromQt(const QColor& colour)
{
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
        static_cast<std::uint8_t>(colour.blue())};
}

/// The colour scale from its beginning to its end.
inline QLinearGradient farbverlauf(const QPointF& from, const QPointF& to)
{
    constexpr int Stops = 17; // between which the colours are as good as linear
    QLinearGradient gradient(from, to);
    for (int i = 0; i < Stops; ++i)
        gradient.setColorAt(i / (Stops - 1.0), toQt(farbskala(i / (Stops - 1.0))));
    return gradient;
}

/// The contrast of two colours as accessibility guidelines define it, 1 to 21: texts need 4.5, graphics 3.
inline double kontrast(const QColor& a, const QColor& b)
{
    const double first = leuchtdichte(fromQt(a)) + 0.05;
    const double second = leuchtdichte(fromQt(b)) + 0.05;
    return first > second ? first / second : second / first;
}

/// Black or white, whichever is easier to read on the colour.
inline QColor textOn(const QColor& colour)
{
    constexpr double EqualContrast = 0.179;
    return leuchtdichte(fromQt(colour)) > EqualContrast ? Qt::black : Qt::white;
}

/// The text colour where it can be read on the ground, else black or white.
inline QColor lesbar(const QColor& text, const QColor& ground)
{
    constexpr double Texts = 4.5;
    return kontrast(text, ground) >= Texts ? text : textOn(ground);
}

/// The colour closest to a ground on the way to that of its texts that has a contrast to it.
inline QColor abgesetzt(const QColor& ground, const QColor& text, double contrast)
{
    constexpr int Steps = 64;
    const auto mixed = [](int from, int to, int step) { return from + (to - from) * step / Steps; };
    for (int step = 1; step < Steps; ++step) {
        const QColor colour(mixed(ground.red(), text.red(), step), mixed(ground.green(), text.green(), step),
            mixed(ground.blue(), text.blue(), step));
        if (kontrast(colour, ground) >= contrast)
            return colour;
    }
    return text;
}

/// Lines that hatch a ground, and signs on it beside a text that matters more.
inline QColor linienfarbe(const QColor& ground, const QColor& text) { return abgesetzt(ground, text, 3.1); }
inline QColor zeichenfarbe(const QColor& ground, const QColor& text) { return abgesetzt(ground, text, 4.5); }

/// The colour of the frame around what has the focus, on a ground of that palette or on any other.
inline QColor fokusfarbe(const QPalette& palette, const QColor& ground)
{
    constexpr double Graphics = 3.1;
    const QColor colour = palette.color(QPalette::Active, QPalette::Highlight);
    if (kontrast(colour, ground) >= Graphics)
        return colour;
    const QColor pole = leuchtdichte(fromQt(ground)) > 0.18 ? Qt::black : Qt::white;
    for (int share = 1; share < 16; ++share) {
        const auto mixed = [share](int from, int to) { return from + (to - from) * share / 16; };
        const QColor moved(
            mixed(colour.red(), pole.red()), mixed(colour.green(), pole.green()), mixed(colour.blue(), pole.blue()));
        if (kontrast(moved, ground) >= Graphics)
            return moved;
    }
    return pole;
}

/// Whether a palette shows light texts on a dark ground.
inline bool istDunkel(const QPalette& palette, QPalette::ColorRole ground = QPalette::Window)
{
    return palette.color(ground).lightness() < 128;
}

/// What texts and marks need against their ground.
inline constexpr double Textkontrast = 4.5;

/// The colour, moved no further towards black or white than it takes to have that contrast to a ground.
inline QColor abgehoben(const QColor& colour, const QColor& ground, double contrast)
{
    constexpr int Steps = 64;
    const int pole = kontrast(Qt::white, ground) > kontrast(Qt::black, ground) ? 255 : 0;
    const auto mixed = [pole](int from, int step) { return from + (pole - from) * step / Steps; };
    for (int step = 0; step < Steps; ++step) {
        const QColor moved(mixed(colour.red(), step), mixed(colour.green(), step), mixed(colour.blue(), step));
        if (kontrast(moved, ground) >= contrast)
            return moved;
    }
    return {pole, pole, pole};
}

/// Of two colours the one for that ground, legible on it.
inline QColor markenfarbe(
    const QPalette& palette, QPalette::ColorRole ground, const QColor& onLight, const QColor& onDark)
{
    return abgehoben(istDunkel(palette, ground) ? onDark : onLight, palette.color(ground), Textkontrast);
}

/// A text colour for what does not count at the moment, legible all the same.
inline QColor abgeschwaecht(const QPalette& palette)
{
    constexpr float Share = 0.6F;
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const auto mixed = [](float a, float b) { return a * Share + b * (1 - Share); };
    return QColor::fromRgbF(
        mixed(text.redF(), ground.redF()), mixed(text.greenF(), ground.greenF()), mixed(text.blueF(), ground.blueF()));
}

/// A red for what is wrong, as text and as frame, that stands out on light and on dark grounds.
inline QColor fehlerfarbe(const QPalette& palette, QPalette::ColorRole ground = QPalette::Window)
{
    return markenfarbe(palette, ground, QColor(190, 20, 20), QColor(255, 107, 107));
}

/// An amber for what is odd, likewise.
inline QColor bedenkenfarbe(const QPalette& palette, QPalette::ColorRole ground = QPalette::Window)
{
    return markenfarbe(palette, ground, QColor(140, 78, 0), QColor(255, 190, 92));
}

/// Colours of diagrams, which are on white: the cursor, the alloy's own composition, the at% along an edge.
inline constexpr QColor Cursorfarbe(200, 60, 0);
inline constexpr QColor Legierungsfarbe(200, 30, 30);
inline constexpr QColor Teilungsfarbe(70, 70, 70);

} // namespace zerna
