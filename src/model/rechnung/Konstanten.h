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

/// Constants that the calculator holds as singles.
inline constexpr double Elementarladung = 1.6021765e-19; ///< C
inline constexpr double Elektronmasse = 9.109382e-31; ///< kg
inline constexpr double Feldkonstante = 8.854188e-12; ///< As/(Vm)
inline constexpr double PlanckReduziert = 1.0545716e-34; ///< Js
inline constexpr double Boltzmann = 1.38065e-23; ///< J/K

inline constexpr double KubiknanometerInKubikmeter = 1e-27;
inline constexpr double NanometerInMeter = 1e-9;

} // namespace zerna
