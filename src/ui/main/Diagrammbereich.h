#pragma once

#include <QWidget>

#include <array>

#include "model/Diagrammwahl.h"
#include "model/PSEReihe.h"
#include "programm/Programm.h"
#include "ui/controls/Schritt.h"
#include "ui/platform/Dialoge.h"

class QLabel;

namespace zerna {

class Befundzeile;
class Diagrammauswahl;
class Diagrammflaeche;
class Menue;
class StyledButton;
class conLabel;

/// The diagram panel: lists for type, quantity and component above the diagram area, value labels and read-outs around
/// it. It chooses and checks; computing and drawing are the diagrams' own.
class Diagrammbereich : public QWidget {
    Q_OBJECT

public:
    Diagrammbereich(Programm& programm, Dialoge dialoge, QWidget* parent = nullptr);

    /// The lists' and read-outs' state right after the window's load.
    void load();

    /// Takes over an entered alloy and draws what depends on the change. Another number of rows returns to the
    /// concentration diagram; another element or density puts the first component along the axis.
    void zeige(const Eingabe& eingabe, const Aenderung& aenderung);

    /// Shows the diagram of the document.
    void zeigeDokument();

    /// Returns to the concentration diagram and draws it.
    void selectFirstType();
    void selectFirstComponent();

    /// Chooses the ternary diagram, if there are three rows.
    void selectTernary() { chooseType(Diagrammtyp::Ternaer); }

    void addBefehle(Menue& menue);
    bool istDruckbar() const;
    void drucke();

signals:
    void geschehen(const Schritt& schritt);
    /// A value label has stepped the at% of a row.
    void prozentStepped(int row, int prozent);
    /// The ternary diagram is wanted, which needs three rows.
    void dreiKomponentenRequested();

private:
    void createControls();
    void createSteps();
    void createLabels();
    void aktualisieren(bool keepSelection);
    void layOut();
    void orderTabs();
    void waehleTyp(int position);
    void chooseType(Diagrammtyp typ);
    void setTyp(Diagrammtyp typ);
    void showSteps();
    void stepResolution(int step);
    void drawConcentration(bool keepSelection);
    void drawSeries();
    void drawTernary();
    void showError(const Laufzeitfehler& error);
    bool showObstacle();
    void drawPSE();
    void refreshLabels();
    Diagrammwahl& wahl() { return m_programm.Dokument().diagramm; }

    Programm& m_programm;
    Eingabe m_eingabe; // the alloy that is drawn
    int m_steps = 5; // resolution of the ternary diagram as it is shown, 1 to 10
    Diagrammauswahl* m_auswahl = nullptr;
    std::array<StyledButton*, 2> m_cmdSteps{};
    QLabel* m_lblSteps = nullptr;
    std::array<conLabel*, MaxKomponenten> m_conLabel{};
    Diagrammflaeche* m_picDiagramm = nullptr;
    QLabel* m_labelPos = nullptr;
    Befundzeile* m_lblDrei = nullptr; // why there is no ternary diagram
    StyledButton* m_cmdKopieren = nullptr;
    StyledButton* m_cmdSpeichern = nullptr;
};

} // namespace zerna
