#include "ui/main/Diagrammbereich.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/CheckedArithmetic.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/conDisplay.h"
#include "ui/diagram/conLabel.h"
#include "ui/main/Diagrammauswahl.h"
#include "ui/platform/Anzeige.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"
#include "ui/platform/Tabreihenfolge.h"

namespace zerna {

namespace {

/// Why there is no ternary diagram of so many components, and what can be done.
QString dreitext(int anzahl)
{
    constexpr std::array Zahlwoerter{"eine", "zwei", "drei", "vier", "fünf"};
    return QStringLiteral("„3 D - ternär“ braucht genau drei Komponenten, jetzt %1. Auf drei ändern")
        .arg(anzahl == 1 ? QStringLiteral("ist es eine")
                         : QStringLiteral("sind es %1")
                               .arg(QString::fromUtf8(Zahlwoerter.at(static_cast<std::size_t>(anzahl) - 1))));
}

QString symbolOf(const Eingabe::Zeile& zeile) { return zeile.element ? toQt(zeile.element->symbol()) : QString(); }

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
    createControls();
    createSteps();
    createLabels();
    layOut();
    orderTabs();
}

void Diagrammbereich::createControls()
{
    m_auswahl = new Diagrammauswahl(m_programm, this);
    connect(m_auswahl, &Diagrammauswahl::typChosen, this, &Diagrammbereich::waehleTyp);
    connect(m_auswahl, &Diagrammauswahl::groesseChosen, this, [this](const QString& name) {
        aktualisieren(true);
        emit geschehen({QStringLiteral("Diagramm: %1").arg(name)});
    });
    connect(m_auswahl, &Diagrammauswahl::komponenteChosen, this, [this](const QString& symbol) {
        aktualisieren(true);
        emit geschehen({QStringLiteral("Diagramm über %1").arg(symbol)});
    });
    m_labelPos = new QLabel(this);
    m_labelPos->setObjectName(QStringLiteral("LabelPos"));
    m_labelPos->setTextFormat(Qt::PlainText);
    connect(m_picDiagramm, &Diagrammflaeche::ansichtChanged, this, [this](const QString& geste) {
        wahl().ansicht = m_picDiagramm->ansicht();
        emit geschehen({QStringLiteral("Ansicht des Diagramms"), geste});
    });
    connect(m_picDiagramm, &Diagrammflaeche::positionChanged, this,
        [this](const QString& text) { m_labelPos->setText(gezeigt(text)); });
    m_lblDrei = new Befundzeile(this);
    m_lblDrei->setObjectName(QStringLiteral("lblDrei"));
    connect(m_lblDrei, &Befundzeile::clicked, this, &Diagrammbereich::dreiKomponentenRequested);
    m_cmdKopieren = new StyledButton(QStringLiteral("K&opieren"), this);
    m_cmdKopieren->setObjectName(QStringLiteral("cmdDiagramm_Kopieren"));
    m_cmdKopieren->setToolTipText(QStringLiteral("Diagramm als Bild in die Zwischenablage"));
    m_cmdSpeichern = new StyledButton(QStringLiteral("Speic&hern"), this);
    m_cmdSpeichern->setObjectName(QStringLiteral("cmdDiagramm_Speichern"));
    m_cmdSpeichern->setToolTipText(QStringLiteral("Werte oder Bild des Diagramms speichern"));
    connect(m_cmdKopieren, &StyledButton::clicked, m_picDiagramm, &Diagrammflaeche::copyPicture);
    connect(m_cmdSpeichern, &StyledButton::clicked, m_picDiagramm, &Diagrammflaeche::save);
}

void Diagrammbereich::createSteps()
{
    const std::array<QString, 2> captions{QStringLiteral("−"), QStringLiteral("+")};
    const std::array<QString, 2> hints{QStringLiteral("Gröbere Auflösung"), QStringLiteral("Feinere Auflösung")};
    for (int i = 0; i < 2; ++i) {
        const auto k = static_cast<std::size_t>(i);
        m_cmdSteps.at(k) = new StyledButton(captions.at(k), this);
        m_cmdSteps.at(k)->setObjectName(numberedName("cmdSteps", i));
        m_cmdSteps.at(k)->setAccessibleName(hints.at(k));
        m_cmdSteps.at(k)->setToolTipText(hints.at(k));
        setZeichenknopf(m_cmdSteps.at(k));
        m_cmdSteps.at(k)->hide();
        connect(m_cmdSteps.at(k), &StyledButton::clicked, this, [this, i] { stepResolution(i == 0 ? -1 : 1); });
    }
    m_lblSteps = new QLabel(QStringLiteral("Auflösung: 5"), this);
    m_lblSteps->setObjectName(QStringLiteral("lblSteps"));
    m_lblSteps->hide();
}

void Diagrammbereich::createLabels()
{
    for (int row = 0; row < MaxKomponenten; ++row) {
        auto* label = new conLabel(this);
        label->setObjectName(numberedName("conLabel", row));
        label->hide();
        connect(label, &conLabel::Change, this, [this, row, label] { emit prozentStepped(row, label->Value()); });
        m_conLabel.at(static_cast<std::size_t>(row)) = label;
    }
}

/// At the usual font the rows above and below the area take 150 pixels together, so that the area keeps its fixed
/// offset from the window; a larger one makes them higher.
void Diagrammbereich::layOut()
{
    constexpr int Top = 78;
    constexpr int Bottom = 72;
    auto* lists = new QHBoxLayout;
    lists->addWidget(m_auswahl);
    auto* values = new QHBoxLayout;
    values->setSpacing(4);
    for (conLabel* const label : m_conLabel)
        values->addWidget(label, 1);
    values->addWidget(m_lblSteps);
    for (StyledButton* const button : m_cmdSteps)
        values->addWidget(button);
    values->addStretch();
    auto* strut = new QWidget(this); // the row keeps its height when all else in it is hidden
    folgeSchrift(strut, [this, strut] { strut->setFixedSize(0, m_conLabel[0]->minimumSizeHint().height()); });
    values->addWidget(strut);
    auto* buttons = knopfzeile({m_cmdKopieren, m_cmdSpeichern});
    buttons->setSpacing(8);

    auto* position = new QHBoxLayout;
    position->addWidget(m_labelPos);
    position->addWidget(m_lblDrei, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(boxed(this, Top, lists, values, 4));
    column->addWidget(m_picDiagramm, 1);
    column->addWidget(boxed(this, Bottom, position, buttons, 8));
}

void Diagrammbereich::orderTabs()
{
    std::vector<QWidget*> order = m_auswahl->tabOrder();
    for (conLabel* const label : m_conLabel) {
        const auto buttons = label->buttons();
        order.insert(order.end(), buttons.begin(), buttons.end());
    }
    order.insert(order.end(), m_cmdSteps.begin(), m_cmdSteps.end());
    order.insert(order.end(), {&m_picDiagramm->display(), m_picDiagramm, m_lblDrei, m_cmdKopieren, m_cmdSpeichern});
    setTabReihenfolge(order);
}

void Diagrammbereich::load()
{
    m_auswahl->load();
    // Intended: the caption changes to "Auflösung: " with the first step.
    m_lblSteps->setText(QStringLiteral("Schritte: 5"));
}

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

void Diagrammbereich::zeigeDokument()
{
    const Diagrammwahl shown = wahl(); // the lists write theirs
    m_eingabe = m_programm.Eingabe();
    m_picDiagramm->setAnsicht(shown.ansicht);
    m_lblDrei->zeige({}, Befundzeile::Ton::Hinweis);
    m_auswahl->listKomponenten(m_eingabe);
    setTyp(shown.typ);
    m_auswahl->setGroesse(shown.groesse);
    m_auswahl->setKomponente(shown.komponente);
    if (std::exchange(m_steps, shown.aufloesung) != shown.aufloesung)
        showSteps();
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

void Diagrammbereich::waehleTyp(int position)
{
    chooseType(static_cast<Diagrammtyp>(position));
    emit geschehen({QStringLiteral("Diagrammtyp")});
}

void Diagrammbereich::chooseType(Diagrammtyp typ)
{
    setTyp(typ);
    m_lblDrei->zeige(wahl().typ == typ ? QString() : dreitext(m_eingabe.anzahl()), Befundzeile::Ton::Hinweis);
    aktualisieren(false);
}

/// Without three rows it is the concentration diagram instead of the ternary one.
void Diagrammbereich::setTyp(Diagrammtyp typ)
{
    const bool isPossible = typ != Diagrammtyp::Ternaer || m_eingabe.anzahl() == 3; // without a box
    m_auswahl->setTyp(isPossible ? typ : Diagrammtyp::Konzentration);
    m_lblSteps->setVisible(wahl().typ == Diagrammtyp::Ternaer);
    for (StyledButton* const button : m_cmdSteps)
        button->setVisible(wahl().typ == Diagrammtyp::Ternaer);
}

void Diagrammbereich::stepResolution(int step)
{
    m_steps += step;
    if (m_steps > FeinsteAufloesung)
        m_steps = 1;
    else if (m_steps < 1)
        m_steps = FeinsteAufloesung;
    wahl().aufloesung = m_steps;
    showSteps();
    aktualisieren(true);
    emit geschehen({QStringLiteral("Auflösung")});
}

void Diagrammbereich::showSteps() { m_lblSteps->setText(QStringLiteral("Auflösung: %1").arg(m_steps)); }

void Diagrammbereich::aktualisieren(bool keepSelection)
{
    if (!m_programm.StartupDone())
        return;
    refreshLabels();
    m_auswahl->zeigeLehrbuch();
    switch (wahl().typ) {
    case Diagrammtyp::Konzentration:
        drawConcentration(keepSelection);
        break;
    case Diagrammtyp::Ternaer:
        drawTernary();
        break;
    case Diagrammtyp::PSE:
        drawPSE();
        break;
    }
}

void Diagrammbereich::drawConcentration(bool keepSelection)
{
    if (!keepSelection)
        selectFirstComponent();
    if (m_eingabe.anzahl() == 1) {
        m_picDiagramm->showHinweis(
            QStringLiteral("Für ein Konzentrationsdiagramm sind\nmindestens zwei Komponenten nötig."));
        return;
    }
    if (showObstacle())
        return;
    m_picDiagramm->display().setKompositionBereit(m_eingabe.istVollstaendig());
    if (!m_eingabe.istVollstaendig()) { // while an at% is being typed the diagram stays, as the results do
        if (!m_programm.gerechneteEingabe().istVollstaendig())
            m_picDiagramm->showFehler(QStringLiteral("Es sind nicht alle Anteile eingetragen!"));
        return;
    }
    try {
        drawSeries();
        m_picDiagramm->showKonzentration();
    } catch (const Laufzeitfehler& error) {
        showError(error);
    }
}

/// Shows why no diagram can be computed for the rows; false if it can.
bool Diagrammbereich::showObstacle()
{
    const auto hindernis = m_eingabe.hindernis();
    if (hindernis)
        m_picDiagramm->showFehler(toQt(hindernis->grund));
    return hindernis.has_value();
}

void Diagrammbereich::showError(const Laufzeitfehler& error)
{
    m_picDiagramm->showFehler(QStringLiteral("%1 (%2)\n\nDie Größe hat hier keinen Wert oder ist an den Enden 0: Werte "
                                             "der Komponenten prüfen oder eine andere Größe wählen.")
                                  .arg(toQt(error.what()))
                                  .arg(error.Nummer()));
}

void Diagrammbereich::drawTernary()
{
    if (m_eingabe.anzahl() != 3) {
        chooseType(Diagrammtyp::Konzentration);
        return;
    }
    if (showObstacle())
        return;
    try {
        const Legierung legierung = m_eingabe.legierung().value();
        Anteile3 current{};
        std::ranges::transform(legierung.komponenten(), current.begin(),
            [](const Legierungskomponente& komponente) { return komponente.prozent / 100.0; });
        m_picDiagramm->showTernaer(
            ternaergitter(m_programm.Calc(), legierung.komponenten(), wahl().groesse, m_steps), current);
    } catch (const Laufzeitfehler& error) {
        showError(error);
    }
}

void Diagrammbereich::drawSeries()
{
    conDisplay& display = m_picDiagramm->display();
    std::array<float, MaxKomponenten> dichten{};
    for (int row = 0; row < m_eingabe.anzahl(); ++row)
        dichten.at(static_cast<std::size_t>(row)) = m_eingabe.zeile(row).dichte.wert;
    display.setLegierung(m_eingabe.legierung().value());
    display.setDichtefelder(dichten);
    display.setVariablesElement(wahl().komponente);
    display.Zeichne_Diagramm_2D(wahl().groesse, wahl().komponente);
}

void Diagrammbereich::drawPSE()
{
    try {
        std::vector<std::string> symbols;
        for (const auto& element : m_programm.ElementCollection())
            symbols.push_back(element->symbol());
        m_picDiagramm->showPSE(
            pseReihe(m_programm.ElementCollection(), m_programm.Calc(), wahl().groesse), std::move(symbols));
    } catch (const Laufzeitfehler& error) {
        showError(error);
    }
}

/// Each row has its label; the balance row's cannot be stepped, and none can while mass % are typed.
void Diagrammbereich::refreshLabels()
{
    constexpr float Shown = 1e6F; // what no label has room for is left as it was
    for (int row = 0; row < MaxKomponenten; ++row) {
        conLabel& label = *m_conLabel.at(static_cast<std::size_t>(row));
        label.setVisible(row < m_eingabe.anzahl() && wahl().typ == Diagrammtyp::Konzentration);
        if (row >= m_eingabe.anzahl())
            continue;
        const Eingabefeld& prozent = m_eingabe.prozentInKraft(row);
        label.setLabel(symbolOf(m_eingabe.zeile(row)) + QLatin1Char(' '));
        label.setEnabled(!m_eingabe.istAusgleich(row) && m_eingabe.einheit() == Anteilseinheit::Atom);
        if (!prozent.fehler && std::abs(prozent.wert) < Shown)
            label.setValue(static_cast<int>(std::lround(prozent.wert)));
    }
}

} // namespace zerna
