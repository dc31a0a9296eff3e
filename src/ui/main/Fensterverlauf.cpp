#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QStackedWidget>

#include "ui/comparison/Vergleichsbereich.h"
#include "ui/composition/Kompositionsbereich.h"
#include "ui/controls/Kurzmeldung.h"
#include "ui/controls/Menue.h"
#include "ui/main/Dateibefehle.h"
#include "ui/main/frmMain.h"
#include "ui/pages/Diagrammbereich.h"
#include "ui/picker/PSEbereich.h"
#include "ui/platform/QtText.h"
#include "ui/results/Ergebnisbereich.h"
#include "ui/weighing/conWiegen.h"

namespace zerna {

/// What the panels tell becomes steps, and the way back is shown.
void frmMain::connectVerlauf()
{
    connect(m_komposition, &Kompositionsbereich::geschehen, this, &frmMain::geschehen);
    connect(m_conWiegen1, &conWiegen::geschehen, this, &frmMain::geschehen);
    connect(m_diagramm, &Diagrammbereich::geschehen, this, &frmMain::geschehen);
    connect(m_vergleich, &Vergleichsbereich::geschehen, this, [this](const QString& name) { geschehen({name}); });
    connect(m_dateien, &Dateibefehle::geschehen, this, &frmMain::geschehen);
    connect(m_dateien, &Dateibefehle::messkurvenGezogen, this, [this](const QStringList& dateien) {
        showPanel(0);
        m_diagramm->oeffneMesskurven(dateien);
    });
    connect(m_dateien, &Dateibefehle::ersetzt, this, &frmMain::beginneDokument);
    connect(m_dateien, &Dateibefehle::gespeichert, &m_verlauf, &Verlauf::trenne);
    connect(&m_verlauf.stapel(), &QUndoStack::indexChanged, m_dateien, &Dateibefehle::zeigeTitel);
    connect(&m_verlauf, &Verlauf::zurueckgekehrt, this, &frmMain::zeigeStand);
    connect(qApp, &QApplication::focusChanged, &m_verlauf, [this](const QWidget*, const QWidget* now) {
        if (now != nullptr && isAncestorOf(now))
            m_verlauf.trenne(); // typing in one field is one step until the focus has been elsewhere
    });
}

/// What the line said of the document before is no longer so.
void frmMain::geschehen(const Schritt& schritt)
{
    m_meldung->zeige({});
    m_verlauf.geschehen(schritt);
}

void frmMain::zeigeDokument()
{
    m_komposition->zeigeDokument();
    // Values typed into the results stay unless the alloy has become another one.
    if (m_programm.Eingabe() != m_programm.gerechneteEingabe() && m_programm.uebernehmen())
        m_ergebnisse->zeige(m_programm.gerechneteEingabe());
    m_conWiegen1->zeigeDokument();
    m_ergebnisse->zeigeLage(m_programm.Eingabe());
    m_diagramm->zeigeDokument();
    zeigeSuche();
    if (m_pse->isVisible())
        m_pse->layOut();
    m_vergleich->zeige();
    m_meldung->zeige({});
}

/// Shows the document with results of its own: none while its alloy is incomplete.
void frmMain::zeigeEigenes()
{
    if (!m_programm.Eingabe().istVollstaendig()) {
        m_programm.uebernehmeWieEingetragen();
        m_ergebnisse->zeige(m_programm.gerechneteEingabe());
    }
    zeigeDokument();
}

void frmMain::beginneDokument()
{
    zeigeEigenes();
    m_conWiegen1->vergissAbgelegte();
    m_verlauf.beginne();
    emit begonnen();
}

/// Shows where the document has gone back to, and the panel in which something is different now.
void frmMain::zeigeStand(const Verlauf::Stand& stand, const Verlauf::Stand& vorher)
{
    auto* const field = qobject_cast<QLineEdit*>(focusWidget());
    const QString text = field != nullptr ? field->text() : QString();
    if (stand.gerechnet && *stand.gerechnet != m_programm.gerechneteEingabe()) {
        m_programm.Eingabe() = *stand.gerechnet; // an incomplete alloy is seen with the results of the one before
        zeigeEigenes();
        m_programm.Dokument() = stand.dokument;
    }
    zeigeDokument();
    const Dokument& now = stand.dokument;
    const Dokument& before = vorher.dokument;
    const bool isOtherAlloy = now.eingabe != before.eingabe;
    const bool isOtherDiagram =
        now.diagramm != before.diagramm || now.kurven != before.kurven || now.messkurven != before.messkurven;
    const bool isOtherWeighing = now.wiegen != before.wiegen && !isOtherAlloy;
    if (*now.vergleich != *before.vergleich)
        showPanel(2);
    else if (isOtherWeighing || isOtherDiagram || (isOtherAlloy && !m_pse->isVisible()))
        showPanel(0);
    if (isOtherWeighing)
        showLowerArea(1);
    if (field != nullptr && field->hasFocus() && field->text() != text)
        field->selectAll(); // typing goes on in place of what has come back
}

QAction* frmMain::addSchritt(const QString& text, const char* name, const QList<QKeySequence>& tasten)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(tasten);
    action->setEnabled(false);
    m_menue->add(Menue::Abschnitt::Schritte, action);
    addAction(action); // where fields look for it
    return action;
}

void frmMain::addSchritte()
{
    const auto names = [](QAction* action, const QString& caption) {
        return [action, caption](const QString& step) {
            action->setText(step.isEmpty() ? caption : QStringLiteral("%1: %2").arg(caption, menuetext(step)));
        };
    };
    const QString back = QStringLiteral("&Rückgängig");
    const QString again = QStringLiteral("&Wiederholen");
    QUndoStack& stapel = m_verlauf.stapel();
    QAction* const undo = addSchritt(back, "mnuRueckgaengig", {QKeySequence(Qt::CTRL | Qt::Key_Z)});
    QAction* const redo = addSchritt(
        again, "mnuWiederholen", {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    connect(undo, &QAction::triggered, &stapel, &QUndoStack::undo);
    connect(redo, &QAction::triggered, &stapel, &QUndoStack::redo);
    connect(&stapel, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&stapel, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    connect(&stapel, &QUndoStack::undoTextChanged, undo, names(undo, back));
    connect(&stapel, &QUndoStack::redoTextChanged, redo, names(redo, again));
}

} // namespace zerna
