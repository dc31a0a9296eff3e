#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "model/rechnung/Tabelle.h"
#include "model/rechnung/clsCalc.h"

/// The weighing of an alloy: masses of the components for a wanted total, and what weighed masses come to. All masses
/// are in milligrams, all results single precision; component 0 is the reference of every ratio, so a share or a mass
/// of 0 there is a division by zero even where the result would not need it. A component that has a share or was
/// weighed but has no atomic mass is error 5. Spans and results have one value per component of the alloy.
namespace zerna {

/// Mass of each component for a wanted total mass.
std::vector<float> sollmassen(const clsCalc& calc, int komponentenzahl, float gesamtmasse);

/// Mass of each component that goes with the mass weighed for component `referenz`, whose at% must not be 0.
std::vector<float> sollmassenZu(const clsCalc& calc, int komponentenzahl, int referenz, float masse);

/// The at% that weighed masses give, of which there is at least one.
std::vector<float> gewogeneAtomprozente(const clsCalc& calc, std::span<const float> massen);

/// Which component keeps masses or at% from being computed, and why.
struct Wiegehindernis {
    int komponente = 0;
    std::string grund; ///< in German, the rest of a sentence that begins with the component's name

    bool operator==(const Wiegehindernis&) const = default;
};

/// Why there are no target masses, or none that can be weighed.
std::optional<Wiegehindernis> sollmassenHindernis(const clsCalc& calc, int komponentenzahl);

/// Why at least one mass gives no at%; a mass may be Unbekannt.
std::optional<Wiegehindernis> atomprozentHindernis(const clsCalc& calc, std::span<const float> massen);

/// Deviation from the wanted at% up to which an alloy counts as weighed out.
inline constexpr float Abweichungstoleranz = 0.1F;

/// The share of each mass in their sum, in percent.
std::vector<float> massenprozente(std::span<const float> massen);

/// Sum in single precision.
float gesamtmasse(std::span<const float> massen);

/// The loss analysis: what composition is left when the whole loss falls on one component, for each of them. A
/// component for which that cannot be computed has the reason in place of the at%. Masses may be Unbekannt.
std::vector<std::string> verlustliste(const clsCalc& calc, std::span<const float> massen, float verlust);

/// The mass that a field's text came to; error 13 for a text that came to none.
float wiegezahl(float masse);

/// A computed mass as text: three decimals, or four significant digits where those would not tell it.
std::string massentext(float masse);

/// Per component symbol, at%, target mass in mg and mass percent, for other programs.
Tabelle wiegetabelle(const clsCalc& calc, int komponentenzahl, float gesamtmasse);

} // namespace zerna
