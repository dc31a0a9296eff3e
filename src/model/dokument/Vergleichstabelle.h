#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/Zahlentext.h"
#include "model/dokument/Dokument.h"
#include "model/rechnung/Tabelle.h"
#include "model/rechnung/clsCalc.h"

namespace zerna {

/// What is shown of the alloys: their values, or how they differ from the reference, absolute or in percent of its
/// value.
enum class Vergleichsart { Wert, Differenz, Prozent };

/// The kept alloys side by side: a column for each, a line for each quantity. First the at% of all elements that occur
/// in one of them, then the results in their order, then mass %, densities and valences of the elements. An alloy is
/// computed when it comes; an alloy that cannot be computed has no results.
class Vergleichstabelle {
public:
    struct Zeile {
        std::string name; ///< "Fermienergie", "Anteil Al"
        std::string einheit;
        bool istErgebnis = false; ///< else what was entered

        bool operator==(const Zeile&) const = default;
    };

    /// Takes the alloys and computes those that it does not have yet, on a copy of `calc`.
    void setze(const Vergleich& vergleich, const clsCalc& calc);

    const std::vector<Zeile>& zeilen() const { return m_zeilen; }
    std::size_t spaltenzahl() const { return m_spalten.size(); }
    const std::string& name(std::size_t spalte) const { return m_spalten.at(spalte).name; }

    /// The column that the others are compared with.
    std::size_t referenz() const { return m_referenz; }
    bool istReferenz(std::size_t spalte) const { return spalte == m_referenz; }

    /// Unbekannt for what is not known. The reference has its values whatever is shown; the others differ from them, to
    /// the seventh digit of the greater one, since no more is known. Percents are of the reference's value with its
    /// sign (of a negative one +5 % are 5 % more negative); in percent of 0 nothing is known.
    float wert(std::size_t zeile, std::size_t spalte, Vergleichsart art) const;

    /// As it is shown: values like the results without their unit, differences with their sign; empty if unknown.
    std::string anzeige(std::size_t zeile, std::size_t spalte, Vergleichsart art) const;

    /// With all digits; empty if unknown.
    std::string zahl(
        std::size_t zeile, std::size_t spalte, Vergleichsart art, Dezimaltrenner trenner = Dezimaltrenner::Komma) const;

    /// All of it for other programs; the columns say what they hold.
    Tabelle tabelle(Vergleichsart art, Dezimaltrenner trenner) const;

private:
    struct Bestandteil {
        std::string symbol;
        float atome = 0; // at%
        float masse = 0; // mass %
        float dichte = 0; // g/cm³
        float valenz = 0;
    };

    struct Spalte {
        std::string name;
        Eingabe eingabe;
        std::vector<Bestandteil> bestandteile; // by element
        std::vector<float> ergebnisse; // by result line
        std::vector<float> werte = {}; // by line of the table
    };

    static Spalte berechnet(const Variante& variante, clsCalc& calc);
    void ordneZeilen();

    std::vector<Zeile> m_zeilen;
    std::vector<Spalte> m_spalten;
    std::size_t m_referenz = 0;
};

} // namespace zerna
