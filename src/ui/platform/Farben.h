#pragma once

#include <QColor>

#include "bild/Farbskala.h"

namespace zerna {

inline QColor toQt(const Farbe& farbe) { return {farbe.red, farbe.green, farbe.blue}; }

/// The colour without its opacity.
inline Farbe fromQt(const QColor& colour)
{
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
        static_cast<std::uint8_t>(colour.blue())};
}

} // namespace zerna
