#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QPalette>

#include "bild/Farbskala.h"
#include "ui/platform/Kontrast.h"

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

/// Lines that hatch a ground, and signs on it beside a text that matters more.
inline QColor linienfarbe(const QColor& ground, const QColor& text) { return abgesetzt(ground, text, Grafikkontrast); }
inline QColor zeichenfarbe(const QColor& ground, const QColor& text) { return abgesetzt(ground, text, Textkontrast); }

/// The colour of the frame around what has the focus, on a ground of that palette or on any other.
inline QColor fokusfarbe(const QPalette& palette, const QColor& ground)
{
    return abgehoben(palette.color(QPalette::Active, QPalette::Highlight), {ground}, Grafikkontrast);
}

/// Whether a palette shows light texts on a dark ground.
inline bool istDunkel(const QPalette& palette, QPalette::ColorRole ground = QPalette::Window)
{
    return palette.color(ground).lightness() < 128;
}

/// Of two colours the one for that ground, legible on it.
inline QColor markenfarbe(
    const QPalette& palette, QPalette::ColorRole ground, const QColor& onLight, const QColor& onDark)
{
    return abgehoben(istDunkel(palette, ground) ? onDark : onLight, {palette.color(ground)}, Textkontrast);
}

/// A text colour for what does not count at the moment, legible all the same.
inline QColor abgeschwaecht(const QPalette& palette)
{
    return gemischt(
        palette.color(QPalette::Active, QPalette::Window), palette.color(QPalette::Active, QPalette::WindowText), 0.6);
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
