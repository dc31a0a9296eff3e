#include "ui/weighing/conWiegen.h"

#include <QDate>
#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

#include "core/Fehlermeldung.h"
#include "core/Zahlentext.h"
#include "model/einwaage/Einwaage.h"
#include "model/einwaage/Wiegeprotokoll.h"
#include "ui/controls/Menue.h"
#include "ui/platform/QtText.h"
#include "ui/weighing/Festlabel.h"
#include "ui/weighing/Massenablage.h"
#include "ui/weighing/Massenfeld.h"
#include "ui/weighing/Verlustbereich.h"
#include "ui/weighing/Wiegeausgabe.h"
#include "ui/weighing/Wiegegrund.h"
#include "ui/weighing/Wiegemeldung.h"
#include "ui/weighing/Wiegezeile.h"

namespace zerna {

conWiegen::conWiegen(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_meldung(new Wiegemeldung(programm.boxes(), this))
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
    connect(m_txtSollMasse, &Massenfeld::textChanged, this, [this](const QString& text) {
        m_offenerBezug.reset();
        daten().gewuenscht = fromQt(text);
        computeTargets();
        showAuskunft();
        emit geschehen({QStringLiteral("Gesamtmasse"), m_txtSollMasse->objectName()});
    });
}

void conWiegen::createRows()
{
    for (int row = 0; row < MaxKomponenten; ++row) {
        auto* const zeile = new Wiegezeile(row, this);
        m_zeilen.at(static_cast<std::size_t>(row)) = zeile;
        connect(zeile, &Wiegezeile::istmasseEntered, this, [this, row] { Istmasse_Change(row); });
        connect(zeile, &Wiegezeile::istmasseLeft, m_meldung, &Wiegemeldung::zeigeSpaeter);
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
    connect(m_verlust, &Verlustbereich::verlustEntered, this, [this](const QString& text) {
        daten().verlust = fromQt(text);
        zeigeVerlust();
        emit geschehen({QStringLiteral("Masseverlust"), QStringLiteral("txtVerlust")});
    });
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
    std::vector<int> moved;
    for (int row = 0; row < MaxKomponenten; ++row) {
        if (auto taken = zeigeKomponente(row)) {
            m_ablage->legeAb(row, *std::move(taken));
            moved.push_back(row);
            gewogen(row).clear();
            if (m_offenerBezug && m_offenerBezug->komponente == row)
                m_offenerBezug.reset();
        }
    }
    for (const int from : moved) // a mass stays with its component; one that comes back later is weighed anew
        setzeIn(from, zeileVon(m_ablage->komponente(from)));
    m_meldung->merke(std::nullopt);
    computeTargets();
    bezieheOffenes();
    weigh(); // the same masses mean other at% now
}

/// Shows the component of a row, or none; a mass that was weighed of another one is taken out and returned.
std::optional<AbgelegteMasse> conWiegen::zeigeKomponente(int row)
{
    if (row >= m_anzahl)
        return at(row).hide();
    const clsCalc& calc = m_programm.Calc();
    const QString name = toQt(calc.Element_Name(row));
    return at(row).zeige(calc.Element_Symbol(row), name.isEmpty() ? QStringLiteral("(kein Element)") : name);
}

/// A mass that is there again is no longer offered to be put back, one that is not there any more is.
void conWiegen::zeigeDokument()
{
    const Wiegedaten shown = daten(); // computing writes the reference
    m_anzahl = m_programm.Komponentenzahl();
    m_txtSollMasse->setMasse(toQt(shown.gewuenscht));
    m_verlust->setVerlust(toQt(shown.verlust));
    for (int row = 0; row < MaxKomponenten; ++row) {
        auto taken = zeigeKomponente(row);
        if (!gewogen(row).empty())
            m_ablage->nimm(row);
        else if (taken)
            m_ablage->legeAb(row, *std::move(taken));
        at(row).setIstmasse(toQt(gewogen(row)));
    }
    for (int from = 0; from < MaxKomponenten; ++from) {
        const int row = zeileVon(m_ablage->komponente(from));
        if (row >= 0 && at(row).istGewogen())
            m_ablage->nimm(from);
    }
    m_meldung->merke(std::nullopt);
    if (m_anzahl == 0)
        return;
    computeTargets();
    m_offenerBezug = m_programm.gerechneteEingabe().istVollstaendig() ? std::nullopt : shown.bezug;
    bezieheOffenes();
    if (!m_offenerBezug && shown.bezug && shown.bezug->komponente < m_anzahl)
        reporting(m_programm.boxes(), "zeigeDokument", Wiegesteuerelement, [&] { beziehe(*shown.bezug); });
    weigh();
}

void conWiegen::vergissAbgelegte()
{
    m_ablage->leere();
    m_ablage->zeige(komponenten());
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
        const float prozent = m_programm.Calc().Element_Prozente(row);
        if (istUnbekannt(prozent) || (!at(row).istGewogen() && prozent != 0))
            return false;
    }
    return true;
}

void conWiegen::Istmasse_Change(int row)
{
    m_ablage->nimm(row);
    gewogen(row) = fromQt(at(row).gewogen());
    m_meldung->merke(weigh());
    emit geschehen({QStringLiteral("Istmasse von %1").arg(symbol(row)), numberedName("Istmasse", row)});
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
        else if (daten().bezug) {
            m_offenerBezug.reset();
            computeTargets();
        }
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

/// Says in the fields and below them what is missing.
void conWiegen::showAuskunft()
{
    const clsCalc& calc = m_programm.Calc();
    const auto hindernis = m_istFehler ? atomprozentHindernis(calc, massen()) : std::nullopt;
    const QString noAtomprozente = m_istFehler ? istGrund(calc, massen(), *m_istFehler) : QString();
    for (int row = 0; row < m_anzahl; ++row)
        at(row).zeigeMangel(noAtomprozente, hindernis && hindernis->komponente == row);
    const bool isMarked = istUnbekannt(m_txtSollMasse->masse()); // the field then tells
    QStringList lines{m_sollFehler && !isMarked ? sollGrund(calc, m_anzahl, *m_sollFehler) : QString(), noAtomprozente};
    lines.removeAll(QString());
    if (lines.isEmpty())
        lines.append(toQt(wiegestandText()));
    m_hinweis->setText(lines.join(QLatin1Char('\n')));
    m_hinweis->setToolTip(m_hinweis->text());
    m_ablage->zeige(komponenten());
}

std::string conWiegen::wiegestandText() const
{
    std::vector<Wiegung> wiegungen;
    for (int row = 0; row < m_anzahl && !m_sollmassen.empty(); ++row) {
        const std::optional<float> ist = at(row).istGewogen() ? std::optional(at(row).istmasse()) : std::nullopt;
        wiegungen.push_back({m_sollmassen[static_cast<std::size_t>(row)], ist});
    }
    return wiegestand(m_programm.Calc(), wiegungen, m_programm.Dokument().wiegen.bezug);
}

QStringList conWiegen::komponenten() const
{
    QStringList names;
    for (int row = 0; row < m_anzahl; ++row)
        names += at(row).komponente();
    return names;
}

/// The row of a component by its name; -1 if there is none.
int conWiegen::zeileVon(const QString& komponente) const { return static_cast<int>(komponenten().indexOf(komponente)); }

/// Puts the mass taken out of one row into another one that has none.
void conWiegen::setzeIn(int from, int row)
{
    if (row < 0 || at(row).istGewogen())
        return;
    if (const auto taken = m_ablage->nimm(from))
        at(row).setIstmasse(taken->masse);
    gewogen(row) = fromQt(at(row).gewogen());
}

/// A mass goes to its component wherever that stands now, else back into its row.
void conWiegen::putBack()
{
    for (int from = 0; from < MaxKomponenten; ++from)
        setzeIn(from, zeileVon(m_ablage->komponente(from)));
    for (int row = 0; row < m_anzahl; ++row)
        setzeIn(row, row);
    weigh();
    emit geschehen({QStringLiteral("Istmassen zurückholen")});
}

void conWiegen::zeigeVerlust() { m_verlust->zeige(m_programm.Calc(), massen()); }

Wiegeprotokoll conWiegen::protokoll() const
{
    Wiegeprotokoll protokoll;
    protokoll.datum = fromQt(QDate::currentDate().toString(QStringLiteral("d.M.yyyy")));
    const clsCalc& calc = m_programm.Calc();
    for (int row = 0; row < m_anzahl; ++row)
        protokoll.zeilen.push_back(at(row).einwaage(calc.Element_Symbol(row), feldtext(calc.Element_Prozente(row))));
    if (isAnythingWeighed() && !m_gesamt->text().isEmpty())
        protokoll.gewogen = textWithDigits(gesamtmasse(massen()), 7); // all that a single holds
    const std::optional<Wiegebezug>& bezug = m_programm.Dokument().wiegen.bezug;
    if (!bezug)
        protokoll.gewuenscht = fromQt(m_txtSollMasse->text());
    else
        protokoll.bezug =
            "Sollmassen bezogen auf " + textOfSingle(bezug->masse) + " mg " + calc.Element_Symbol(bezug->komponente);
    protokoll.verlust = m_verlust->zeilen();
    return protokoll;
}

} // namespace zerna
