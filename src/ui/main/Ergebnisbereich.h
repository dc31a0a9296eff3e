#pragma once

#include <QWidget>

#include <array>

#include "model/Ergebnisse.h"
#include "programm/ExportFileDialog.h"
#include "programm/Programm.h"

class QGridLayout;
class QLabel;
class QMenu;

namespace zerna {

class Kompositionsbereich;
class StyledButton;
class Wertanzeige;
class Wertfeld;

/// The results panel: all free-electron quantities of the current alloy, three of which can be typed to explore the
/// model without a composition, the Friedel-minimum read-out, and the results text for clipboard and file.
class Ergebnisbereich : public QWidget {
    Q_OBJECT

public:
    Ergebnisbereich(Programm& programm, SaveFileDialog& saveDialog, const Kompositionsbereich& komposition,
        QWidget* parent = nullptr);

    /// Fills the panel, after reading the rows into the calculator if asked to. An empty at% field leaves the panel as
    /// it is; an error ends the update silently, and lines without a value are empty.
    void aktualisieren(bool readComposition);

    /// Hands the visible rows to the calculator; false if an at% field is empty. Throws.
    bool readComposition();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Where the values come from during one update.
    enum class Eingabemodus { Zusammensetzung = 0, ValenzOderDichte = 1, Kf2 = 2 };

    void createControls();
    void createLine(const Groesse& zeile);
    void layOut();
    void measure();
    void orderTabs();
    void layOutLine(QGridLayout& grid, int row, int column, const Groesse& zeile);
    void layOutFriedel(QGridLayout& grid, int row, int column);

    void update(bool fromRows);
    bool showEditable();
    void showLines();
    void fieldChanged(int field);
    void stepFriedel(int step);
    void showFriedel();
    void openMenu(int index, const QPoint& position);
    QString shownValue(int index) const;
    std::vector<Komponentenzeile> zeilen() const;
    void copyText();
    void save();

    Wertanzeige* line(int index) const { return m_lblMFE.at(static_cast<std::size_t>(index)); }

    Programm& m_programm;
    SaveFileDialog& m_saveDialog;
    const Kompositionsbereich& m_komposition;
    Eingabemodus m_modus = Eingabemodus::Zusammensetzung;
    bool m_editable = true; // false while the panel itself writes the three fields
    float m_friedelindex = 0; // n, 0 to 20
    Ergebnistexte m_texte = keineErgebnisse();
    QGridLayout* m_grid = nullptr;
    std::vector<QLabel*> m_label6; // by result line
    std::vector<Wertanzeige*> m_lblMFE;
    std::array<Wertfeld*, 3> m_txtMFE{};
    QLabel* m_label7 = nullptr;
    std::array<StyledButton*, 2> m_cmdKnopf2{};
    StyledButton* m_cmdKopieren = nullptr;
    StyledButton* m_cmdSpeichern = nullptr;
    QMenu* m_menu = nullptr;
    int m_menuLine = 0;
};

} // namespace zerna
