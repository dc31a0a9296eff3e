#include "ui/results/Ergebnisbereich.h"

#include <QMenu>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <tuple>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Ergebnistabelle.h"
#include "model/rechnung/Konstanten.h"
#include "programm/Exportieren.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Menue.h"
#include "ui/controls/Tabellenknopf.h"
#include "ui/controls/Wertanzeige.h"
#include "ui/controls/Wertfeld.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Tabreihenfolge.h"
#include "ui/platform/Zwischenablage.h"
#include "ui/results/Ergebnisdetails.h"

namespace zerna {

namespace {

/// What the field says of itself.
std::string_view feldname(std::size_t feld)
{
    constexpr std::array Zeilen{Valenzzeile, Teilchenzeile, Kf2Zeile};
    return ergebniszeile(Zeilen.at(feld)).bezeichnung();
}

/// What is wrong with a typed value, as sentences; empty if nothing is.
std::string tippfehler(std::size_t feld, const Eingabefeld& typed)
{
    const std::string name(feldname(feld));
    if (typed.text.empty())
        return name + " fehlt. Eine Zahl eintragen.";
    if (typed.fehler)
        return name + ": " + typed.fehler->text();
    return typed.wert > 0 ? "" : name + " ist nicht positiv. Eine Zahl größer als 0 eintragen.";
}

} // namespace

Ergebnisbereich::Ergebnisbereich(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_saveDialog(saveDialog)
    , m_befundzeile(new Befundzeile(this))
    , m_gitter(new Ergebnisgitter(this))
    , m_details(new Ergebnisdetails(this))
{
    connect(m_gitter, &Ergebnisgitter::fieldEdited, this, &Ergebnisbereich::fieldEdited);
    connect(m_gitter, &Ergebnisgitter::zurueckRequested, this, &Ergebnisbereich::zurueck);
    m_befundzeile->setObjectName(QStringLiteral("lblBefund"));
    connect(m_befundzeile, &Befundzeile::clicked, this, [this] {
        if (!m_lage.getippt.empty())
            zurueck();
        else if (m_lage.befund)
            emit befundGewaehlt(m_lage.befund->zeile, m_lage.befund->ort);
    });
    connect(m_gitter, &Ergebnisgitter::friedelStepped, this, &Ergebnisbereich::stepFriedel);
    connect(m_gitter, &Ergebnisgitter::copyRequested, this,
        [this](int zeile) { copyToClipboard(m_gitter->wertUndEinheitIn(zeile)); });
    connect(m_gitter, &Ergebnisgitter::detailsRequested, this,
        [this](int zeile, const QRect& area) { m_details->zeige(einzelheitenVon(zeile), area); });
    connect(m_gitter, &Ergebnisgitter::hintRequested, this, &Ergebnisbereich::showHint);
    createButtons();
    createMenu();
    layOut();
}

void Ergebnisbereich::createButtons()
{
    m_cmdKopieren = new StyledButton(QStringLiteral("&Kopieren"), this);
    m_cmdKopieren->setObjectName(QStringLiteral("cmdMFE_Kopieren"));
    m_cmdKopieren->setToolTipText(QStringLiteral("Alle Ergebnisse als Text in die Zwischenablage"));
    m_tabellenknopf = new Tabellenknopf(m_programm.settings(), QStringLiteral("MFE"),
        QStringLiteral(
            "Alle Ergebnisse mit ganzen Zahlen und den Werten des Lehrbuchs für Tabellen- und Textprogramme"),
        this);
    connect(m_tabellenknopf, &Tabellenknopf::copyRequested, this, &Ergebnisbereich::copyTable);
    m_cmdSpeichern = new StyledButton(QStringLiteral("&Speichern"), this);
    m_cmdSpeichern->setObjectName(QStringLiteral("cmdMFE_Speichern"));
    m_cmdSpeichern->setToolTipText(QStringLiteral("Ergebnisse oder Friedelminima als Datei speichern"));
    connect(m_cmdKopieren, &StyledButton::clicked, this, &Ergebnisbereich::copyText);
    connect(m_cmdSpeichern, &StyledButton::clicked, this, &Ergebnisbereich::save);
}

void Ergebnisbereich::createMenu()
{
    m_menu = new QMenu(QStringLiteral("right"), this);
    m_menu->setObjectName(QStringLiteral("mnuRight"));
    connect(m_gitter, &Ergebnisgitter::menuRequested, this, [this](int zeile, const QPoint& position) {
        m_menuLine = zeile;
        m_menu->popup(position);
    });
    addCopy(QStringLiteral("Kopieren"), [this] {
        return toQt(kopierteZahl(m_menuLine, fromQt(m_gitter->anzeige(m_menuLine).text())));
    })->setObjectName(QStringLiteral("mnuCopy"));
    addCopy(QStringLiteral("Zahl kopieren"), [this] {
        return toQt(
            ganzeZahl(fromQt(m_gitter->wertUndEinheitIn(m_menuLine)), fromQt(m_gitter->anzeige(m_menuLine).einheit())));
    });
    addCopy(QStringLiteral("Zahl und Einheit kopieren"), [this] { return m_gitter->wertUndEinheitIn(m_menuLine); });
    addAnteil();
}

/// The entry that asks at which part the line's quantity has a value, beginning with the one that is there.
void Ergebnisbereich::addAnteil()
{
    m_menu->addSeparator();
    QAction* const action = m_menu->addAction(QStringLiteral("Bei welchem Anteil? ..."));
    action->setObjectName(QStringLiteral("mnuMFE_Anteil"));
    const auto asked = [this] { return ergebniszeile(m_menuLine); };
    connect(m_menu, &QMenu::aboutToShow, action, [this, action, asked] {
        action->setVisible(asked().ueberLegierungen());
        action->setEnabled(!istUnbekannt(wert(asked(), m_programm.Calc())));
    });
    connect(action, &QAction::triggered, this, [this, asked] {
        emit anteilRequested(asked().kennzahl, toQt(textOfSingle(wert(asked(), m_programm.Calc()))));
    });
}

/// An entry of the menu that copies the text and shows it in a column of its own, where shortcuts stand otherwise.
QAction* Ergebnisbereich::addCopy(const QString& caption, const std::function<QString()>& text)
{
    QAction* const action = m_menu->addAction(caption);
    connect(action, &QAction::triggered, this, [text] { copyToClipboard(text()); });
    connect(m_menu, &QMenu::aboutToShow, action, [action, caption, text] {
        const QString copied = text();
        action->setText(copied.isEmpty() ? caption : caption + QLatin1Char('\t') + copied);
        action->setEnabled(!copied.isEmpty());
    });
    return action;
}

void Ergebnisbereich::addBefehle(Menue& menue)
{
    using enum Menue::Abschnitt;
    menue.add(Ausgabe,
        {.text = QStringLiteral("&Ergebnisse speichern ..."), .name = "mnuMFE_Speichern", .tun = [this] { save(); }});
    menue.add(Kopieren,
        {.text = QStringLiteral("&Ergebnisse kopieren"), .name = "mnuMFE_Kopieren", .tun = [this] { copyText(); }});
    QMenu* const tabelle = menue.addUntermenue(Kopieren, QStringLiteral("&Tabelle kopieren"));
    tabelle->addActions(m_tabellenknopf->choices());
    for (const auto& [text, name, step] :
        {std::tuple(QStringLiteral("&Nächstes Friedelminimum"), "mnuFriedel_Naechstes", 1),
            {QStringLiteral("V&origes Friedelminimum"), "mnuFriedel_Voriges", -1}}) {
        menue.add(Diagramm, {.text = text, .name = name, .tun = [this, step = step] { stepFriedel(step); }});
    }
}

void Ergebnisbereich::layOut()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_befundzeile);
    column->addWidget(m_gitter, 1);
    column->addStretch(0);
    QHBoxLayout* const buttons = knopfzeile({m_cmdKopieren, m_cmdSpeichern});
    buttons->insertWidget(buttons->count() - 1, m_tabellenknopf);
    column->addLayout(buttons);
    std::vector<QWidget*> order = m_gitter->tabOrder();
    order.insert(order.begin(), m_befundzeile);
    order.push_back(m_cmdKopieren);
    for (QWidget* const button : m_tabellenknopf->tabOrder())
        order.push_back(button);
    order.push_back(m_cmdSpeichern);
    setTabReihenfolge(order);
}

