#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"
#include "core/Unbekannt.h"
#include "model/eingabe/Legierung.h"
#include "parser/clsParser.h"

namespace zerna {

/// The alloy under study: up to five components and the free-electron quantities that follow from them.
///
/// Hand a whole alloy over with Legierung_Setzen. Or set the component count that was handed over, then call
/// Element_Add for 0, 1, … in order; each call recalculates, and only the state after the last one counts. Or write
/// Teilchenzahldichte and Valenz directly.
///
/// In the formulas N is the particle number density in 1/m³, z the mean valence and n_e = z·N. Members that "answer
/// Unbekannt" or 0 do so on any run-time error; the others let it reach their caller.
class clsCalc {
public:
    /// `komponentenzahl` is the program-wide count of components that a recalculation visits.
    clsCalc(const ElementCollection& elements, const int& komponentenzahl, clsParser& parser);

    /// Space filling: spheres whose diameter is the first Friedel-minimum radius, as a fraction. 0 on error.
    float Raumausfuellung() const;

    /// Density of states at the Fermi level, 3/2·z/E_F, in states per eV and atom. 0 on error.
    float D_EF() const;

    float Fermitemperatur() const; ///< E_F/k_B in K; throws
    float Energie_Elektron() const; ///< mean energy per electron, 3/5·E_F, in eV; throws

    /// Energy of the electron system per volume; throws.
    /// Intended: joule per m³ times 1.60217646e-10, although it is labelled eV/nm³.
    float Energie_El_System() const;

    /// 2/3·n·E_F; throws.
    /// Intended: n in 1/nm³ and E_F in joule, although it is labelled N/m².
    float Kompressionsmodul() const;

    /// Mass (g/mol), name, symbol and at% of component `index`, 0 to 4; 0 or empty on error.
    float Element_Masse(int index) const;
    std::string Element_Name(int index) const;
    std::string Element_Symbol(int index) const;
    float Element_Prozente(int index) const;

    float Dichte() const { return m_dichte; } ///< g/cm³, mean of the component densities by at%

    /// Puts the element of that key and its at% into slot `index` and recalculates. Error 5 for an unknown key, error 9
    /// for an index outside 0 to 4.
    void Element_Add(int index, std::string_view key, float prozent);

    /// Takes one to five components with their numbers and calculates once. Error 9 for any other count.
    void Legierung_Setzen(std::span<const Legierungskomponente> komponenten);

    float Fermienergie() const; ///< E_F in eV; answers Unbekannt
    float HallKoeffizient() const; ///< −1/(e·n_e) in m³/As; answers Unbekannt

    /// Thermopower over temperature, −π²k_B²/(e·E_F), in V/K²; answers Unbekannt.
    /// Intended: twice the usual free-electron value.
    float Thermokraft() const;

    /// Twice the Fermi wave number in 1/nm.
    float Kf_2() const
    {
        if (m_kf2IsDue)
            Kf_2_Berechnen();
        return m_kf2;
    }
    void setKf_2(float perNanometre)
    {
        m_kf2 = perNanometre;
        m_kf2IsDue = false;
    }

    float Plasmonenenergie() const; ///< eV; answers Unbekannt

    /// N in 1/nm³; throws.
    float Teilchenzahldichte() const;
    /// Intended: written in 1/m³, unlike what is read. Refreshes Kf_2.
    void setTeilchenzahldichte(float perCubicMetre);

    /// Whether N is known: what is read of it is no marker any more.
    bool hatTeilchenzahldichte() const { return !istUnbekannt(m_teilchenzahldichte); }

    float Valenz() const { return m_valenz; } ///< z, electrons per atom
    void setValenz(float electronsPerAtom); ///< refreshes Kf_2

    /// Both base quantities at once (N in 1/m³): for stepping through many compositions. Kf_2 follows when it is read.
    void setBasis(float perCubicMetre, float electronsPerAtom);

    float Atomvolumen() const; ///< 1/N in m³; answers Unbekannt
    float Elektrondichte() const; ///< n_e in 1/nm³; answers Unbekannt

    /// 2π/2kF in nm; answers Unbekannt.
    /// Intended: an unknown Kf_2 is not looked at, only N.
    float Friedelwellenlaenge() const;

    /// Radius of Friedel minimum n, (n + 5/4)·λ, in nm; n = 0 is the first. Unbekannt if λ is; throws on overflow.
    float Friedelminima(int n) const;

private:
    /// The last valence text of a slot and what it came to: recalculations by far outnumber edits. A formula comes to
    /// the same as long as it finds the same elements and they have the valences that it took.
    struct GeleseneValenz {
        std::string text;
        float valenz = 0;
        std::size_t stand = 0; // of the elements
        std::vector<Valenzbezug> bezuege;
        bool istGelesen = false;

        bool gilt(std::string_view heute, std::size_t heutigerStand) const;
    };

    /// The Fermi energy (eV) of the electron density (1/m³) that it was asked for last.
    struct Fermi {
        double elektronendichte = -1;
        float fermienergie = Unbekannt;
    };

    void Neu_Berechnen();
    void berechne(std::span<const Legierungskomponente> komponenten);
    void berechnungGescheitert();
    void Class_Initialize();
    void Kf_2_Berechnen() const;
    const clsElement* elementAt(int index) const;
    float valenzOf(const clsElement& element, GeleseneValenz& gelesen);
    double electronDensity() const { return static_cast<double>(m_valenz) * m_teilchenzahldichte; } // n_e, 1/m³
    bool hasParticles() const;

    const ElementCollection& m_elements;
    const int& m_komponentenzahl;
    clsParser& m_parser;
    float m_elementarladung = 0; // C
    float m_elektronmasse = 0; // kg
    float m_feldkonstante = 0; // As/(Vm)
    float m_planck = 0; // reduced, Js
    float m_boltzmann = 0; // J/K
    float m_plasmonFactor = 0; // eV·m^(3/2)
    float m_kf2Factor = 0; // m/nm
    float m_fermiFactor = 0; // eV·m²
    float m_thermoFactor = 0; // V/K²·m²
    float m_hallFactor = 0; // 1/(As)
    double m_systemFactor = 0; // of the energy of the electron system, kg^(3/2)/(Js)³
    float m_teilchenzahldichte = 0; // N, 1/m³
    float m_valenz = 0; // z
    float m_dichte = 0; // g/cm³
    std::array<Legierungskomponente, MaxKomponenten> m_komponenten;
    std::array<GeleseneValenz, MaxKomponenten> m_gelesen; // of Element_Add
    mutable float m_kf2 = 0; // 1/nm
    mutable bool m_kf2IsDue = false; // computed when it is read
    mutable Fermi m_lastFermi; // several quantities are made of it
};

} // namespace zerna
