#include "ui/pages/Diagrammbereich.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/button/StyledButton.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Kurzlabel.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/conDisplay.h"
#include "ui/pages/Diagrammauswahl.h"
#include "ui/pages/Diagrammseite.h"
#include "ui/pages/Konzentrationsseite.h"
#include "ui/pages/Messseite.h"
#include "ui/pages/PSEseite.h"
#include "ui/pages/Ternaerseite.h"
#include "ui/platform/Anzeige.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"
#include "ui/platform/Tabreihenfolge.h"

namespace zerna {

namespace {

/// A row of its own height, at least `height`, above or below the diagram area.
QWidget* boxed(QWidget* parent, int height, QLayout* upper, QLayout* lower, int bottomMargin)
{
    auto* box = new QWidget(parent);
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* frame = new QHBoxLayout(box);
    frame->setContentsMargins(0, 4, 0, bottomMargin);
    frame->addStrut(height - 4 - bottomMargin);
    auto* column = new QVBoxLayout;
    frame->addLayout(column);
    column->setSpacing(6);
    column->addLayout(upper);
    column->addStretch(); // rows stay where they are when one is empty
    column->addLayout(lower);
    return box;
}

} // namespace

Diagrammbereich::Diagrammbereich(Programm& programm, Dialoge dialoge, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_eingabe(programm.Eingabe())
    , m_picDiagramm(new Diagrammflaeche(programm, dialoge, this))
{
    m_picDiagramm->setObjectName(QStringLiteral("picDiagramm"));
    createSeiten(dialoge);
    createLists();
    createReadouts();
    createButtons();
    layOut();
    orderTabs();
}

/// A kind of diagram is one entry here and one in Diagrammtyp.
void Diagrammbereich::createSeiten(Dialoge dialoge)
{
    m_konzentration = new Konzentrationsseite(m_programm, dialoge, *m_picDiagramm, this);
    m_messung = new Messseite(m_programm, *m_picDiagramm, dialoge, this);
    m_seiten = {m_konzentration, new Ternaerseite(m_programm, *m_picDiagramm, this),
        new PSEseite(m_programm, *m_picDiagramm, this), m_messung};
    connect(m_messung, &Messseite::oeffnenRequested, this, [this] { oeffneMesskurven({}); });
    connect(m_konzentration, &Konzentrationsseite::prozentStepped, this, &Diagrammbereich::prozentStepped);
    for (Diagrammseite* const seite : m_seiten) {
        connect(seite, &Diagrammseite::schalterChanged, this, [this] {
            aktualisieren(true);
            emit schalterChanged();
        });
        connect(seite, &Diagrammseite::umgestellt, this, [this](const Schritt& schritt) {
            aktualisieren(true);
            emit geschehen(schritt);
        });
    }
}

void Diagrammbereich::createLists()
{
    m_auswahl = new Diagrammauswahl(m_programm, m_seiten, this);
    connect(m_auswahl, &Diagrammauswahl::typChosen, this, &Diagrammbereich::waehleTyp);
    connect(m_auswahl, &Diagrammauswahl::groesseChosen, this, [this](const QString& name) {
        aktualisieren(true);
        emit geschehen({QStringLiteral("Diagramm: %1").arg(name)});
    });
    connect(m_auswahl, &Diagrammauswahl::komponenteChosen, this, [this](const QString& symbol) {
        aktualisieren(true);
        emit geschehen({QStringLiteral("Diagramm über %1").arg(symbol)});
    });
}

void Diagrammbereich::createReadouts()
{
    m_labelPos = new Kurzlabel(this); // no read-out widens the panel
    m_labelPos->setObjectName(QStringLiteral("LabelPos"));
    m_labelPos->behalteBreite();
    connect(m_picDiagramm, &Diagrammflaeche::ansichtChanged, this, [this](const QString& geste) {
        wahl().ansicht = m_picDiagramm->ansicht();
        emit geschehen({QStringLiteral("Ansicht des Diagramms"), geste});
    });
    connect(m_picDiagramm, &Diagrammflaeche::positionChanged, this, [this](const QString& text) {
        m_labelPos->setText(gezeigt(text));
        m_labelPos->setToolTip(m_labelPos->text());
    });
    m_lblDrei = new Befundzeile(this);
    m_lblDrei->setObjectName(QStringLiteral("lblDrei"));
    connect(m_lblDrei, &Befundzeile::clicked, this, &Diagrammbereich::dreiKomponentenRequested);
    m_lblAngebot = new Befundzeile(this);
    m_lblAngebot->setObjectName(QStringLiteral("lblAngebot"));
    m_lblAngebot->hide();
    connect(m_lblAngebot, &Befundzeile::clicked, this, [this] { seite(wahl().typ).nimmAn(); });
}

void Diagrammbereich::createButtons()
{
    m_cmdAnteil = new StyledButton(QStringLiteral("= ?"), this);
    m_cmdAnteil->setObjectName(QStringLiteral("cmdDiagramm_Anteil"));
    m_cmdAnteil->setAccessibleName(QStringLiteral("Bei welchem Anteil?"));
    folgeSchrift(
        m_cmdAnteil, [this] { m_cmdAnteil->setFixedSize(m_cmdAnteil->sizeHint().width(), feldhoehe(*m_cmdAnteil)); });
    connect(m_cmdAnteil, &StyledButton::clicked, this, &Diagrammbereich::frageAnteil);
    m_cmdKopieren = new StyledButton(QStringLiteral("K&opieren"), this);
    m_cmdKopieren->setObjectName(QStringLiteral("cmdDiagramm_Kopieren"));
    m_cmdKopieren->setToolTipText(QStringLiteral("Diagramm als Bild in die Zwischenablage"));
    m_cmdSpeichern = new StyledButton(QStringLiteral("Speic&hern"), this);
    m_cmdSpeichern->setObjectName(QStringLiteral("cmdDiagramm_Speichern"));
    m_cmdSpeichern->setToolTipText(QStringLiteral("Werte oder Bild des Diagramms speichern"));
    connect(m_cmdKopieren, &StyledButton::clicked, m_picDiagramm, &Diagrammflaeche::copyPicture);
    connect(m_cmdSpeichern, &StyledButton::clicked, m_picDiagramm, &Diagrammflaeche::save);
    enableOutputs();
}

/// At the usual font the rows above and below the area take 150 pixels together, so that the area keeps its fixed
/// offset from the window; a larger one makes them higher.
void Diagrammbereich::layOut()
{
    constexpr int Top = 78;
    constexpr int Bottom = 72;
    folgeSchrift(m_picDiagramm, [this] { // the least that is of use
        const int line = m_picDiagramm->fontMetrics().height();
        m_picDiagramm->setMinimumSize(16 * line, 20 * line);
    });
    auto* lists = new QHBoxLayout;
    lists->setSpacing(6);
    lists->addWidget(m_auswahl);
    lists->addWidget(m_cmdAnteil);
    auto* position = new QHBoxLayout;
    position->addWidget(m_labelPos);
    position->addWidget(m_lblDrei, 1);
    position->addWidget(m_lblAngebot, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(boxed(this, Top, lists, layOutStrips(), 4));
    column->addWidget(m_picDiagramm, 1);
    column->addWidget(boxed(this, Bottom, position, layOutButtons(), 8));
}

/// The strip of the chosen kind. The row keeps its height when it is empty.
QBoxLayout* Diagrammbereich::layOutStrips()
{
    auto* strips = new QHBoxLayout;
    strips->setSpacing(0);
    for (Diagrammseite* const seite : m_seiten) {
        strips->addWidget(seite, 1);
        seite->setVisible(seite == m_konzentration);
    }
    auto* strut = new QWidget(this);
    folgeSchrift(strut, [this, strut] { strut->setFixedSize(0, m_konzentration->zeilenhoehe()); });
    strips->addWidget(strut);
    return strips;
}

QBoxLayout* Diagrammbereich::layOutButtons()
{
    auto* buttons = knopfzeile({m_cmdKopieren, m_cmdSpeichern});
    buttons->setSpacing(8);
    int place = 1; // behind the stretch
    for (const Diagrammseite* const seite : m_seiten) {
        for (StyledButton* const button : seite->knoepfe()) {
            setKnopfgroesse(button);
            button->setVisible(seite == m_konzentration);
            buttons->insertWidget(place++, button);
        }
    }
    return buttons;
}

void Diagrammbereich::orderTabs()
{
    std::vector<QWidget*> order = m_auswahl->tabOrder();
    order.push_back(m_cmdAnteil);
    const auto append = [&order](const auto& widgets) { order.insert(order.end(), widgets.begin(), widgets.end()); };
    for (const Diagrammseite* const seite : m_seiten)
        append(seite->tabOrder());
    order.insert(order.end(), {&m_picDiagramm->display(), m_picDiagramm, m_lblDrei, m_lblAngebot});
    for (const Diagrammseite* const seite : m_seiten)
        append(seite->knoepfe());
    order.insert(order.end(), {m_cmdKopieren, m_cmdSpeichern});
    setTabReihenfolge(order);
}

void Diagrammbereich::load() { m_auswahl->load(); }

void Diagrammbereich::zeige(const Eingabe& eingabe, const Aenderung& aenderung)
{
    m_eingabe = eingabe;
    if (aenderung.anzahl || aenderung.element)
        m_auswahl->listKomponenten(m_eingabe);
    if (aenderung.anzahl) {
        m_lblDrei->zeige({}, Befundzeile::Ton::Hinweis);
        selectFirstType();
    } else {
        aktualisieren(aenderung.element || !aenderung.dichte);
    }
}

void Diagrammbereich::zeigeVarianten()
{
    if (wahl().varianten)
        aktualisieren(true);
}

void Diagrammbereich::zeigeDokument()
{
    const Diagrammwahl shown = wahl(); // the lists write theirs
    m_eingabe = m_programm.Eingabe();
    m_picDiagramm->setAnsicht(shown.ansicht);
    m_lblDrei->zeige({}, Befundzeile::Ton::Hinweis);
    m_auswahl->listKomponenten(m_eingabe);
    setTyp(shown.typ);
    m_auswahl->setKomponente(shown.komponente);
    aktualisieren(true);
}

void Diagrammbereich::selectFirstComponent() { m_auswahl->setKomponente(0); }

void Diagrammbereich::selectFirstType()
{
    if (wahl().typ == Diagrammtyp::Konzentration)
        aktualisieren(true);
    else
        chooseType(Diagrammtyp::Konzentration);
}

void Diagrammbereich::oeffneMesskurven(const QStringList& dateien)
{
    if (!m_programm.StartupDone() || !m_messung->oeffne(dateien))
        return;
    chooseType(Diagrammtyp::Messkurve);
    emit geschehen({QStringLiteral("Messkurve öffnen")});
}

void Diagrammbereich::waehleTyp(int position)
{
    chooseType(static_cast<Diagrammtyp>(position));
    emit geschehen({QStringLiteral("Diagrammtyp")});
}

void Diagrammbereich::chooseType(Diagrammtyp typ)
{
    setTyp(typ);
    m_lblDrei->zeige(seite(typ).warumKeines(m_eingabe), Befundzeile::Ton::Hinweis);
    aktualisieren(true);
}

/// Without such a diagram of the alloy it is the concentration diagram instead.
void Diagrammbereich::setTyp(Diagrammtyp typ)
{
    const bool isPossible = seite(typ).warumKeines(m_eingabe).isEmpty(); // without a box
    m_auswahl->setTyp(isPossible ? typ : Diagrammtyp::Konzentration);
    for (Diagrammseite* const each : m_seiten) {
        const bool isShown = each == &seite(wahl().typ);
        each->setVisible(isShown);
        for (StyledButton* const button : each->knoepfe())
            button->setVisible(isShown);
    }
    zeigeDarunter(seite(wahl().typ).darunter());
    m_cmdAnteil->setVisible(wahl().typ != Diagrammtyp::PSE);
    m_cmdAnteil->setToolTipText(wahl().typ == Diagrammtyp::Messkurve
            ? QStringLiteral("Bei welchem Anteil ist 2 kF = Kp? (Strg+F)")
            : QStringLiteral("Bei welchem Anteil hat die Größe einen Wert? (Strg+F)"));
}

void Diagrammbereich::zeigeDarunter(QWidget* now)
{
    if (m_darunter != nullptr && m_darunter != now)
        m_darunter->hide();
    m_darunter = now;
    if (now == nullptr)
        return;
    auto* const column = qobject_cast<QBoxLayout*>(layout());
    if (column->indexOf(now) < 0)
        column->insertWidget(column->indexOf(m_picDiagramm) + 1, now);
    now->show();
}

void Diagrammbereich::frageAnteil()
{
    const auto [groesse, wert] = seite(wahl().typ).suchfrage();
    emit anteilRequested(groesse, wert);
}

void Diagrammbereich::aktualisieren(bool keepSelection)
{
    if (!m_programm.StartupDone())
        return;
    for (Diagrammseite* const each : m_seiten)
        each->zeigeAuswahl(m_eingabe);
    m_auswahl->zeigeLehrbuch();
    if (seite(wahl().typ).hatKomponente() && !keepSelection)
        selectFirstComponent();
    if (seite(wahl().typ).warumKeines(m_eingabe).isEmpty())
        seite(wahl().typ).zeichne(m_eingabe);
    else
        chooseType(Diagrammtyp::Konzentration);
    enableOutputs();
    zeigeAngebot();
}

/// In the place of the line that says why a kind cannot be had, unless that says something.
void Diagrammbereich::zeigeAngebot()
{
    const QString angebot = m_lblDrei->befund().isEmpty() ? seite(wahl().typ).angebot() : QString();
    m_lblAngebot->zeige(angebot, Befundzeile::Ton::Hinweis);
    m_lblAngebot->setVisible(!angebot.isEmpty());
    m_lblDrei->setVisible(angebot.isEmpty());
}

/// An error display is no picture to be kept.
void Diagrammbereich::enableOutputs()
{
    for (StyledButton* const button : {m_cmdKopieren, m_cmdSpeichern})
        button->setEnabled(istDruckbar());
}

} // namespace zerna