void Ergebnisbereich::zeige(const Eingabe& eingabe)
{
    m_zeilen = eingabe.komponentenzeilen();
    m_getippt.fill(false);
    aktualisieren(Eingabemodus::Zusammensetzung);
}

void Ergebnisbereich::zeigeLage(const Eingabe& eingabe)
{
    if (!m_programm.StartupDone())
        return;
    const Ergebnislage before = std::exchange(m_lage, {});
    try {
        m_lage = ergebnislage(eingabe, m_programm.gerechneteEingabe(), m_programm.Calc());
    } catch (const Laufzeitfehler&) {
        return; // without a calculator there are no results
    }
    if (std::ranges::find(m_getippt, true) != m_getippt.end()) { // an edit that has changed nothing
        m_lage.getippt = before.getippt;
        m_lage.tippfehler = before.tippfehler;
        m_lage.kf2Getippt = before.kf2Getippt;
    } else {
        for (const auto& [feld, zeile] :
            {std::pair(Ergebnisgitter::Valenz, Valenzzeile), {Ergebnisgitter::Teilchenzahldichte, Teilchenzeile}})
            m_gitter->feld(feld).setFehler(m_lage.mittelzeile == zeile ? toQt(m_lage.befund->text) : QString());
    }
    showLage();
}

void Ergebnisbereich::showLage()
{
    const auto ton = m_lage.istFehler() ? Befundzeile::Ton::Fehler
        : m_lage.getippt.empty()        ? Befundzeile::Ton::Bedenken
                                        : Befundzeile::Ton::Hinweis;
    m_befundzeile->zeige(toQt(m_lage.text()), ton);
    m_gitter->zeigeBlass([this](const Groesse& groesse) { return !m_lage.zaehlt(groesse); });
    for (const auto feld : {Ergebnisgitter::Valenz, Ergebnisgitter::Teilchenzahldichte, Ergebnisgitter::Kf2})
        m_gitter->zeigeGetippt(feld, m_getippt.at(feld));
}

