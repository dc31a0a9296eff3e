#include "ui/search/frmZielsuche.h"

#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "core/CheckedArithmetic.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Masse.h"
#include "ui/controls/Wertfeld.h"
#include "ui/pages/Diagrammseite.h"
#include "ui/pages/Kurvenmenue.h"
#include "ui/platform/QtText.h"
#include "ui/search/Anteilsseite.h"
#include "ui/search/Drittelementseite.h"

namespace zerna {

namespace {

/// Whether the diagram has a quantity of alloys, which the search follows.
bool zeigtGroesse(const Diagrammwahl& wahl)
{
    return wahl.typ == Diagrammtyp::Konzentration || wahl.typ == Diagrammtyp::Ternaer;
}

} // namespace

frmZielsuche::frmZielsuche(Programm& programm, QWidget* parent)
    : QDialog(parent)
    , m_programm(programm)
{
    setObjectName(QStringLiteral("frmZielsuche"));
    setWindowTitle(QStringLiteral("Bei welchem Anteil?"));
    createControls();
    connectSeiten();
    layOut();
}

/// In the order of the tab key, which begins at the value: the quantity is mostly that of the diagram.
void frmZielsuche::createControls()
{
    m_cmbGroesse = new QComboBox(this);
    m_cmbGroesse->setObjectName(QStringLiteral("cmbSuche_Groesse"));
    for (const int kennzahl : legierungsgroessen())
        m_cmbGroesse->addItem(toQt(findReihengroesse(kennzahl)->name), kennzahl);
    connect(m_cmbGroesse, &QComboBox::activated, this, [this] {
        showGroesse();
        verlangeWahl();
    });
    m_txtZiel = new Wertfeld(this);
    m_txtZiel->setObjectName(QStringLiteral("txtSuche_Ziel"));
    m_txtZiel->setEigenerVerlauf(true);
    connect(m_txtZiel, &Wertfeld::textChanged, this, &frmZielsuche::suche);
    m_lblEinheit = new QLabel(this);
    m_lblEinheit->setObjectName(QStringLiteral("lblSuche_Einheit"));
    m_lblEinheit->setTextFormat(Qt::PlainText);
    m_seiten = new QTabWidget(this);
    m_seiten->setObjectName(QStringLiteral("tabSuche"));
    m_anteil = new Anteilsseite(m_programm, m_seiten);
    m_drittes = new Drittelementseite(m_programm, m_seiten);
    m_cmdPunkte = new StyledButton(QStringLiteral("Pun&kte kopieren"), this);
    m_cmdPunkte->setObjectName(QStringLiteral("cmdSuche_Punkte"));
    m_cmdPunkte->setToolTipText(
        QStringLiteral("Die Punkte der Linie mit dem gesuchten Wert im ternären Diagramm als Tabelle kopieren"));
    connect(m_cmdPunkte, &StyledButton::clicked, this, &frmZielsuche::punkteRequested);
}

void frmZielsuche::connectSeiten()
{
    connect(m_anteil, &Anteilsseite::komponenteChosen, this, [this](int row) {
        m_anteil->setKomponente(row);
        verlangeWahl();
    });
    connect(m_anteil, &Anteilsseite::mischungsreiheChosen, this, &frmZielsuche::mischungsreiheChosen);
    connect(m_anteil, &Anteilsseite::uebernommen, this, [this](const Eingabe& eingabe) {
        emit uebernommen(eingabe, {QStringLiteral("Anteil übernehmen")}, QStringLiteral("Anteil übernommen"));
    });
    connect(m_drittes, &Drittelementseite::uebernommen, this, [this](const Eingabe& eingabe, const QString& symbol) {
        emit uebernommen(
            eingabe, {QStringLiteral("%1 hinzufügen").arg(symbol)}, QStringLiteral("%1 hinzugefügt").arg(symbol));
    });
}

void frmZielsuche::layOut()
{
    auto* const ziel = new QHBoxLayout;
    ziel->addWidget(m_txtZiel, 1);
    ziel->addWidget(m_lblEinheit);
    auto* const form = new QFormLayout;
    form->addRow(QStringLiteral("&Größe:"), m_cmbGroesse);
    auto* const caption = new QLabel(QStringLiteral("Gesuchter &Wert:"), this);
    caption->setBuddy(m_txtZiel);
    form->addRow(caption, ziel);
    m_seiten->addTab(m_anteil, QStringLiteral("A&nteil"));
    m_seiten->addTab(m_drittes, QStringLiteral("Weiteres &Element"));
    auto* const close = new StyledButton(QStringLiteral("S&chließen"), this);
    close->setObjectName(QStringLiteral("cmdSuche_Schliessen"));
    connect(close, &StyledButton::clicked, this, &QDialog::close);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addLayout(form);
    column->addWidget(m_seiten, 1);
    column->addLayout(knopfzeile({m_cmdPunkte, close}));
    resize(QSize(540, 480).expandedTo(fontMetrics().height() * QSize(36, 32))); // room for an answer's sentence
}

int frmZielsuche::groesse() const { return m_cmbGroesse->currentData().toInt(); }

/// Takes the quantity and the component of the diagram, where it has them.
void frmZielsuche::zeige()
{
    if (!isVisible())
        return;
    const Diagrammwahl& wahl = m_programm.Dokument().diagramm;
    m_cmdPunkte->setVisible(wahl.typ == Diagrammtyp::Ternaer);
    const int position = zeigtGroesse(wahl) ? m_cmbGroesse->findData(wahl.groesse) : -1;
    if (wahl.typ == Diagrammtyp::Konzentration)
        m_anteil->setKomponente(wahl.komponente);
    m_anteil->setMischungsreihe(m_programm.settings().istAn(Mischungsreihenschluessel));
    if (position >= 0 && position != m_cmbGroesse->currentIndex()) {
        m_cmbGroesse->setCurrentIndex(position);
        showGroesse();
    }
    suche();
}

/// Begins with the value that the alloy has.
void frmZielsuche::showGroesse()
{
    constexpr int Digits = 5;
    const Groesse& gesucht = *findReihengroesse(groesse());
    m_lblEinheit->setText(toQt(gesucht.einheit));
    const float value = orUnbekannt([&] { return wert(gesucht, m_programm.Calc()); });
    m_txtZiel->setWert(istUnbekannt(value) ? QString() : toQt(textWithDigits(value, Digits)), false);
}

void frmZielsuche::frage(int groesse, const QString& ziel)
{
    const Diagrammwahl& wahl = m_programm.Dokument().diagramm;
    const bool isPSE = wahl.typ == Diagrammtyp::PSE;
    const std::optional<int> shown = isPSE ? wahl.andereGroesse : std::optional(wahl.groesse);
    const int asked = groesse < 0 && (isPSE || zeigtGroesse(wahl)) ? shown.value_or(groesse) : groesse;
    m_cmbGroesse->setCurrentIndex(std::max(0, m_cmbGroesse->findData(asked)));
    showGroesse();
    if (!ziel.isEmpty())
        m_txtZiel->setWert(ziel, false);
    if (groesse >= 0)
        m_seiten->setCurrentWidget(m_anteil);
    if (!isVisible())
        placeBeside();
    show();
    raise();
    activateWindow();
    verlangeWahl();
    m_txtZiel->setFocus(Qt::OtherFocusReason);
    m_txtZiel->selectAll();
}

/// The diagram is to show what is asked for. It need not change for that, so the search is made anew in any case.
void frmZielsuche::verlangeWahl()
{
    emit wahlRequested(groesse(), m_anteil->frage().komponente);
    zeige();
}

/// Over the results: composition and diagram stay to be seen. A place that the user has chosen is kept.
void frmZielsuche::placeBeside()
{
    constexpr int Margin = 8;
    if (parentWidget() == nullptr || testAttribute(Qt::WA_Moved))
        return;
    const QRect available = fensterraum(*parentWidget());
    resize(size().boundedTo(available.size()));
    const QPoint corner = parentWidget()->mapToGlobal(QPoint(Margin, parentWidget()->height() - height() - Margin));
    move(qMax(corner.x(), available.left()), qMax(corner.y(), available.top()));
}

void frmZielsuche::suche()
{
    const Eingabefeld typed = zahlenfeld(fromQt(m_txtZiel->text()));
    m_txtZiel->setFehler(typed.fehler ? toQt(typed.fehler->text()) : QString());
    const std::optional<float> ziel = typed.fehler ? std::nullopt : std::optional(typed.wert);
    for (Suchseite* const seite : {static_cast<Suchseite*>(m_anteil), static_cast<Suchseite*>(m_drittes)})
        seite->suche(groesse(), typed);
    m_cmdPunkte->setEnabled(ziel.has_value());
    nenneMarken(ziel);
}

/// Tells the diagram what is found, nothing while there is no question to be seen.
void frmZielsuche::nenneMarken(std::optional<float> ziel)
{
    Suchmarken now{.groesse = groesse(), .komponente = m_anteil->frage().komponente};
    if (isVisible()) {
        now.ziel = ziel;
        for (const Loesung& loesung : m_anteil->antwort().loesungen)
            now.prozente.push_back(loesung.prozent);
    }
    emit markenChanged(now);
}

/// Enter leads to the answers from every part of the question; there it enters the chosen one.
void frmZielsuche::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        qobject_cast<Suchseite*>(m_seiten->currentWidget())->gehZuAntworten();
    else
        QDialog::keyPressEvent(event);
}

void frmZielsuche::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    nenneMarken({});
}

} // namespace zerna
