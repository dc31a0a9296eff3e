#pragma once

#include <QColor>

#include <initializer_list>

/// Colours that can be told apart, by the contrast that accessibility guidelines define, 1 to 21.
namespace zerna {

/// What texts, and what lines and signs need against their ground.
inline constexpr double Textkontrast = 4.5;
inline constexpr double Grafikkontrast = 3.0;

/// The contrast of two opaque colours.
double kontrast(const QColor& a, const QColor& b);

/// Share 0 gives the one, 1 the other colour.
QColor gemischt(const QColor& one, const QColor& other, double share);

/// Black or white, whichever is easier to read on the colour.
QColor textOn(const QColor& colour);

/// The text colour where it can be read on the ground, else black or white.
QColor lesbar(const QColor& text, const QColor& ground);

/// The colour closest to a ground, on the way to that of its texts, that has a contrast to it.
QColor abgesetzt(const QColor& ground, const QColor& text, double contrast);

/// The smallest contrast of a colour to one of the grounds.
double kleinsterKontrast(const QColor& colour, std::initializer_list<QColor> grounds);

/// The colour, moved no further towards black or white than it takes to have that contrast to all grounds.
QColor abgehoben(const QColor& colour, std::initializer_list<QColor> grounds, double contrast);

} // namespace zerna
