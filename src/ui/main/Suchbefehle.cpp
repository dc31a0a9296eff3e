#include <QAction>

#include "ui/composition/Kompositionsbereich.h"
#include "ui/controls/Kurzmeldung.h"
#include "ui/main/frmMain.h"
#include "ui/pages/Diagrammbereich.h"
#include "ui/results/Ergebnisbereich.h"
#include "ui/search/frmZielsuche.h"

namespace zerna {

void frmMain::connectSuche()
{
    connect(m_diagramm, &Diagrammbereich::anteilRequested, this, &frmMain::frageAnteil);
    connect(m_diagramm, &Diagrammbereich::geschehen, this, &frmMain::zeigeSuche);
    connect(m_diagramm, &Diagrammbereich::schalterChanged, this, &frmMain::zeigeSuche);
    connect(m_komposition, &Kompositionsbereich::befundGeaendert, this, &frmMain::zeigeSuche);
    connect(m_ergebnisse, &Ergebnisbereich::anteilRequested, this, &frmMain::frageAnteil);
}

/// The search, made when it is first asked for. The window's undo and redo work in it, too.
frmZielsuche& frmMain::suche()
{
    if (m_suche != nullptr)
        return *m_suche;
    m_suche = new frmZielsuche(m_programm, this);
    connect(m_suche, &frmZielsuche::wahlRequested, m_diagramm, &Diagrammbereich::zeigeGroesse);
    connect(m_suche, &frmZielsuche::mischungsreiheChosen, m_diagramm, &Diagrammbereich::setMischungsreihe);
    connect(m_suche, &frmZielsuche::punkteRequested, m_diagramm, &Diagrammbereich::kopierePunkte);
    connect(m_suche, &frmZielsuche::markenChanged, m_diagramm, &Diagrammbereich::setMarken);
    connect(m_suche, &frmZielsuche::uebernommen, this,
        [this](const zerna::Eingabe& eingabe, const Schritt& schritt, const QString& getan) {
            m_komposition->setEingabe(eingabe, schritt);
            m_meldung->zeige(QStringLiteral("✓  %1").arg(getan));
        });
    for (const char* const name : {"mnuRueckgaengig", "mnuWiederholen"})
        m_suche->addAction(findChild<QAction*>(QLatin1String(name)));
    return *m_suche;
}

/// Asks for a quantity, -1 for that of the diagram.
void frmMain::frageAnteil(int groesse, const QString& wert)
{
    showPanel(0);
    suche().frage(groesse, wert);
}

void frmMain::zeigeSuche()
{
    if (m_suche != nullptr)
        m_suche->zeige();
}

} // namespace zerna
