#include "ui/main/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <initializer_list>
#include <span>

#include "ui/comparison/Vergleichsbereich.h"
#include "ui/composition/Kompositionsbereich.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Kurzmeldung.h"
#include "ui/controls/Menue.h"
#include "ui/controls/Radsperre.h"
#include "ui/controls/Rollflaeche.h"
#include "ui/controls/Spaltenpaar.h"
#include "ui/controls/Umbruchzeile.h"
#include "ui/main/Dateibefehle.h"
#include "ui/main/Fensterplatz.h"
#include "ui/main/Hilfe.h"
#include "ui/main/Speichermelder.h"
#include "ui/main/Zugangsfabrik.h"
#include "ui/pages/Diagrammbereich.h"
#include "ui/picker/PSEbereich.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"
#include "ui/platform/Spaetsymbol.h"
#include "ui/results/Ergebnisbereich.h"
#include "ui/weighing/conWiegen.h"

namespace zerna {

namespace {

constexpr int PanelLeft = 4;
constexpr int PanelTop = 40; // height of the strip with the panel switches

/// The diagram area begins behind the left column and takes the width less 640. Both, and the height of the strip, are
/// the sizes at the usual font: where a larger one needs more, strip and column grow and the diagram area gives way.
constexpr int LeftColumn = 628;

StyledButton* makeSwitch(QWidget* parent, const QString& caption, const QString& name)
{
    auto* button = new StyledButton(caption, parent);
    button->setObjectName(name);
    button->setCheckable(true);
    button->setAutoExclusive(false);
    return button;
}

/// The program's picture in the sizes of title bars and task lists, the small ones drawn for their size.
QIcon programmsymbol()
{
    QIcon symbol;
    for (const int size : {16, 24, 32, 48, 64, 128})
        symbol.addFile(QStringLiteral(":/zerna-%1.png").arg(size));
    return symbol;
}

/// Shows which of the switches is on.
void checkOnly(std::span<StyledButton* const> switches, int on)
{
    for (int i = 0; i < std::ssize(switches); ++i)
        switches[static_cast<std::size_t>(i)]->setChecked(i == on);
}

} // namespace

frmMain::frmMain(Programm& programm, Dialoge dialoge)
    : m_programm(programm)
    , m_verlauf(programm.Dokument(), programm.gerechneteEingabe())
{
    installZugangsfabrik();
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(toQt(Programmtitel));
    setWindowIcon(spaetesSymbol(programmsymbol));
    createControls();
    m_speichern = std::make_unique<Speichermelder>(dialoge.save, *m_meldung);
    const Dialoge meldende{*m_speichern, dialoge.input, dialoge.open};
    createCalculatorPanel(meldende);
    m_dateien = new Dateibefehle(programm, meldende, *this);
    m_hilfe = new Hilfe(*this, programm.settings());
    layOut();
    connectPanels();
    connectVerlauf();
    connectSuche();
    fillMenu();
    new Radsperre(*this);
    load();
    (new Fensterplatz(*this, programm.settings()))
        ->einnehmen(QSize(1280, 800).expandedTo(
            m_pic1->sizeHint() + QSize(PanelLeft, PanelTop + m_menue->sizeHint().height())));
}

/// The focus leaves a field while the window goes, and what that tells reaches nobody any more.
frmMain::~frmMain()
{
    for (QObject* const panel :
        std::initializer_list<QObject*>{m_komposition, m_ergebnisse, m_diagramm, m_conWiegen1, m_pse, m_vergleich})
        panel->disconnect(this);
}

void frmMain::load()
{
    m_diagramm->load();
    m_komposition->restoreCount();
    showPanel(0);
    showLowerArea(0);
}

void frmMain::createControls()
{
    m_menue = new Menue(this);
    m_menue->setObjectName(QStringLiteral("mnuMain"));
    m_optButton1[0] = makeSwitch(this, QStringLiteral("&Rechner"), QStringLiteral("optButton_1_0"));
    m_optButton1[1] = makeSwitch(this, QStringLiteral("&Periodensystem"), QStringLiteral("optButton_1_1"));
    m_optButton1[2] = makeSwitch(this, QStringLiteral("&Vergleich"), QStringLiteral("optButton_1_2"));
    m_cmdAbout = new StyledButton(QStringLiteral("&Info"), this);
    m_cmdAbout->setObjectName(QStringLiteral("cmdAbout"));
    m_cmdAbout->setToolTipText(QStringLiteral("Über dieses Programm"));
    setKnopfgroesse(m_optButton1[0], 120);
    setKnopfgroesse(m_optButton1[1], 150);
    setKnopfgroesse(m_optButton1[2], 120);
    m_meldung = new Kurzmeldung(this);
    m_meldung->setObjectName(QStringLiteral("lblMeldung"));
    setKnopfgroesse(m_cmdAbout, 90);
    m_pic1 = new Spaltenpaar;
    m_pic1->setObjectName(QStringLiteral("Pic_1_0"));
    m_pse = new PSEbereich(m_programm);
    m_pse->setObjectName(QStringLiteral("Pic_1_1"));
}

void frmMain::createCalculatorPanel(Dialoge dialoge)
{
    m_left = new QWidget(m_pic1);
    m_komposition = new Kompositionsbereich(m_programm, m_left);
    m_cmdKnopf1[0] = makeSwitch(m_left, QStringLiteral("&Ergebnisse"), QStringLiteral("cmdKnopf1_0"));
    m_cmdKnopf1[1] = makeSwitch(m_left, QStringLiteral("Ein&waage"), QStringLiteral("cmdKnopf1_1"));
    m_ergebnisse = new Ergebnisbereich(m_programm, dialoge.save);
    m_conWiegen1 = new conWiegen(m_programm, dialoge.save);
    m_conWiegen1->setObjectName(QStringLiteral("conWiegen1"));
    m_lowerArea = new QStackedWidget(m_left); // as wide as the wider area, so that nothing moves with a switch
    m_lowerArea->addWidget(m_ergebnisse);
    m_lowerArea->addWidget(m_conWiegen1);
    m_diagramm = new Diagrammbereich(m_programm, dialoge, m_pic1);
    m_vergleich = new Vergleichsbereich(m_programm, dialoge);
    m_vergleich->setObjectName(QStringLiteral("Pic_1_2"));
    layOutCalculator();
}

void frmMain::layOutCalculator()
{
    auto* switches = new QHBoxLayout;
    switches->setSpacing(4);
    for (StyledButton* const button : m_cmdKnopf1) {
        setKnopfgroesse(button, 120);
        switches->addWidget(button);
    }
    switches->addStretch();
    auto* column = new QVBoxLayout(m_left);
    column->setContentsMargins(4, 4, 4, 8);
    column->setSpacing(8);
    column->addStrut(LeftColumn - 8);
    column->addWidget(m_komposition);
    column->addSpacing(4);
    column->addLayout(switches);
    column->addWidget(m_lowerArea, 1);

    m_left->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    m_pic1->setSpalten(m_left, m_diagramm, {0, 0, 4, 0}, 4);
}

/// Below the menu bar the strip, and below that at (4, 40) the panels, as large as the window less menu bar and these
/// margins.
void frmMain::layOut()
{
    auto* strip = new QWidget(this);
    strip->setMinimumHeight(PanelTop);
    auto* row = new Umbruchzeile(strip);
    row->setContentsMargins(8, 6, 8, 6);
    row->setSpacing(4);
    for (StyledButton* const button : m_optButton1)
        row->addWidget(button);
    m_meldung->setContentsMargins(12, 0, 0, 0);
    m_meldung->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    row->addWidget(m_meldung);
    row->addWidget(m_cmdAbout);
    folgeSchrift(this, [this] { setMinimumHeight(16 * fontMetrics().height()); }); // room for two rows and a view
    m_panels = new QStackedWidget(this);
    m_panels->addWidget(new Rollflaeche(m_pic1));
    m_panels->addWidget(new Rollflaeche(m_pse));
    m_panels->addWidget(new Rollflaeche(m_vergleich));
    m_panels->setContentsMargins(PanelLeft, 0, 0, 0);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->setMenuBar(m_menue);
    column->addWidget(strip);
    column->addWidget(m_panels, 1);
}

void frmMain::connectPanels()
{
    for (std::size_t i = 0; i < m_optButton1.size(); ++i)
        connect(m_optButton1.at(i), &StyledButton::clicked, this, [this, i] { showPanel(static_cast<int>(i)); });
    for (std::size_t i = 0; i < m_cmdKnopf1.size(); ++i)
        connect(m_cmdKnopf1.at(i), &StyledButton::clicked, this, [this, i] { showLowerArea(static_cast<int>(i)); });
    connect(m_cmdAbout, &StyledButton::clicked, this, &frmMain::showAbout);
    connect(m_komposition, &Kompositionsbereich::geaendert, this, &frmMain::uebernehmen);
    connect(m_komposition, &Kompositionsbereich::befundGeaendert, this,
        [this] { m_ergebnisse->zeigeLage(m_programm.Eingabe()); });
    connect(m_komposition, &Kompositionsbereich::einheitGeaendert, this,
        [this] { m_diagramm->zeige(m_programm.Eingabe(), {}); });
    connect(m_ergebnisse, &Ergebnisbereich::befundGewaehlt, m_komposition, &Kompositionsbereich::gehZu);
    connect(m_pse, &PSEbereich::componentChosen, this,
        [this](int row, const QString& symbol) { ComboElementListIndex(row, findElementEntry(fromQt(symbol))); });
    connect(m_diagramm, &Diagrammbereich::dreiKomponentenRequested, this, [this] {
        const Verlauf::Handlung handlung(m_verlauf, {QStringLiteral("Drei Komponenten")});
        m_komposition->setAnzahl(3);
        m_diagramm->selectTernary();
    });
    connect(m_diagramm, &Diagrammbereich::prozentStepped, m_komposition, &Kompositionsbereich::enterProzent);
    connect(m_vergleich, &Vergleichsbereich::geschehen, m_diagramm, &Diagrammbereich::zeigeVarianten);
    connect(m_vergleich, &Vergleichsbereich::gemeldet, m_meldung, &Kurzmeldung::zeige);
    connect(m_vergleich, &Vergleichsbereich::ladenRequested, this, &frmMain::lade);
}

void frmMain::ComboElementListIndex(int index, int listIndex) { m_komposition->chooseElement(index, listIndex); }

void frmMain::addElement(std::string_view symbol, int itemData) { m_komposition->addElement(symbol, itemData); }

std::string frmMain::elementEntry(int position) const { return m_komposition->elementEntry(position); }

int frmMain::findElementEntry(std::string_view text) const { return m_komposition->findElementEntry(text); }

void frmMain::selectFirstDiagram()
{
    m_diagramm->selectFirstType();
    m_diagramm->selectFirstComponent();
}

void frmMain::compute()
{
    uebernehmen({.anzahl = true, .element = true, .anteil = true, .dichte = true, .valenz = true});
    m_verlauf.beginne();
    m_dateien->beginne();
}

/// The way of every edit: the calculator gets the alloy once, then the panels that show it get it.
void frmMain::uebernehmen(const Aenderung& aenderung)
{
    if (m_programm.StartupDone() && m_programm.uebernehmen()) {
        m_ergebnisse->zeige(m_programm.gerechneteEingabe());
        if (aenderung.anzahl || aenderung.element || aenderung.anteil) // nothing else is weighed
            m_conWiegen1->Aktualisieren(m_programm.gerechneteEingabe());
    }
    m_ergebnisse->zeigeLage(m_programm.Eingabe());
    m_diagramm->zeige(m_programm.Eingabe(), aenderung);
    zeigeSuche();
    m_meldung->zeige({});
}

/// Puts a kept alloy in place of the entered one.
void frmMain::lade(const QString& name, const zerna::Eingabe& eingabe)
{
    m_komposition->setEingabe(eingabe, {QStringLiteral("„%1“ laden").arg(name)});
    showPanel(0);
    m_komposition->focusFirstField();
    m_meldung->zeige(QStringLiteral("✓  „%1“ geladen").arg(name));
}

void frmMain::sperren(std::string_view grund)
{
    for (QWidget* const part : {m_left, static_cast<QWidget*>(m_diagramm)})
        part->hide();
    for (StyledButton* const button : m_optButton1)
        button->setEnabled(false);
    auto* reason = new QLabel(toQt(grund).remove(QLatin1Char('\r')), m_pic1);
    reason->setObjectName(QStringLiteral("lblSperre"));
    reason->setTextFormat(Qt::PlainText);
    reason->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    reason->setWordWrap(true);
    reason->setAlignment(Qt::AlignCenter);
    reason->setContentsMargins(40, 0, 40, 0);
    m_pic1->layout()->addWidget(reason);
    m_menue->sperre();
}

void frmMain::show()
{
    m_komposition->nenneElemente();
    QWidget::show();
    m_komposition->focusFirstField();
}

OffeneDatei frmMain::offeneDatei() const { return m_dateien->offen(); }

void frmMain::setzeFort(const Sitzung::Stand& stand)
{
    m_programm.Dokument() = stand.dokument;
    m_dateien->setzeFort(stand.datei);
    m_meldung->zeige(QStringLiteral("✓  letzte Legierung wiederhergestellt"));
    if (!stand.hinweis.empty())
        m_programm.boxes().show(Icon::Exclamation, Programmtitel, stand.hinweis);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    if (!m_dateien->darfSchliessen()) {
        event->ignore();
        return;
    }
    emit schliesst();
    m_programm.shutdown();
    QWidget::closeEvent(event);
}

void frmMain::showPanel(int panel)
{
    const bool isOther = isVisible() && m_panels->currentIndex() != panel;
    checkOnly(m_optButton1, panel);
    if (panel == 2)
        m_vergleich->baue();
    m_panels->setCurrentIndex(panel);
    if (panel == 0 && isOther) { // where the work was left
        QWidget* const last = m_pic1->focusWidget();
        last != nullptr && last->isVisible() ? last->setFocus() : m_komposition->focusFirstField();
    }
    if (panel == 1) {
        m_pse->layOut();
        m_pse->setFocus();
    }
    if (panel == 2)
        m_vergleich->setFocus();
}

void frmMain::showLowerArea(int area)
{
    checkOnly(m_cmdKnopf1, area);
    m_lowerArea->setCurrentIndex(area);
}

} // namespace zerna
