#include "ui/comparison/Vergleichsbereich.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "model/dokument/Varianten.h"
#include "programm/Exportieren.h"
#include "ui/comparison/Vergleichsansicht.h"
#include "ui/comparison/Vergleichsmodell.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Menue.h"
#include "ui/controls/Radsperre.h"
#include "ui/controls/Tabellenknopf.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Tabreihenfolge.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

constexpr const char* Anleitung =
    "<p>Hier stehen gemerkte Legierungen nebeneinander: für jede eine Spalte, für jede Größe eine Zeile, dazu die "
    "Unterschiede zu einer Referenz.</p><p><b>Strg+D</b> oder <b>Merken</b> merkt die Legierung, die im Rechner steht. "
    "Was dort später geändert wird, ändert die Spalte nicht mehr.</p>";

/// In front of a UTF-8 text, so that other programs read it as such.
const std::string Bytefolge = "\xEF\xBB\xBF";

QString zitat(const std::string& name) { return QStringLiteral("„%1“").arg(toQt(name)); }

} // namespace

Vergleichsbereich::Vergleichsbereich(Programm& programm, Dialoge dialoge, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_dialoge(dialoge)
    , m_modell(new Vergleichsmodell(this))
    , m_gezeigt(programm.Dokument().vergleich)
    , m_menu(new QMenu(this))
{
    createActions();
    showState();
}

void Vergleichsbereich::baue()
{
    if (m_ansicht != nullptr)
        return;
    createControls();
    createSeiten();
    layOut();
    new Radsperre(*this); // like the lists that the window began with
    connect(m_ansicht, &Vergleichsansicht::legierungGewaehlt, this, &Vergleichsbereich::showState);
    connect(m_ansicht, &Vergleichsansicht::doppelklick, this, &Vergleichsbereich::lade);
    connect(m_ansicht, &Vergleichsansicht::menuRequested, m_menu, [this](const QPoint& at) { m_menu->popup(at); });
    connect(m_ansicht, &Vergleichsansicht::verschoben, this,
        [this](int from, int to) { verschiebe(static_cast<std::size_t>(from), static_cast<std::size_t>(to)); });
    showState();
}

QAction* Vergleichsbereich::makeAction(
    const QString& text, const char* name, const QList<QKeySequence>& keys, void (Vergleichsbereich::*act)())
{
    auto* const action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
    m_menu->addAction(action);
    return action;
}

void Vergleichsbereich::createActions()
{
    using Bereich = Vergleichsbereich;
    m_laden = makeAction(QStringLiteral("In den Rechner la&den\tEingabetaste"), "mnuVergleich_Laden",
        {QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)}, &Bereich::lade);
    removeAction(m_laden); // the keys press a button that has the focus: the table gets it
    m_referenz = makeAction(QStringLiteral("Als Re&ferenz"), "mnuVergleich_Referenz", {}, &Bereich::alsReferenz);
    m_umbenennen = makeAction(
        QStringLiteral("&Umbenennen ..."), "mnuVergleich_Umbenennen", {QKeySequence(Qt::Key_F2)}, &Bereich::benenneUm);
    m_links = makeAction(QStringLiteral("Nach &links"), "mnuVergleich_Links",
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Left)}, &Bereich::nachLinks);
    m_rechts = makeAction(QStringLiteral("Nach &rechts"), "mnuVergleich_Rechts",
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Right)}, &Bereich::nachRechts);
    m_loeschen = makeAction(
        QStringLiteral("Lös&chen"), "mnuVergleich_Loeschen", {QKeySequence(Qt::Key_Delete)}, &Bereich::loesche);
    m_menu->addSeparator();
    m_kopieren = makeAction(QStringLiteral("&Kopieren"), "mnuVergleich_Kopieren", {QKeySequence(QKeySequence::Copy)},
        &Bereich::copySelection);
}

