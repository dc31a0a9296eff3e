#pragma once

#include <QWidget>

#include <vector>

#include "model/reihen/Diagrammwahl.h"
#include "programm/Programm.h"
#include "ui/controls/Schritt.h"
#include "ui/platform/Dialoge.h"

class QBoxLayout;

namespace zerna {

struct Suchmarken;
class Befundzeile;
class Diagrammauswahl;
class Diagrammflaeche;
class Diagrammseite;
class Konzentrationsseite;
class Kurzlabel;
class Menue;
class Messseite;
class StyledButton;

/// The diagram panel: lists for type, quantity and component above the diagram area, controls and read-outs around it.
/// It chooses a kind of diagram; what is special of a kind is in its Diagrammseite.
class Diagrammbereich : public QWidget {
    Q_OBJECT

public:
    Diagrammbereich(Programm& programm, Dialoge dialoge, QWidget* parent = nullptr);

    /// The lists' and read-outs' state right after the window's load.
    void load();

    /// Takes over an entered alloy and draws what depends on the change. Another number of rows returns to the
    /// concentration diagram; another element or density puts the first component along the axis.
    void zeige(const Eingabe& eingabe, const Aenderung& aenderung);

    /// The kept alloys have changed, which may be drawn.
    void zeigeVarianten();

    /// Shows the diagram of the document.
    void zeigeDokument();

    /// Returns to the concentration diagram and draws it.
    void selectFirstType();
    void selectFirstComponent();

    /// Chooses the ternary diagram, if there are three rows.
    void selectTernary() { chooseType(Diagrammtyp::Ternaer); }

    /// Shows a quantity of the alloy, over a component where one runs along an axis, as a step of its own if it is not
    /// shown already.
    void zeigeGroesse(int groesse, int komponente);

    /// Adds the curves of files to the document and shows them; asks for one if there are none.
    void oeffneMesskurven(const QStringList& dateien);

    /// Shows what a search has found.
    void setMarken(const Suchmarken& marken);

    /// Draws the given series or the true mixture from now on, which is remembered.
    void setMischungsreihe(bool an);

    /// Copies the points of the ternary diagram with the wanted value.
    void kopierePunkte();

    void addBefehle(Menue& menue);
    bool istDruckbar() const;
    void drucke();

signals:
    void geschehen(const Schritt& schritt);
    /// It is asked at which part a quantity (-1: the chosen one) has a value (empty: that of the alloy).
    void anteilRequested(int groesse, const QString& wert);
    /// Another series is drawn from now on.
    void schalterChanged();
    /// A value label has stepped the at% of a row.
    void prozentStepped(int row, int prozent);
    /// The ternary diagram is wanted, which needs three rows.
    void dreiKomponentenRequested();

private:
    void createSeiten(Dialoge dialoge);
    void createLists();
    void createReadouts();
    void createButtons();
    void layOut();
    QBoxLayout* layOutStrips();
    QBoxLayout* layOutButtons();
    void orderTabs();
    void aktualisieren(bool keepSelection);
    void enableOutputs();
    void zeigeAngebot();
    void frageAnteil();
    void waehleTyp(int position);
    void chooseType(Diagrammtyp typ);
    void setTyp(Diagrammtyp typ);
    void zeigeDarunter(QWidget* now);
    Diagrammseite& seite(Diagrammtyp typ) const { return *m_seiten.at(static_cast<std::size_t>(typ)); }
    Diagrammwahl& wahl() { return m_programm.Dokument().diagramm; }

    Programm& m_programm;
    Eingabe m_eingabe; // the alloy that is drawn
    Diagrammflaeche* m_picDiagramm = nullptr;
    std::vector<Diagrammseite*> m_seiten; // index = type
    Konzentrationsseite* m_konzentration = nullptr; // one of them
    Messseite* m_messung = nullptr; // another
    QWidget* m_darunter = nullptr; // what the shown one has below the area
    Diagrammauswahl* m_auswahl = nullptr;
    Kurzlabel* m_labelPos = nullptr;
    Befundzeile* m_lblDrei = nullptr; // why there is no diagram of the chosen kind
    Befundzeile* m_lblAngebot = nullptr; // what can be done about the diagram
    StyledButton* m_cmdAnteil = nullptr;
    StyledButton* m_cmdKopieren = nullptr;
    StyledButton* m_cmdSpeichern = nullptr;
};

} // namespace zerna
