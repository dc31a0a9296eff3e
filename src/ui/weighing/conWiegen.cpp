#include "ui/weighing/conWiegen.h"

#include <QDate>
#include <QGridLayout>
#include <QGuiApplication>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "core/CheckedArithmetic.h"
#include "core/Fehlermeldung.h"
#include "core/Zahlentext.h"
#include "model/Einwaage.h"
#include "model/Wiegeprotokoll.h"
#include "ui/controls/Menue.h"
#include "ui/platform/QtText.h"
#include "ui/weighing/Festlabel.h"
#include "ui/weighing/Massenablage.h"
#include "ui/weighing/Massenfeld.h"
#include "ui/weighing/Verlustbereich.h"
#include "ui/weighing/Wiegeausgabe.h"
#include "ui/weighing/Wiegezeile.h"

namespace zerna {

namespace {

constexpr std::string_view Steuerelement = "Benutzersteuerelement conWiegen";

/// The reason of an arithmetic failure that no component is to blame for.
QString ursache(const Laufzeitfehler& error)
{
    return error.Nummer() == static_cast<int>(Fehler::Ueberlauf)
        ? QStringLiteral("die Zahlen sind zu groß für die Rechnung")
        : QStringLiteral("die Zahlen sind zu klein für die Rechnung");
}

/// The sentence about the component that is to blame.
QString satz(const clsCalc& calc, const Wiegehindernis& hindernis)
{
    return toQt(calc.Element_Name(hindernis.komponente) + " " + hindernis.grund);
}

} // namespace

conWiegen::conWiegen(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
{
    createControls(saveDialog);
    layOut();
}

void conWiegen::createControls(SaveFileDialog& saveDialog)
{
    createTarget();
    createRows();
    createAuskunft();
    m_ausgabe = new Wiegeausgabe(
        m_programm, saveDialog, [this] { return protokoll(); }, this);
}

void conWiegen::createTarget()
{
    m_sollMasseCaption = new QLabel(QStringLiteral("&Gesamtmasse [mg]:"), this);
    m_txtSollMasse = new Massenfeld(QStringLiteral("txtSollMasse"), this);
    m_txtSollMasse->setAccessibleName(QStringLiteral("Gewünschte Gesamtmasse in Milligramm"));
    m_txtSollMasse->setMasse(QStringLiteral("1000"));
    m_sollMasseCaption->setBuddy(m_txtSollMasse);
    connect(m_txtSollMasse, &Massenfeld::textChanged, this, [this] {
        computeTargets();
        showAuskunft();
    });
}

void conWiegen::createRows()
{
    for (int row = 0; row < MaxKomponenten; ++row) {
        auto* const zeile = new Wiegezeile(row, this);
        m_zeilen.at(static_cast<std::size_t>(row)) = zeile;
        connect(zeile, &Wiegezeile::istmasseEntered, this, [this, row] { Istmasse_Change(row); });
        connect(zeile, &Wiegezeile::istmasseLeft, this, &conWiegen::reportLater);
        connect(zeile, &Wiegezeile::returnPressed, this, [this, row] { Istmasse_KeyDown(row); });
    }
    m_gesamt = new Festlabel({}, 1, this);
    m_gesamt->setObjectName(QStringLiteral("lblGesamtmasse"));
}

void conWiegen::createAuskunft()
{
    constexpr int Lines = 2;
    m_hinweis = new Festlabel({}, Lines, this);
    m_hinweis->setObjectName(QStringLiteral("lblHinweis"));
    m_hinweis->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_ablage = new Massenablage(this);
    connect(m_ablage, &Massenablage::zurueckholen, this, &conWiegen::putBack);
    m_verlust = new Verlustbereich(this);
    connect(m_verlust, &Verlustbereich::verlustEntered, this, &conWiegen::zeigeVerlust);
}

void conWiegen::addBefehle(Menue& menue)
{
    m_ausgabe->addBefehle(menue);
    menue.add(Menue::Abschnitt::Legierung,
        {.text = QStringLiteral("&Istmassen zurückholen"),
            .name = "mnuZurueckholen",
            .tun = [this] { putBack(); },
            .moeglich = [this] { return m_ablage->bietetAn(); }});
}

void conWiegen::drucke() { m_ausgabe->print(); }

void conWiegen::layOut()
{
    auto* total = new QHBoxLayout;
    total->addWidget(m_sollMasseCaption);
    total->addWidget(m_txtSollMasse);
    total->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(total);
    column->addLayout(table());
    column->addWidget(m_hinweis);
    column->addWidget(m_ablage);
    column->addWidget(m_verlust, 1);
    column->addWidget(m_ausgabe);
}

QGridLayout* conWiegen::table()
{
    auto* grid = new QGridLayout;
    const int first = Wiegezeile::layOutHeads(*grid, this);
    for (int row = 0; row < MaxKomponenten; ++row)
        at(row).layOut(*grid, first + row);
    grid->addWidget(m_gesamt, first + MaxKomponenten, 0, 1, Wiegezeile::BisIstmasse, Qt::AlignRight);
    return grid;
}

void conWiegen::Aktualisieren(const Eingabe& eingabe)
{
    m_anzahl = eingabe.anzahl();
    const clsCalc& calc = m_programm.Calc();
    for (int row = 0; row < MaxKomponenten; ++row) {
        auto taken =
            row < m_anzahl ? at(row).zeige(calc.Element_Symbol(row), toQt(calc.Element_Name(row))) : at(row).hide();
        if (taken)
            m_ablage->legeAb(row, *std::move(taken));
    }
    m_meldung.reset();
    computeTargets();
    weigh(); // the same masses mean other at% now
}

/// Target masses for the wanted total.
void conWiegen::computeTargets()
{
    m_sollFehler.reset();
    m_sollmassen.clear();
    setBezug(std::nullopt);
    try {
        const float wanted = wiegezahl(m_txtSollMasse->masse());
        m_sollmassen = sollmassen(m_programm.Calc(), m_anzahl, wanted);
        showTargets(wanted);
    } catch (const Laufzeitfehler& error) {
        m_sollFehler = error;
        for (Wiegezeile* const zeile : m_zeilen) {
            zeile->zeigeSollmasse({});
            zeile->zeigeSollanteil({});
        }
    }
}

void conWiegen::showTargets(float wanted)
{
    for (int row = 0; const float masse : m_sollmassen) {
        const QString share = wanted == 0 ? QString() : toQt(fixedText(quotient(masse, wanted) * 100, 2));
        at(row).zeigeSollmasse(toQt(massentext(masse)));
        at(row++).zeigeSollanteil(share);
    }
}

void conWiegen::setBezug(const std::optional<Wiegebezug>& bezug)
{
    m_bezug = bezug;
    for (int row = 0; row < MaxKomponenten; ++row) {
        const bool isReference = bezug && bezug->komponente == row;
        at(row).zeigeBezug(isReference
                ? QStringLiteral("Die übrigen Sollmassen beziehen sich auf %1 mg").arg(toQt(textOfSingle(bezug->masse)))
                : QString());
    }
}

std::vector<float> conWiegen::massen() const
{
    std::vector<float> all;
    for (int row = 0; row < m_anzahl; ++row)
        all.push_back(at(row).istmasse());
    return all;
}

bool conWiegen::isAnythingWeighed() const
{
    return std::any_of(m_zeilen.begin(), m_zeilen.end(), [](const Wiegezeile* zeile) { return zeile->istGewogen(); });
}

/// Whether the deviations from the wanted at% tell something.
bool conWiegen::isEverythingWeighed() const
{
    for (int row = 0; row < m_anzahl; ++row) {
        if (!at(row).istGewogen() && m_programm.Calc().Element_Prozente(row) != 0)
            return false;
    }
    return true;
}

void conWiegen::Istmasse_Change(int row)
{
    m_ablage->nimm(row);
    m_meldung = weigh();
}

/// Shows what the masses weighed come to; returns why they come to nothing.
std::optional<Laufzeitfehler> conWiegen::weigh()
{
    m_istFehler.reset();
    for (Wiegezeile* const zeile : m_zeilen)
        zeile->clearGewogen();
    m_gesamt->clear();
    m_gesamt->setToolTip({});
    try {
        if (isAnythingWeighed())
            showWeighed();
        else if (m_bezug)
            computeTargets();
    } catch (const Laufzeitfehler& error) {
        m_istFehler = error;
        for (Wiegezeile* const zeile : m_zeilen)
            zeile->clearGewogen();
    }
    showAuskunft();
    zeigeVerlust();
    return m_istFehler;
}

/// Sum, at%, deviation and mass percent of what was weighed. Throws with the sum already shown.
void conWiegen::showWeighed()
{
    const std::vector<float> weighed = massen();
    std::ranges::for_each(weighed, wiegezahl);
    const float sum = gesamtmasse(weighed);
    m_gesamt->setText(QStringLiteral("Gesamtmasse = %1").arg(toQt(FormatValue(sum, "mg"))));
    m_gesamt->setToolTip(QStringLiteral("%1 mg").arg(toQt(textOfSingle(sum))));
    const clsCalc& calc = m_programm.Calc();
    const std::vector<float> prozente = gewogeneAtomprozente(calc, weighed);
    const std::vector<float> shares = massenprozente(weighed);
    const bool isComplete = isEverythingWeighed();
    for (int row = 0; row < m_anzahl; ++row) {
        const auto k = static_cast<std::size_t>(row);
        const float deviation = prozente[k] - calc.Element_Prozente(row);
        at(row).zeigeAtomprozent(prozente[k], isComplete ? std::optional(deviation) : std::nullopt);
        at(row).zeigeMassenanteil(toQt(fixedText(shares[k], 2)));
    }
}

/// The mass weighed in this row becomes the reference for the others' target masses.
void conWiegen::Istmasse_KeyDown(int row)
{
    report();
    const clsCalc& calc = m_programm.Calc();
    if (calc.Element_Prozente(row) == 0) {
        m_programm.boxes().show(Icon::Exclamation, "Zerna @ Marra",
            "Atomprozente von " + calc.Element_Name(row) + " sind nicht angegeben!");
        return;
    }
    if (!at(row).istGewogen()) {
        m_programm.boxes().show(
            Icon::Exclamation, Programmtitel, "Masse von " + calc.Element_Name(row) + " ist nicht angegeben!");
        return;
    }
    reporting(m_programm.boxes(), "Istmasse_KeyDown", Steuerelement, [&] { beziehe(row); });
}

void conWiegen::beziehe(int row)
{
    const float masse = wiegezahl(at(row).istmasse());
    m_sollmassen = sollmassenZu(m_programm.Calc(), m_anzahl, row, masse);
    m_sollFehler.reset();
    for (int other = 0; other < m_anzahl; ++other) {
        if (other != row)
            at(other).zeigeSollmasse(toQt(massentext(m_sollmassen[static_cast<std::size_t>(other)])));
    }
    setBezug(Wiegebezug{row, masse});
    showAuskunft();
}

/// Out of the focus event, and not while a mouse button is down: its release would be lost to the box.
void conWiegen::reportLater()
{
    constexpr int Wait = 20; // ms
    if (!m_meldung)
        return;
    QTimer::singleShot(QGuiApplication::mouseButtons() == Qt::NoButton ? 0 : Wait, this, [this] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            report();
        else
            reportLater();
    });
}

/// Shows once what the last change of a mass has run into.
void conWiegen::report()
{
    const std::optional<Laufzeitfehler> error = std::exchange(m_meldung, std::nullopt);
    if (error)
        reporting(m_programm.boxes(), "Istmasse_Change", Steuerelement, [&error] { throw Laufzeitfehler(*error); });
}

/// Says in the fields and below them what is missing.
void conWiegen::showAuskunft()
{
    const clsCalc& calc = m_programm.Calc();
    const auto hindernis = m_istFehler ? atomprozentHindernis(calc, massen()) : std::nullopt;
    for (int row = 0; row < m_anzahl; ++row)
        at(row).zeigeMangel(istGrund(), hindernis && hindernis->komponente == row);
    QStringList lines{sollGrund(), istGrund()};
    lines.removeAll(QString());
    if (lines.isEmpty())
        lines.append(toQt(wiegestandText()));
    m_hinweis->setText(lines.join(QLatin1Char('\n')));
    m_hinweis->setToolTip(m_hinweis->text());
    m_ablage->zeige(m_anzahl);
}

/// Why there are no target masses, in terms of the alloy where that is to blame.
QString conWiegen::sollGrund() const
{
    if (!m_sollFehler || istUnbekannt(m_txtSollMasse->masse())) // then the field is marked
        return {};
    const auto hindernis = sollmassenHindernis(m_programm.Calc(), m_anzahl);
    return QStringLiteral("Sollmassen nicht berechenbar: %1.")
        .arg(hindernis ? satz(m_programm.Calc(), *hindernis) : ursache(*m_sollFehler));
}

QString conWiegen::istGrund() const
{
    if (!m_istFehler)
        return {};
    const auto hindernis = atomprozentHindernis(m_programm.Calc(), massen());
    return QStringLiteral("Atomprozente nicht berechenbar: %1.")
        .arg(hindernis ? satz(m_programm.Calc(), *hindernis) : ursache(*m_istFehler));
}

std::string conWiegen::wiegestandText() const
{
    std::vector<Wiegung> wiegungen;
    for (int row = 0; row < m_anzahl && !m_sollmassen.empty(); ++row) {
        const std::optional<float> ist = at(row).istGewogen() ? std::optional(at(row).istmasse()) : std::nullopt;
        wiegungen.push_back({m_sollmassen[static_cast<std::size_t>(row)], ist});
    }
    return wiegestand(m_programm.Calc(), wiegungen, m_bezug);
}

void conWiegen::putBack()
{
    for (int row = 0; row < m_anzahl; ++row) {
        if (const auto taken = m_ablage->nimm(row))
            at(row).setIstmasse(taken->masse);
    }
    weigh();
}

void conWiegen::zeigeVerlust() { m_verlust->zeige(m_programm.Calc(), massen()); }

Wiegeprotokoll conWiegen::protokoll() const
{
    Wiegeprotokoll protokoll;
    protokoll.datum = fromQt(QDate::currentDate().toString(QStringLiteral("d.M.yyyy")));
    const clsCalc& calc = m_programm.Calc();
    for (int row = 0; row < m_anzahl; ++row)
        protokoll.zeilen.push_back(
            at(row).einwaage(calc.Element_Symbol(row), textOfSingle(calc.Element_Prozente(row))));
    if (isAnythingWeighed() && !m_gesamt->text().isEmpty())
        protokoll.gewogen = textWithDigits(gesamtmasse(massen()), 7); // all that a single holds
    if (!m_bezug)
        protokoll.gewuenscht = fromQt(m_txtSollMasse->text());
    else
        protokoll.bezug = "Sollmassen bezogen auf " + textOfSingle(m_bezug->masse) + " mg "
            + calc.Element_Symbol(m_bezug->komponente);
    protokoll.verlust = m_verlust->zeilen();
    return protokoll;
}

} // namespace zerna