void Vergleichsbereich::addBefehle(Menue& menue)
{
    using enum Menue::Abschnitt;
    menue.add(Ausgabe,
        {.text = QStringLiteral("&Vergleich speichern ..."),
            .name = "mnuVergleich_Speichern",
            .tun = [this] { save(); },
            .moeglich = [this] { return !vergleich().varianten.empty(); }});
    menue.add(Legierung,
        {.text = QStringLiteral("Legierung &merken"),
            .name = "mnuVergleich_Merken",
            .tasten = {QKeySequence(Qt::CTRL | Qt::Key_D)},
            .tun = [this] { merke(); }});
    menue.addUntermenue(Legierung, QStringLiteral("&Vergleich"))->addActions(m_menu->actions());
}

/// A button that does what the action does, when the action can.
StyledButton* Vergleichsbereich::makeButton(const QString& caption, const char* name, QAction* action)
{
    auto* const button = new StyledButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setEnabled(action->isEnabled());
    connect(button, &StyledButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, button, [button, action] { button->setEnabled(action->isEnabled()); });
    return button;
}

void Vergleichsbereich::createControls()
{
    m_ansicht = new Vergleichsansicht(*m_modell, this);
    m_ansicht->setObjectName(QStringLiteral("tblVergleich"));
    m_ansicht->addAction(m_laden);
    m_cmbArt = new QComboBox(this);
    m_cmbArt->setObjectName(QStringLiteral("cmbVergleich_Art"));
    for (const auto& [text, art] : {std::pair(QStringLiteral("Werte"), Vergleichsart::Wert),
             {QStringLiteral("Differenz zur Referenz"), Vergleichsart::Differenz},
             {QStringLiteral("Differenz in %"), Vergleichsart::Prozent}})
        m_cmbArt->addItem(text, static_cast<int>(art));
    connect(m_cmbArt, &QComboBox::activated, this,
        [this] { m_modell->setArt(static_cast<Vergleichsart>(m_cmbArt->currentData().toInt())); });
    m_tabellenknopf = new Tabellenknopf(m_programm.settings(), QStringLiteral("Vergleich"),
        QStringLiteral("Den ganzen Vergleich mit ganzen Zahlen für Tabellen- und Textprogramme"), this);
    connect(m_tabellenknopf, &Tabellenknopf::copyRequested, this, &Vergleichsbereich::copyTable);
    m_cmdSpeichern = new StyledButton(QStringLiteral("&Speichern"), this);
    m_cmdSpeichern->setObjectName(QStringLiteral("cmdVergleich_Speichern"));
    m_cmdSpeichern->setToolTipText(QStringLiteral("Den Vergleich als Tabelle speichern"));
    connect(m_cmdSpeichern, &StyledButton::clicked, this, &Vergleichsbereich::save);
}

/// The buttons above the table, in their order.
std::vector<StyledButton*> Vergleichsbereich::createBar()
{
    auto* const merken = new StyledButton(QStringLiteral("&Merken"), this);
    merken->setObjectName(QStringLiteral("cmdVergleich_Merken"));
    merken->setToolTipText(QStringLiteral("Die Legierung im Rechner als Spalte merken (Strg+D)"));
    connect(merken, &StyledButton::clicked, this, &Vergleichsbereich::merke);
    std::vector<StyledButton*> buttons{merken, makeButton(QStringLiteral("La&den"), "cmdVergleich_Laden", m_laden),
        makeButton(QStringLiteral("Als Re&ferenz"), "cmdVergleich_Referenz", m_referenz),
        makeButton(QStringLiteral("&Umbenennen"), "cmdVergleich_Umbenennen", m_umbenennen),
        makeButton(QStringLiteral("Lös&chen"), "cmdVergleich_Loeschen", m_loeschen)};
    for (StyledButton* const button : buttons)
        setKnopfgroesse(button, 90);
    StyledButton* const left = makeButton(QStringLiteral("◀"), "cmdVergleich_Links", m_links);
    StyledButton* const right = makeButton(QStringLiteral("▶"), "cmdVergleich_Rechts", m_rechts);
    for (const auto& [button, hint] : {std::pair(left, QStringLiteral("Spalte nach links (Strg+Umschalt+Pfeil)")),
             {right, QStringLiteral("Spalte nach rechts (Strg+Umschalt+Pfeil)")}}) {
        setZeichenknopf(button);
        button->setAccessibleName(hint);
        button->setToolTipText(hint);
    }
    buttons.insert(buttons.end() - 1, {left, right});
    return buttons;
}

