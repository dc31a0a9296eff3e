#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"
#include "model/eingabe/Anteilseinheit.h"
#include "model/eingabe/Eingabefeld.h"
#include "model/eingabe/Komponentenzeile.h"
#include "model/eingabe/Komposition.h"
#include "model/eingabe/Legierung.h"
#include "model/eingabe/Rohlegierung.h"

namespace zerna {

/// What an edit of the entered alloy has changed for those who compute with it.
struct Aenderung {
    bool anzahl = false; ///< the number of rows
    bool element = false;
    bool anteil = false; ///< at%
    bool dichte = false;
    bool valenz = false;

    bool operator==(const Aenderung&) const = default;
};

/// Why nothing can be drawn over compositions.
struct Hindernis {
    int zeile = 0; ///< of the first row that is to blame
    std::string grund; ///< in German
};

/// The entered alloy as a value: one to five rows of element, at%, density and valence, each text read once when it is
/// entered. The rows behind the last one keep what they hold. Operations take rows 0 to 4 and say what they changed.
///
/// The last row in use is the balance row: it takes what is missing to 100 %, and entering its own part changes nothing
/// that is computed. Rows of the same element share one density and one valence.
///
/// Parts are typed in einheit(), at% at first. Another unit shows the same parts converted and changes none of them:
/// they keep their texts in quelle(), the unit they were typed in, until one is edited (or a row comes, goes or takes
/// another element). Only then those shown become the typed ones. So going to the other unit and back never drifts, and
/// what is to be kept are both units and the texts of the rows; what is in the other unit follows.
class Eingabe {
public:
    /// Density (g/cm³) and valence in force for an element: those of the last texts that had a value.
    struct Arbeitswerte {
        float dichte = 0;
        std::string valenztext;
        float valenz = 0; ///< Unbekannt while its text gives none

        bool operator==(const Arbeitswerte&) const = default;
    };

    struct Zeile {
        std::shared_ptr<clsElement> element; ///< null until one is chosen
        Eingabefeld prozent; ///< its part as it was typed, in quelle()
        std::string dichtewahl; ///< one of dichteauswahl(), empty without an element
        Eingabefeld dichte; ///< g/cm³
        int valenzwahl = ValenzStandard; ///< code of the valence choice
        Eingabefeld valenz;
        Arbeitswerte inKraft; ///< for the element

        bool operator==(const Zeile&) const = default;
    };

    /// One row of 100 at%, without an element; the others prepared with their first at%.
    explicit Eingabe(const ElementCollection& elements);

    /// The alloy as it was kept, each text read again and balanced; 1 to 5 rows (error 9 outside). A row whose element
    /// the table does not have has its at% only.
    static Eingabe aus(const ElementCollection& elements, const Rohlegierung& roh);

    /// What is to be kept of it: aus() makes an equal one of that.
    Rohlegierung roh() const;

    /// Sets the number of rows, 1 to 5 (error 9 outside), and balances.
    Aenderung setAnzahl(int anzahl);

    /// Chooses an element by its key, with its first density and its standard valence. Nothing for an unknown key.
    Aenderung waehleElement(int zeile, std::string_view key);

    /// Has the parts typed in that unit from now on. Nothing that is computed changes.
    void setEinheit(Anteilseinheit einheit) { m_einheit = einheit; }

    /// Enters a part in einheit(). Nothing changes while one of the rows above the balance row is empty or no number.
    Aenderung setProzent(int zeile, std::string_view text);

    /// Takes a part in einheit() as it is given, the balance row's too.
    void setProzentOhneAusgleich(int zeile, std::string_view text);

    /// Writes the balance row's part again, over what was entered there.
    void gleicheAus();

    /// Chooses one of dichteauswahl(); "<andere>" begins at 0. Nothing for a row without an element.
    Aenderung waehleDichte(int zeile, std::string_view wahl);

    /// Chooses one of dichtearten() for all rows in use whose element has it; the others stay as they are.
    Aenderung waehleDichteart(std::string_view wahl);

    /// The symbols of the elements in use that do not have a density of that choice.
    std::vector<std::string> ohneDichte(std::string_view wahl) const;

    /// The density choice of all rows in use; empty if they differ.
    std::string gemeinsameDichtewahl() const;