/// From typed values back to those of the composition.
void Ergebnisbereich::zurueck()
{
    const Eingabe& gerechnet = m_programm.gerechneteEingabe();
    if (const auto legierung = gerechnet.legierung())
        m_programm.Calc().Legierung_Setzen(legierung->komponenten());
    m_lage = {};
    zeige(gerechnet);
    zeigeLage(m_programm.Eingabe());
}

/// Whether results may leave the panel as things stand.
bool Ergebnisbereich::darf(const std::string& frage, std::string_view caption, std::string_view go)
{
    return frage.empty() || m_programm.boxes().ask(caption, frage, go);
}

/// Fills the panel; the mode lasts for this one update.
void Ergebnisbereich::aktualisieren(Eingabemodus modus)
{
    m_texte = keineErgebnisse();
    if (showFields(modus))
        berechneErgebnisse(m_programm.Calc(), m_texte);
    m_gitter->zeige(m_texte);
    m_tabellenknopf->setEnabled(std::ranges::any_of(m_texte, &Ergebnistext::known));
    m_friedelindex = 0;
    showFriedel();
}

/// Writes the fields that are not being typed into; false if one of those that are is empty.
bool Ergebnisbereich::showFields(Eingabemodus modus)
{
    const auto show = [this](Ergebnisgitter::Feld feld, int zeile) {
        const float value = wert(ergebniszeile(zeile), m_programm.Calc());
        m_gitter->feld(feld).setWert(toQt(trimmed(FormatValue(value, ""))), false);
        m_gitter->feld(feld).setFehler({});
    };
    const auto isEmpty = [this](Ergebnisgitter::Feld feld) { return m_gitter->feld(feld).text().isEmpty(); };
    if (modus == Eingabemodus::Kf2)
        return !isEmpty(Ergebnisgitter::Kf2);
    if (modus == Eingabemodus::ValenzOderDichte
        && (isEmpty(Ergebnisgitter::Teilchenzahldichte) || isEmpty(Ergebnisgitter::Valenz)))
        return false;
    if (modus == Eingabemodus::Zusammensetzung) {
        show(Ergebnisgitter::Teilchenzahldichte, Teilchenzeile);
        show(Ergebnisgitter::Valenz, Valenzzeile);
    }
    show(Ergebnisgitter::Kf2, Kf2Zeile);
    return true;
}

void Ergebnisbereich::fieldEdited(Ergebnisgitter::Feld feld)
{
    if (!m_programm.StartupDone())
        return;
    Wertfeld& edit = m_gitter->feld(feld);
    const Eingabefeld typed = zahlenfeld(fromQt(edit.text()));
    try {
        if (!typed.fehler)
            setTyped(feld, typed.wert);
        m_lage.tippfehler = tippfehler(feld, typed);
    } catch (const Laufzeitfehler& error) {
        m_lage.tippfehler = std::string(error.what()) + ". Der Wert ist zu groß.";
    }
    edit.setFehler(toQt(m_lage.tippfehler));
    if (!typed.fehler || typed.text.empty())
        aktualisieren(feld == Ergebnisgitter::Kf2 ? Eingabemodus::Kf2 : Eingabemodus::ValenzOderDichte);
    markTyped(feld);
}

