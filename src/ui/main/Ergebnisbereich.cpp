#include "ui/main/Ergebnisbereich.h"

#include <QMenu>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/Ergebnistabelle.h"
#include "model/Konstanten.h"
#include "programm/Exportieren.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/controls/Wertanzeige.h"
#include "ui/controls/Wertfeld.h"
#include "ui/main/Ergebnisdetails.h"
#include "ui/main/Tabellenknopf.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Tabreihenfolge.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

Ergebnisbereich::Ergebnisbereich(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_saveDialog(saveDialog)
    , m_gitter(new Ergebnisgitter(this))
    , m_details(new Ergebnisdetails(this))
{
    connect(m_gitter, &Ergebnisgitter::fieldEdited, this, &Ergebnisbereich::fieldEdited);
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
    m_tabellenknopf = new Tabellenknopf(m_programm.settings(), this);
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

void Ergebnisbereich::layOut()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_gitter, 1);
    column->addStretch(0);
    QHBoxLayout* const buttons = knopfzeile({m_cmdKopieren, m_cmdSpeichern});
    buttons->insertWidget(buttons->count() - 1, m_tabellenknopf);
    column->addLayout(buttons);
    std::vector<QWidget*> order = m_gitter->tabOrder();
    order.push_back(m_cmdKopieren);
    for (QWidget* const button : m_tabellenknopf->tabOrder())
        order.push_back(button);
    order.push_back(m_cmdSpeichern);
    setTabReihenfolge(order);
}

void Ergebnisbereich::zeige(const Eingabe& eingabe)
{
    m_zeilen = eingabe.komponentenzeilen();
    aktualisieren(Eingabemodus::Zusammensetzung);
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
    try {
        if (!edit.text().isEmpty())
            setTyped(feld, singleFromText(fromQt(edit.text())));
        edit.setFehler({});
        aktualisieren(feld == Ergebnisgitter::Kf2 ? Eingabemodus::Kf2 : Eingabemodus::ValenzOderDichte);
    } catch (const Laufzeitfehler& error) {
        edit.setFehler(QStringLiteral("Keine gültige Zahl (%1)").arg(toQt(error.what())));
    }
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
    if (!legierung)
        return;
    const Ergebnistabelle tabelle = ergebnistabelle(m_programm.Calc(), legierung->komponenten(), trenner);
    copyToClipboard(toQt(tabelle.text), toQt(tabelle.html));
}

void Ergebnisbereich::save()
{
    if (!istEtwasBekannt(m_texte))
        return zeigeNichtsZuSpeichern(m_programm.boxes(), "Die Legierung lässt sich nicht berechnen.");
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
