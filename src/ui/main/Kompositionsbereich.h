#pragma once

#include <QWidget>

#include <array>
#include <memory>
#include <string>

#include "model/Ergebnisse.h"
#include "model/Komposition.h"
#include "programm/Programm.h"

class QComboBox;
class QGridLayout;
class QLabel;

namespace zerna {

class StyledButton;
class Wertfeld;

/// The composition grid: up to five rows of element, at%, density and valence. Every edit is taken at once: typed
/// values go into the element records, and signals ask for what depends on them. The last visible row is the balance
/// row: it takes what is missing to 100 at% and its own edits change nothing.
class Kompositionsbereich : public QWidget {
    Q_OBJECT

public:
    explicit Kompositionsbereich(Programm& programm, QWidget* parent = nullptr);

    /// Shows one row more than the stored component count.
    void restoreCount();

    // The element lists, as start-up fills them.
    void addElement(int list, std::string_view symbol, int itemData);
    std::string elementEntry(int list, int position) const;
    int findElementEntry(int list, std::string_view text) const;
    void chooseElement(int row, int position);

    /// Writes an at% as if it had been typed.
    void stepProzent(int row, int prozent);

    /// What the rows show, row 0 to 4.
    std::string element(int row) const;
    std::string elementName(int row) const;
    std::string prozent(int row) const;
    std::string dichte(int row) const;
    Diagrammzeile diagrammzeile(int row) const;
    Komponentenzeile zeile(int row) const;

signals:
    void resultsRequested(); ///< the rows are to be read into the calculator again
    void weighingRequested();
    void densityDiagramRequested(); ///< a density has changed
    void diagramRequested();
    void componentsChanged(); ///< elements or number of the visible rows
    void firstDiagramTypeRequested();
    void firstDiagramComponentRequested();

private:
    struct Zeile {
        QComboBox* cmbElement = nullptr;
        QLabel* lblElement = nullptr;
        Wertfeld* txtProzent = nullptr;
        QComboBox* cmdDichte = nullptr;
        Wertfeld* txtDichte = nullptr;
        QComboBox* cmbValenz = nullptr;
        Wertfeld* txtValenz = nullptr;

        std::array<QWidget*, 7> widgets() const;
    };

    void createControls();
    void createRow(int row);
    void layOut();
    void layOutRow(QGridLayout& grid, int row);
    void connectRow(int row);

    void changeCount(int step);
    bool balance();
    void elementChosen(int row);
    void dichteChosen(int row);
    void valenzChosen(int row);
    void prozentChanged(int row);
    void dichteChanged(int row);
    void valenzChanged(int row);
    void fillChoices(int row);
    void makeCurrent(int row);
    void mirror(int row);
    void judgeValenz(Wertfeld& field);

    bool isBalanceRow(int row) const { return row == m_programm.Komponentenzahl() - 1; }
    Zeile& at(int row) { return m_zeilen.at(static_cast<std::size_t>(row)); }
    const Zeile& at(int row) const { return m_zeilen.at(static_cast<std::size_t>(row)); }

    Programm& m_programm;
    QLabel* m_label1 = nullptr;
    QLabel* m_lblAnzahl = nullptr;
    std::array<StyledButton*, 2> m_cmdKom{};
    std::array<QLabel*, 4> m_heads{};
    std::array<Zeile, MaxKomponenten> m_zeilen{};
    std::array<std::string, MaxKomponenten> m_symbole; // of the chosen elements
};

} // namespace zerna
