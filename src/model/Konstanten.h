#pragma once

/// Constants that stand in the formulas themselves.
namespace zerna {

inline constexpr double Pi = 3.1415927; // Intended: eight digits, everywhere in the model

/// Joule per electronvolt. Intended: not the elementary charge of the calculator; both are used, each in its place.
inline constexpr double ElektronvoltInJoule = 1.60217646e-19;

/// Particles per mole times cm³ per m³: over a molar volume in cm³/mol it gives particles per m³.
inline constexpr double AvogadroProKubikmeter = 6.022142e29;

/// Intended: other last digits than above; pure elements are computed with it.
inline constexpr double AvogadroProMol = 6.022136e23;

inline constexpr double KubiknanometerInKubikmeter = 1e-27;
inline constexpr double NanometerInMeter = 1e-9;

} // namespace zerna
