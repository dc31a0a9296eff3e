#pragma once

#include <QWidget>

#include <span>
#include <vector>

#include "core/Laufzeitfehler.h"
#include "model/eingabe/Eingabe.h"
#include "model/reihen/Diagrammwahl.h"
#include "model/suche/Anteilssuche.h"
#include "programm/Programm.h"
#include "ui/controls/Schritt.h"

namespace zerna {

class Diagrammflaeche;
class Menue;
class StyledButton;

/// How the diagram panel shows one kind of diagram: what its lists offer, what is checked, computed and drawn, and the
/// strip of controls above the area, which is this widget.
class Diagrammseite : public QWidget {
    Q_OBJECT

public:
    Diagrammseite(Programm& programm, Diagrammflaeche& flaeche, QWidget* parent);

    virtual QString titel() const = 0; ///< in the list of types

    /// The codes of its quantities, in the order of the list.
    virtual std::span<const int> groessen() const = 0;

    /// Whether one component runs along an axis, to be chosen in the list of components.
    virtual bool hatKomponente() const { return false; }

    /// Why there is no such diagram of the alloy, with what can be done; empty if there is one.
    virtual QString warumKeines(const Eingabe&) const { return {}; }

    /// Shows an alloy and the document's choice in the controls of the strip.
    virtual void zeigeAuswahl(const Eingabe&) { }

    /// Computes the diagram of an alloy and shows it in the area, or why there is none.
    virtual void zeichne(const Eingabe& eingabe) = 0;

    /// The widgets of the strip in the order of the tab key.
    virtual std::vector<QWidget*> tabOrder() const { return {}; }

    /// The buttons below the area that are shown for this kind alone; children of the panel.
    virtual std::vector<StyledButton*> knoepfe() const { return {}; }

    /// What stands below the area for this kind alone, a child of the panel; null for nothing. Asked for when the kind
    /// is shown first.
    virtual QWidget* darunter() { return nullptr; }

    /// What the search at which part a quantity has a value begins with: the code of a quantity, -1 for the chosen one,
    /// and a value, empty for the alloy's own.
    struct Suchfrage {
        int groesse = -1;
        QString wert;
    };
    virtual Suchfrage suchfrage() const { return {}; }

    virtual void addBefehle(Menue&) { }

    /// Shows what a search has found, also in the diagrams that are drawn later.
    virtual void setMarken(const Suchmarken&) { }

    /// What the user may want to do about the diagram that is shown, such as to see more of it; empty for nothing.
    virtual QString angebot() const { return {}; }
    virtual void nimmAn() { }

signals:
    /// The user has changed how it is drawn: it is to be drawn anew.
    void schalterChanged();
    /// The user has changed what the document says of it: the same, and it is a step.
    void umgestellt(const Schritt& schritt);

protected:
    /// Shows why no diagram over compositions can be computed; false if it can.
    bool zeigeHindernis(const Eingabe& eingabe);
    void zeigeFehler(const Laufzeitfehler& error);

    Programm& programm() { return m_programm; }
    Diagrammflaeche& flaeche() { return m_flaeche; }
    Diagrammwahl& wahl() { return m_programm.Dokument().diagramm; }

private:
    Programm& m_programm;
    Diagrammflaeche& m_flaeche;
};

/// The quantities of an alloy, in the order of the list.
std::span<const int> legierungsgroessen();

} // namespace zerna
