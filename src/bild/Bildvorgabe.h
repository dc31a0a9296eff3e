#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "bild/Bildstil.h"
#include "core/Settings.h"

namespace zerna {

enum class Bildart { PNG, SVG, PDF };

/// How a picture is to look that leaves the program, a figure of a paper for one.
struct Bildvorgabe {
    double breite = 175; ///< mm
    double hoehe = 115; ///< mm
    std::string schrift = "DejaVu Sans"; ///< family
    double schriftgroesse = 9; ///< pt
    double linienbreite = 1; ///< of curves, pt
    double aufloesung = 300; ///< dots per inch of a PNG picture, and of surfaces within the other kinds
    bool grau = false;
    bool titel = true;
    bool legende = true;
    bool rundeTeilung = true;
    Dezimaltrenner dezimal = Dezimaltrenner::Komma;
    Bildart art = Bildart::PNG;

    bool operator==(const Bildvorgabe&) const = default;
};

/// The usual widths of one and of two columns of a paper, mm.
inline constexpr double Einspaltig = 85;
inline constexpr double Zweispaltig = 175;

/// The least height at which a picture of one column has all its texts, mm.
inline constexpr double EinspaltigeHoehe = 65;

/// One of the numbers: what it is called, its key among the settings, its unit and its limits.
struct Bildmass {
    std::string_view name;
    std::string_view schluessel;
    std::string_view einheit;
    double kleinstes = 0;
    double groesstes = 0;
    double Bildvorgabe::*wert = nullptr;
};

/// Width, height, font size, line width and resolution, in this order.
std::span<const Bildmass> bildmasse();

/// A typed number within the limits; no value for any other text.
std::optional<double> masszahl(const Bildmass& mass, std::string_view text);

/// What is expected of a number: "erwartet wird eine Zahl von 20 bis 500 mm".
std::string erwartung(const Bildmass& mass);

/// Why such a picture is too large, a sentence; empty if it is not.
std::string zuGross(const Bildvorgabe& vorgabe);

/// Logical pixels to the inch of a picture.
inline constexpr double PixelJeZoll = 96;

/// A length in logical pixels.
constexpr double pixelAusMillimeter(double millimetres) { return millimetres / 25.4 * PixelJeZoll; }
constexpr double pixelAusPunkt(double points) { return points / 72 * PixelJeZoll; }

Bildstil stilNach(const Bildvorgabe& vorgabe);

/// The settings that were remembered last; the default for each that cannot be used.
Bildvorgabe gemerkteBildvorgabe(const Settings& settings);

/// Remembers what has changed.
void merkeBildvorgabe(Settings& settings, const Bildvorgabe& vorgabe);

} // namespace zerna