/// What the panel is for, and in place of it the table once there is one.
void Vergleichsbereich::createSeiten()
{
    auto* const guide = new QLabel(QString::fromUtf8(Anleitung), this);
    guide->setObjectName(QStringLiteral("lblVergleich_Anleitung"));
    guide->setWordWrap(true);
    guide->setAlignment(Qt::AlignCenter);
    guide->setMargin(40);
    m_seiten = new QStackedWidget(this);
    m_seiten->addWidget(guide);
    m_seiten->addWidget(m_ansicht);
    setFocusProxy(m_ansicht);
}

void Vergleichsbereich::layOut()
{
    auto* const above = new QHBoxLayout;
    above->setSpacing(6);
    std::vector<QWidget*> order;
    for (StyledButton* const button : createBar()) {
        above->addWidget(button);
        order.push_back(button);
    }
    above->addStretch();
    auto* const caption = new QLabel(QStringLiteral("An&zeigen:"), this);
    caption->setBuddy(m_cmbArt);
    QHBoxLayout* const below = knopfzeile({m_cmdSpeichern});
    below->insertWidget(0, caption);
    below->insertWidget(1, m_cmbArt);
    below->insertWidget(below->count() - 1, m_tabellenknopf);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 8, 8);
    column->setSpacing(8);
    column->addLayout(above);
    column->addWidget(m_seiten, 1);
    column->addLayout(below);
    order.insert(order.end(), {m_ansicht, m_cmbArt});
    std::ranges::copy(m_tabellenknopf->tabOrder(), std::back_inserter(order));
    order.push_back(m_cmdSpeichern);
    setTabReihenfolge(order);
}

void Vergleichsbereich::zeige()
{
    const Geteilt<Vergleich>& now = m_programm.Dokument().vergleich;
    if (m_gezeigt.istDasselbe(now))
        return;
    baue();
    m_gezeigt = now;
    const int chosen = m_ansicht->legierung();
    m_modell->setze(vergleich(), m_programm.Calc());
    m_ansicht->passeBreitenAn();
    m_ansicht->waehle(std::clamp(chosen, 0, std::max(m_modell->columnCount() - 1, 0)));
    m_seiten->setCurrentIndex(vergleich().varianten.empty() ? 0 : 1);
    showState();
}

/// What can be done with the chosen alloy: something only while it is seen, since the menu bar offers it everywhere.
void Vergleichsbereich::showState()
{
    const int column = isVisible() && m_ansicht != nullptr ? m_ansicht->legierung() : -1;
    const bool isChosen = column >= 0;
    for (QAction* const action : {m_laden, m_umbenennen, m_loeschen, m_kopieren})
        action->setEnabled(isChosen);
    m_referenz->setEnabled(isChosen && static_cast<std::size_t>(column) != m_modell->tabelle().referenz());
    m_links->setEnabled(column > 0);
    m_rechts->setEnabled(isChosen && column + 1 < m_modell->columnCount());
    if (m_ansicht == nullptr)
        return;
    const bool isEmpty = m_modell->columnCount() == 0;
    for (QWidget* const widget : {static_cast<QWidget*>(m_cmbArt), static_cast<QWidget*>(m_tabellenknopf),
             static_cast<QWidget*>(m_cmdSpeichern)})
        widget->setEnabled(!isEmpty);
}

void Vergleichsbereich::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showState();
}

void Vergleichsbereich::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    showState();
}

