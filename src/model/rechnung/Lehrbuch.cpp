#include "model/rechnung/Lehrbuch.h"

#include <algorithm>
#include <numbers>

#include "core/CheckedArithmetic.h"
#include "model/rechnung/Groessen.h"
#include "model/rechnung/Konstanten.h"

namespace zerna {

namespace {

using Rechner = const clsCalc&;
using Komponenten = std::span<const Legierungskomponente>;

constexpr Naturkonstante Ladung{"e", Elementarladung, "C"};
constexpr Naturkonstante Masse{"m", Elektronmasse, "kg"};
constexpr Naturkonstante Epsilon{"ε₀", Feldkonstante, "As/(Vm)"};
constexpr Naturkonstante Wirkung{"ħ", PlanckReduziert, "Js"};
constexpr Naturkonstante Kelvin{"k_B", Boltzmann, "J/K"};
constexpr Naturkonstante Avogadro{"N_A", AvogadroProKubikmeter * 1e-6, "1/mol"};
constexpr Naturkonstante Elektronvolt{"1 eV", ElektronvoltInJoule, "J"};

/// eV per nm³ is as much pressure.
constexpr double GigapascalProEvProNm3 = ElektronvoltInJoule / KubiknanometerInKubikmeter * 1e-9;

/// Result lines that the textbook's values are made of.
constexpr int Dichtezeile = 2;
constexpr int Volumenzeile = 3;
constexpr int Fermizeile = 7;
constexpr int Elektronenzeile = 11;

/// The value itself; error 5 if it is unknown.
double known(float value)
{
    if (istUnbekannt(value))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return value;
}

/// A result in its line's unit; error 5 if it is unknown.
double ergebnis(int zeile, Rechner calc) { return known(wert(ergebniszeile(zeile), calc)); }

/// The mass of the alloy over its volume, both of as many particles.
float dichteNachMasse(Rechner calc, Komponenten komponenten)
{
    ergebnis(Dichtezeile, calc);
    double masse = 0;
    double volumen = 0;
    for (const Legierungskomponente& k : komponenten) {
        if (k.prozent == 0)
            continue;
        const double anteil = k.prozent * known(k.element->Masse());
        masse += anteil;
        volumen += quotient(anteil, known(k.dichte));
    }
    return toSingle(quotient(masse, volumen));
}

float atomvolumen(Rechner calc, Komponenten)
{
    return toSingle(ergebnis(Volumenzeile, calc) / KubiknanometerInKubikmeter);
}

/// Thermopower over temperature of free electrons with a relaxation time that does not depend on energy: Ashcroft and
/// Mermin, Solid State Physics (1976), equation 2.94.
float thermokraft(Rechner calc, Komponenten)
{
    constexpr double BoltzmannInElektronvolt = Boltzmann / ElektronvoltInJoule; // per K; over e it is V/K
    return toSingle(-std::numbers::pi * std::numbers::pi / 2 * BoltzmannInElektronvolt * BoltzmannInElektronvolt
        * quotient(1, ergebnis(Fermizeile, calc)));
}

/// Energy per volume in the ground state: Ashcroft and Mermin, equations 2.28 to 2.31.
float energiedichte(Rechner calc, Komponenten)
{
    return toSingle(3.0 / 5.0 * ergebnis(Elektronenzeile, calc) * ergebnis(Fermizeile, calc));
}

/// Bulk modulus: Ashcroft and Mermin, equation 2.36.
float kompressionsmodul(Rechner calc, Komponenten)
{
    return toSingle(2.0 / 3.0 * ergebnis(Elektronenzeile, calc) * ergebnis(Fermizeile, calc) * GigapascalProEvProNm3);
}

/// In the order of the result lines. Formulas: Ashcroft and Mermin, chapters 1 (Hall coefficient, plasma frequency)
/// and 2.
constexpr std::array Lehrbuchtabelle{
    Lehrbucheintrag{.zeile = 0, .formel = "z = Σ x_i·z_i"},
    Lehrbucheintrag{.zeile = 1, .formel = "N = N_A / Σ (x_i·M_i/ρ_i)", .konstanten = {&Avogadro}},
    Lehrbucheintrag{.zeile = 2,
        .formel = "ρ = Σ x_i·ρ_i",
        .lehrbuchformel = "ρ = Σ x_i·M_i / Σ (x_i·M_i/ρ_i)",
        .einheit = "g/cm³",
        .rechnung = dichteNachMasse,
        .grund = "Die angezeigte Dichte ist nach at% gemittelt. Die Dichte der Legierung ist Masse durch Volumen; zu "
                 "ihr passen Teilchenzahldichte und Atomvolumen. Die angezeigte geht in keine andere Größe ein.",
        .diagrammgrund = "Die gezeichnete Dichte ist nach at% gemittelt; über den at% einer Komponente (2 D) haben "
                         "zudem alle übrigen gleiche Teile am Rest. Die Dichte der Legierung ist Masse durch Volumen."},
    Lehrbucheintrag{.zeile = 3,
        .formel = "V_A = 1/N",
        .lehrbuchformel = "V_A = 1/N",
        .einheit = "nm³",
        .rechnung = atomvolumen,
        .diagrammgrund = "Angeschrieben ist nm³, die Zahlen stehen in m³. Mit 10²⁷ malgenommen sind es nm³."},
    Lehrbucheintrag{.zeile = 4, .formel = "R_H = −1/(n·e)", .konstanten = {&Ladung}},
    Lehrbucheintrag{.zeile = 5,
        .formel = "S/T = −π²·k_B²/(e·E_F)",
        .konstanten = {&Kelvin, &Ladung, &Wirkung, &Masse},
        .lehrbuchformel = "S/T = −π²·k_B²/(2·e·E_F)",
        .einheit = "V/K²",
        .rechnung = thermokraft,
        .grund = "Die angezeigte Thermokraft (durch die Temperatur geteilt) ist doppelt so groß wie die freier "
                 "Elektronen mit einer Stoßzeit, die nicht von der Energie abhängt.",
        .diagrammgrund = "Die gezeichnete Thermokraft (durch die Temperatur geteilt) ist doppelt so groß wie die "
                         "freier Elektronen mit einer Stoßzeit, die nicht von der Energie abhängt."},
    Lehrbucheintrag{
        .zeile = 6, .formel = "ħω_P = ħ·√(n·e²/(ε₀·m))", .konstanten = {&Wirkung, &Ladung, &Epsilon, &Masse}},
    Lehrbucheintrag{
        .zeile = 7, .formel = "E_F = ħ²/(2·m)·(3·π²·n)^(2/3)", .konstanten = {&Wirkung, &Masse, &Elektronvolt}},
    Lehrbucheintrag{.zeile = 8, .formel = "2·k_F = 2·(3·π²·n)^(1/3)"},
    Lehrbucheintrag{.zeile = 9, .formel = "λ = 2·π/(2·k_F)"},
    Lehrbucheintrag{.zeile = 10, .formel = "r(n) = (n + 1/4)·λ, n = 1, 2, … zählt die Minima"},
    Lehrbucheintrag{.zeile = 11, .formel = "n = z·N"},
    Lehrbucheintrag{.zeile = 13, .formel = "π/6·(5/4·λ)³·N"},
    Lehrbucheintrag{.zeile = 14, .formel = "D(E_F) = 3·z/(2·E_F)"},
    Lehrbucheintrag{.zeile = 15, .formel = "T_F = E_F/k_B", .konstanten = {&Kelvin, &Elektronvolt}},
    Lehrbucheintrag{.zeile = 16, .formel = "E/Z = 3/5·E_F (Z: Zahl der Elektronen)"},
    Lehrbucheintrag{.zeile = 17,
        .formel = "3/5·n·E_F in J/m³, mal 1,60217646·10⁻¹⁰",
        .konstanten = {&Wirkung, &Masse, &Elektronvolt},
        .lehrbuchformel = "E/V = 3/5·n·E_F",
        .einheit = "eV/nm³",
        .rechnung = energiedichte,
        .grund = "Die angezeigte Zahl ist die Energie je Volumen in J/m³, mit 1,60217646·10⁻¹⁰ malgenommen. Die "
                 "Aufschrift eV/nm³ passt nicht dazu; die Energie in eV/nm³ ist 38,956-mal so groß wie die Zahl."},
    Lehrbucheintrag{.zeile = 18,
        .formel = "2/3·n·E_F mit n in 1/nm³ und E_F in J",
        .konstanten = {&Wirkung, &Masse, &Elektronvolt},
        .lehrbuchformel = "K = 2/3·n·E_F",
        .einheit = "GPa",
        .rechnung = kompressionsmodul,
        .grund = "Die angezeigte Zahl steht in J/nm³. Die Aufschrift N/m² passt nicht dazu: Mit 10²⁷ malgenommen sind "
                 "es N/m², mit 10¹⁸ Gigapascal."},
};

} // namespace

const Lehrbucheintrag* findLehrbuch(int zeile)
{
    const auto* const found = std::ranges::find(Lehrbuchtabelle, zeile, &Lehrbucheintrag::zeile);
    return found == Lehrbuchtabelle.end() ? nullptr : found;
}

const Lehrbucheintrag* abweichungImErgebnis(int zeile)
{
    const Lehrbucheintrag* const eintrag = findLehrbuch(zeile);
    return eintrag != nullptr && !eintrag->grund.empty() ? eintrag : nullptr;
}

const Lehrbucheintrag* abweichungImDiagramm(int zeile)
{
    const Lehrbucheintrag* const eintrag = findLehrbuch(zeile);
    return eintrag != nullptr && !eintrag->diagrammgrund.empty() ? eintrag : nullptr;
}

float lehrbuchwert(
    const Lehrbucheintrag& eintrag, const clsCalc& calc, std::span<const Legierungskomponente> komponenten)
{
    return orUnbekannt([&] { return eintrag.rechnung == nullptr ? Unbekannt : eintrag.rechnung(calc, komponenten); });
}

} // namespace zerna
