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

/// Whether a palette shows light texts on a dark ground.
inline bool istDunkel(const QPalette& palette, QPalette::ColorRole ground = QPalette::Window)
{
    return palette.color(ground).lightness() < 128;
}

} // namespace zerna