std::size_t Vergleichsbereich::gewaehlt() const { return static_cast<std::size_t>(m_ansicht->legierung()); }

/// Carries an operation out and makes the alloy current that stands at `danach` then.
void Vergleichsbereich::aendere(const QString& schritt, std::size_t danach, const Operation& operation)
{
    Vergleich changed = vergleich();
    operation(changed);
    if (changed == vergleich())
        return;
    m_programm.Dokument().vergleich = std::move(changed);
    emit gemeldet({});
    zeige();
    if (!vergleich().varianten.empty())
        m_ansicht->waehle(static_cast<int>(std::min(danach, vergleich().varianten.size() - 1)));
    emit geschehen(schritt);
}

void Vergleichsbereich::merke()
{
    if (!m_programm.StartupDone())
        return;
    const std::string reason = merkhindernis(vergleich(), m_programm.Eingabe(), m_programm.Calc());
    if (!reason.empty()) {
        m_programm.boxes().show(Icon::Exclamation, "Legierung merken", reason);
        return;
    }
    aendere(QStringLiteral("Variante merken"), vergleich().varianten.size(),
        [this](Vergleich& changed) { merken(changed, m_programm.Eingabe()); });
    emit gemeldet(QStringLiteral("✓  %1 gemerkt: Spalte %2 im Vergleich")
                      .arg(zitat(vergleich().varianten.back().name))
                      .arg(vergleich().varianten.size()));
}

void Vergleichsbereich::lade()
{
    if (m_laden->isEnabled())
        emit ladenRequested(toQt(name()), vergleich().varianten.at(gewaehlt()).eingabe);
}

void Vergleichsbereich::alsReferenz()
{
    aendere(QStringLiteral("Referenz setzen"), gewaehlt(),
        [position = gewaehlt()](Vergleich& changed) { setzeReferenz(changed, position); });
}

void Vergleichsbereich::benenneUm()
{
    const auto typed =
        m_dialoge.input.ask("Legierung umbenennen", "Neuer Name (leer: nach der Zusammensetzung):", name());
    if (!typed)
        return;
    aendere(QStringLiteral("Variante umbenennen"), gewaehlt(),
        [position = gewaehlt(), &typed](Vergleich& changed) { umbenennen(changed, position, *typed); });
}

void Vergleichsbereich::nachLinks() { verschiebe(gewaehlt(), gewaehlt() - 1); }

void Vergleichsbereich::nachRechts() { verschiebe(gewaehlt(), gewaehlt() + 1); }

void Vergleichsbereich::verschiebe(std::size_t von, std::size_t nach)
{
    aendere(QStringLiteral("Variante verschieben"), nach, [=](Vergleich& changed) { verschieben(changed, von, nach); });
}

void Vergleichsbereich::loesche()
{
    const QString deleted = zitat(name());
    aendere(QStringLiteral("Variante löschen"), gewaehlt(),
        [position = gewaehlt()](Vergleich& changed) { loeschen(changed, position); });
    emit gemeldet(QStringLiteral("✓  %1 gelöscht").arg(deleted));
}

void Vergleichsbereich::copySelection()
{
    const Dezimaltrenner trenner = m_tabellenknopf->trenner();
    if (const QString cells = m_ansicht->auswahl(trenner); !cells.isEmpty())
        copyToClipboard(cells);
    else
        copyTable(trenner);
}

void Vergleichsbereich::copyTable(Dezimaltrenner trenner)
{
    const Tabelle table = m_modell->tabelle().tabelle(m_modell->art(), trenner);
    copyToClipboard(toQt(alsText(mitKopf(table))), toQt(alsHtml(table)));
}

void Vergleichsbereich::save()
{
    const Tabelle table = m_modell->tabelle().tabelle(m_modell->art(), m_tabellenknopf->trenner());
    exportieren(m_programm.boxes(), m_dialoge.save, Exporttitel, tabellenarten(table));
}

} // namespace zerna
