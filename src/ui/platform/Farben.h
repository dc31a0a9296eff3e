#pragma once

#include <QColor>
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

/// Whether a palette shows light texts on a dark ground.
inline bool istDunkel(const QPalette& palette, QPalette::ColorRole ground = QPalette::Window)
{
    return palette.color(ground).lightness() < 128;
}

} // namespace zerna