    /// Chooses a valence by its code; ValenzAndere begins at 0. Nothing for a row without an element.
    Aenderung waehleValenz(int zeile, int wahl);

    /// Enters a density; a text that is no number leaves the last one in force.
    /// Intended: the value goes to the element looked up last, see nachschlagen, whatever the row.
    Aenderung setDichte(int zeile, std::string_view text);

    /// Enters a valence, a number or a formula; goes to the element looked up last, like a density.
    Aenderung setValenz(int zeile, std::string_view text);

    /// Gives a row the density and the valence of another one of the same element: choices, texts and what is in force,
    /// which an unreadable text does not tell.
    void setDichteUndValenz(int zeile, const Zeile& from);

    /// Looks the row's element up, so that entered densities and valences go to it; choosing anything does so, too.
    void nachschlagen(int zeile);
    const std::shared_ptr<clsElement>& CurrentElement() const { return m_nachgeschlagen.element; }
    void setCurrentElement(std::shared_ptr<clsElement> element) { m_nachgeschlagen.element = std::move(element); }

    int anzahl() const { return m_anzahl; }
    const Zeile& zeile(int zeile) const { return m_zeilen.at(static_cast<std::size_t>(zeile)); }
    bool istAusgleich(int zeile) const { return zeile == m_anzahl - 1; }

    Anteilseinheit einheit() const { return m_einheit; }
    Anteilseinheit quelle() const { return m_quelle; }

    /// The part in quelle() that counts: what stands in the row, but the rest for the balance row, whatever is entered
    /// there.
    const Eingabefeld& anteilInKraft(int zeile) const
    {
        return istAusgleich(zeile) ? m_rest : this->zeile(zeile).prozent;
    }

    /// The at% that is computed with; a fault while there is none.
    const Eingabefeld& prozentInKraft(int zeile) const
    {
        const auto i = static_cast<std::size_t>(zeile);
        return i < m_atomprozente.size() ? m_atomprozente[i] : anteilInKraft(zeile);
    }

    /// What the rows in use show in a unit: what was typed in it, or the parts converted.
    std::vector<Eingabefeld> anteile(Anteilseinheit einheit) const;

    /// Whether all rows in use have an element and a readable at%.
    bool istVollstaendig() const;

    /// The rows in use as numbers, an unreadable at% as Unbekannt; no value while a row has no element.
    std::optional<Legierung> legierung() const;

    /// The same into an alloy that is there, whether or not each row has an element.
    void writeTo(Legierung& legierung) const;

    /// What keeps a diagram over compositions from being computed; no value if nothing does.
    std::optional<Hindernis> hindernis() const;

    /// The rows in use as the results text names them, with what is computed with, numbers with a comma and no needless
    /// digits however they were typed; those without an element are left out.
    std::vector<Komponentenzeile> komponentenzeilen() const;

    /// Gives the elements of all rows the density and the valence text that are in force for them.
    void elementeSetzen();

    /// Whether the same is entered.
    bool operator==(const Eingabe&) const = default;

private:
    /// The element looked up last, maybe null. It only says where the next text goes, so it makes no difference.
    struct Nachgeschlagen {
        std::shared_ptr<clsElement> element;
        bool operator==(const Nachgeschlagen&) const { return true; }
    };

    std::span<const Zeile> zeilen() const { return std::span(m_zeilen).first(static_cast<std::size_t>(m_anzahl)); }
    Zeile& at(int zeile) { return m_zeilen.at(static_cast<std::size_t>(zeile)); }
    std::vector<Eingabefeld> converted(Anteilseinheit einheit) const;
    bool adoptShown(bool always);
    void convert();
    bool balance();
    bool writeRest();
    void takeRest(std::string_view text);
    void writeDichte(int zeile, Eingabefeld feld);
    void writeValenz(int zeile, Eingabefeld feld);
    void mirror(int zeile);

    const ElementCollection* m_elements;
    int m_anzahl = 1;
    std::array<Zeile, MaxKomponenten> m_zeilen;
    Eingabefeld m_rest; // the balance row's part, which what is entered there does not change
    Anteilseinheit m_einheit = Anteilseinheit::Atom;
    Anteilseinheit m_quelle = Anteilseinheit::Atom;
    std::vector<Eingabefeld> m_atomprozente; // of the rows in use, while mass % were typed
    Nachgeschlagen m_nachgeschlagen;
};

} // namespace zerna