void Ergebnisbereich::markTyped(Ergebnisgitter::Feld feld)
{
    m_getippt.at(feld) = true;
    if (feld != Ergebnisgitter::Kf2)
        m_getippt.at(Ergebnisgitter::Kf2) = false; // follows from the others again
    m_lage.kf2Getippt = m_getippt.at(Ergebnisgitter::Kf2);
    m_lage.getippt.clear();
    for (std::size_t i = 0; i < m_getippt.size(); ++i) {
        if (m_getippt.at(i))
            m_lage.getippt.append(m_lage.getippt.empty() ? "" : ", ").append(feldname(i));
    }
    showLage();
}

void Ergebnisbereich::setTyped(Ergebnisgitter::Feld feld, float value)
{
    clsCalc& calc = m_programm.Calc();
    if (feld == Ergebnisgitter::Valenz)
        calc.setValenz(value);
    else if (feld == Ergebnisgitter::Teilchenzahldichte)
        calc.setTeilchenzahldichte(toSingle(value / KubiknanometerInKubikmeter)); // 1/nm³ to 1/m³
    else
        calc.setKf_2(value);
}

void Ergebnisbereich::stepFriedel(int step)
{
    m_friedelindex += static_cast<float>(step);
    showFriedel();
}

void Ergebnisbereich::showFriedel()
{
    m_friedelindex = friedelindex(m_friedelindex);
    QString text;
    try {
        if (!m_texte.at(Friedelzeile).text.empty()) // else it could not be computed
            text = toQt(friedelanzeige(m_programm.Calc(), m_friedelindex));
    } catch (const Laufzeitfehler&) {
        // The line stays empty.
    }
    m_gitter->zeigeFriedel(QStringLiteral("n = %1").arg(toQt(textOfSingle(m_friedelindex + 1))), text);
}

Einzelheiten Ergebnisbereich::einzelheitenVon(int zeile) const
{
    const std::optional<Legierung> legierung = m_programm.gerechneteEingabe().legierung();
    const bool known = legierung && m_texte.at(static_cast<std::size_t>(zeile)).known;
    return einzelheiten(zeile, known ? &m_programm.Calc() : nullptr, legierung.value_or(Legierung()).komponenten());
}

/// Computed while the mouse waits, not with every edit.
void Ergebnisbereich::showHint(int zeile, const QPoint& globalPosition)
{
    const QString hint = abweichungImErgebnis(zeile) != nullptr
        ? einzelheitenHtml(einzelheitenVon(zeile))
        : QStringLiteral("Formel und Konstanten: Klick oder Eingabetaste");
    QToolTip::showText(globalPosition, hint, &m_gitter->anzeige(zeile));
}

void Ergebnisbereich::copyText()
{
    if (!darf(m_lage.kopierfrage(), "Ergebnisse kopieren", "&Trotzdem kopieren"))
        return;
    try {
        copyToClipboard(toQt(ergebnistext(m_programm.Calc(), m_zeilen, m_texte)));
        showFriedel();
    } catch (const Laufzeitfehler&) {
        // Without a calculator there is nothing to copy.
    }
}

void Ergebnisbereich::copyTable(Dezimaltrenner trenner)
{
    const std::optional<Legierung> legierung = m_programm.gerechneteEingabe().legierung();
    if (!legierung || !darf(m_lage.kopierfrage(), "Tabelle kopieren", "&Trotzdem kopieren"))
        return;
    const Ergebnistabelle tabelle = ergebnistabelle(m_programm.Calc(), legierung->komponenten(), trenner);
    copyToClipboard(toQt(tabelle.text), toQt(tabelle.html));
}

void Ergebnisbereich::save()
{
    if (!istEtwasBekannt(m_texte))
        return zeigeNichtsZuSpeichern(m_programm.boxes(), "Die Legierung lässt sich nicht berechnen.");
    if (!darf(m_lage.speicherfrage(), "Ergebnisse speichern", "&Trotzdem speichern"))
        return;
    const Exportart arten[] = {
        datDatei([this] { return ergebnisdatei(m_programm.Calc(), m_zeilen, m_texte); }),
        friedelminima([this] { return friedeldatei(m_programm.Calc()); }),
    };
    if (!exportieren(m_programm.boxes(), m_saveDialog, Exporttitel, arten))
        return;
    m_friedelindex = 0;
    showFriedel();
}

} // namespace zerna
