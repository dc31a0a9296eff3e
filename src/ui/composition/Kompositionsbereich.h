#pragma once

#include <QWidget>

#include <array>
#include <string>

#include "model/rechnung/Befund.h"
#include "programm/Programm.h"
#include "ui/controls/Schritt.h"

class QLabel;
class QStandardItemModel;

namespace zerna {

class Anteilskoepfe;
class Dichteschalter;
class Formelfeld;
class Kompositionszeile;
class Menue;
class Legierungsformel;
class StyledButton;

/// The composition grid: up to five rows of element, at%, density and valence. Every edit is taken at once: it becomes
/// one operation on the entered alloy, which is then shown.
class Kompositionsbereich : public QWidget {
    Q_OBJECT

public:
    explicit Kompositionsbereich(Programm& programm, QWidget* parent = nullptr);

    /// Shows one row more than the stored component count.
    void restoreCount();

    // The entries of all element lists, as start-up fills them.
    void addElement(std::string_view symbol, int itemData);
    std::string elementEntry(int position) const;
    int findElementEntry(std::string_view text) const;
    void nenneElemente(); ///< once the elements are loaded

    /// Chooses an entry of a row's element list; nothing for a position outside.
    void chooseElement(int row, int position);

    /// Puts the focus where a composition begins: into the at% of the first row.
    void focusFirstField();

    /// Puts the keyboard focus into a row.
    void gehZu(int row, Eingabeort ort);

    /// Shows so many rows, 1 to 5.
    void setAnzahl(int count);

    /// Shows another alloy and works on with it.
    void setEingabe(const zerna::Eingabe& eingabe, const Schritt& schritt);

    /// Shows the entered alloy, which has become another one without an edit, and lets the next start begin with it.
    void zeigeDokument();

    /// Enters an at% as if it had been typed.
    void enterProzent(int row, int prozent);

    void addBefehle(Menue& menue);

signals:
    /// The entered alloy is another one now.
    void geaendert(const Aenderung& aenderung);
    /// What is wrong with the entered alloy may be something else now.
    void befundGeaendert();
    /// Parts are typed in the other unit now.
    void einheitGeaendert();
    /// The user has done something to the entered alloy, and all who follow it have followed.
    void geschehen(const Schritt& schritt);

private:
    void createControls();
    void layOut();
    void connectRow(int row);
    void stepAnzahl(int step);
    void setEinheit(Anteilseinheit einheit);
    void elementChosen(int row, std::string_view key);
    void setLegierung(const Legierungsformel& formel);
    void offerLegierung(int row);
    void valenzEdited(const Aenderung& aenderung, const Schritt& schritt);
    void speichereAnzahl();
    void speichereElement(int row, std::string_view key);
    void valenzLeft(int row);
    void dichteartChosen(std::string_view wahl);
    void taken(const Aenderung& aenderung, const Schritt& schritt);
    Schritt schritt(const char* was, int row, const char* feld = nullptr);
    Schritt anteilsschritt(int row);
    void zeige();

    Eingabe& eingabe() { return m_programm.Eingabe(); }
    Kompositionszeile& at(int row) { return *m_zeilen.at(static_cast<std::size_t>(row)); }
    const Kompositionszeile& at(int row) const { return *m_zeilen.at(static_cast<std::size_t>(row)); }

    Programm& m_programm;
    Formelfeld* m_formelfeld = nullptr;
    QLabel* m_label1 = nullptr;
    QLabel* m_lblAnzahl = nullptr;
    std::array<StyledButton*, 2> m_cmdKom{};
    Dichteschalter* m_dichteschalter = nullptr;
    Anteilskoepfe* m_anteilskoepfe = nullptr;
    std::array<QLabel*, 3> m_heads{};
    QStandardItemModel* m_elemente = nullptr; // the entries of all element lists
    std::array<Kompositionszeile*, MaxKomponenten> m_zeilen{};
    std::string m_gemeldet; // the formula whose unknown functions have been spoken of
};

} // namespace zerna
