#include "ui/weighing/conWiegen.h"

#include <QDate>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

#include "core/CheckedArithmetic.h"
#include "core/Fehlermeldung.h"
#include "core/Zahlentext.h"
#include "model/Einwaage.h"
#include "programm/Exportieren.h"
#include "ui/button/StyledButton.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Zwischenablage.h"
#include "ui/weighing/Massenfeld.h"
#include "ui/weighing/Wiegezeile.h"

namespace zerna {

namespace {

constexpr std::string_view Steuerelement = "Benutzersteuerelement conWiegen";

Massenfeld* makeMassField(const char* name, const QString& accessibleName, QWidget* parent)
{
    auto* field = new Massenfeld(QLatin1String(name), parent);
    field->setAccessibleName(accessibleName);
    field->setFixedSize(110, 26);
    return field;
}

} // namespace

conWiegen::conWiegen(Programm& programm, SaveFileDialog& saveDialog, QWidget* parent)
    : QWidget(parent)
    , m_programm(programm)
    , m_saveDialog(saveDialog)
{
    createControls();
    layOut();
}

void conWiegen::createControls()
{
    createTarget();
    for (int row = 0; row < MaxKomponenten; ++row) {
        m_zeilen.at(static_cast<std::size_t>(row)) = new Wiegezeile(row, this);
        connect(&at(row), &Wiegezeile::istmasseEntered, this, &conWiegen::Istmasse_Change);
        connect(&at(row), &Wiegezeile::istmasseLeft, this, &conWiegen::reportLater);
        connect(&at(row), &Wiegezeile::returnPressed, this, [this, row] { Istmasse_KeyDown(row); });
    }
    m_gesamt = new QLabel(this);
    m_gesamt->setObjectName(QStringLiteral("lblGesamtmasse"));
    m_hinweis = new QLabel(this);
    m_hinweis->setObjectName(QStringLiteral("lblHinweis"));
    m_hinweis->setWordWrap(true);
    createLoss();
    m_kopieren = new StyledButton(QStringLiteral("&Kopieren"), this);
    m_kopieren->setObjectName(QStringLiteral("cmdWiegen_Kopieren"));
    m_kopieren->setToolTipText(QStringLiteral("Wiegeprotokoll in die Zwischenablage"));
    m_speichern = new StyledButton(QStringLiteral("&Speichern"), this);
    m_speichern->setObjectName(QStringLiteral("cmdWiegen_Speichern"));
    m_speichern->setToolTipText(QStringLiteral("Wiegeprotokoll als Textdatei speichern"));
    connect(m_kopieren, &StyledButton::clicked, this, &conWiegen::copy);
    connect(m_speichern, &StyledButton::clicked, this, &conWiegen::save);
}

void conWiegen::createTarget()
{
    m_sollMasseCaption = new QLabel(QStringLiteral("&Gesamtmasse [mg]:"), this);
    m_txtSollMasse = makeMassField("txtSollMasse", QStringLiteral("Gewünschte Gesamtmasse in Milligramm"), this);
    m_txtSollMasse->setText(QStringLiteral("1000"));
    m_sollMasseCaption->setBuddy(m_txtSollMasse);
    connect(m_txtSollMasse, &Massenfeld::textChanged, this, &conWiegen::sollMasseChanged);
}

void conWiegen::createLoss()
{
    m_verlustCaption = new QLabel(QStringLiteral("Masse&verlust [mg]:"), this);
    m_txtVerlust = makeMassField("txtVerlust", QStringLiteral("Masseverlust in Milligramm"), this);
    m_verlustCaption->setBuddy(m_txtVerlust);
    m_lstVerlust = new QListWidget(this);
    m_lstVerlust->setObjectName(QStringLiteral("lstVerlust"));
    m_lstVerlust->setAccessibleName(QStringLiteral("Zusammensetzung nach dem Masseverlust"));
    connect(m_txtVerlust, &Massenfeld::textChanged, this, &conWiegen::verlustChanged);
}

void conWiegen::layOut()
{
    auto* total = new QHBoxLayout;
    total->addWidget(m_sollMasseCaption);
    total->addWidget(m_txtSollMasse);
    total->addStretch();
    auto* grid = new QGridLayout;
    Wiegezeile::layOutHeads(*grid, this);
    for (int row = 0; row < MaxKomponenten; ++row)
        at(row).layOut(*grid, row + 1);
    auto* loss = new QHBoxLayout;
    loss->addWidget(m_verlustCaption);
    loss->addWidget(m_txtVerlust);
    loss->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addLayout(total);
    column->addLayout(grid);
    column->addWidget(m_gesamt);
    column->addWidget(m_hinweis);
    column->addLayout(loss);
    column->addWidget(m_lstVerlust, 1);
    column->addLayout(knopfzeile({m_kopieren, m_speichern}));
}

void conWiegen::Aktualisieren(const Eingabe& eingabe)
{
    m_anzahl = eingabe.anzahl();
    for (int row = 0; row < MaxKomponenten; ++row) {
        if (row < m_anzahl)
            at(row).zeige(toQt(m_programm.Calc().Element_Name(row)));
        else
            at(row).hide();
    }
    sollMasseChanged();
    try {
        showWeighed(); // the same masses mean other at% now
    } catch (const Laufzeitfehler&) {
        clearWeighed();
    }
    showMangel();
    verlustChanged();
}

void conWiegen::sollMasseChanged()
{
    m_sollGrund.clear();
    try {
        showTargets();
    } catch (const Laufzeitfehler& error) {
        for (Wiegezeile* const zeile : m_zeilen) {
            zeile->zeigeSollmasse({});
            if (!isAnythingWeighed())
                zeile->zeigeMassenanteil({}, {});
        }
        if (!istUnbekannt(m_txtSollMasse->masse())) // else the field is marked
            m_sollGrund = QStringLiteral("Sollmassen nicht berechenbar: %1.").arg(sollGrund(error));
    }
    showHinweis();
}

/// Why there are no target masses, in terms of the alloy where that is to blame.
QString conWiegen::sollGrund(const Laufzeitfehler& error) const
{
    const auto hindernis = sollmassenHindernis(m_programm.Calc(), m_anzahl);
    return hindernis ? toQt(m_programm.Calc().Element_Name(hindernis->komponente) + " " + hindernis->grund)
                     : toQt(error.what());
}

void conWiegen::showHinweis()
{
    const bool both = !m_sollGrund.isEmpty() && !m_istGrund.isEmpty();
    m_hinweis->setText(m_sollGrund + (both ? QStringLiteral("\n") : QString()) + m_istGrund);
}

/// Target masses and, until something is weighed, the mass percents that they mean.
void conWiegen::showTargets()
{
    const float wanted = wiegezahl(m_txtSollMasse->masse());
    const std::vector<float> massen = sollmassen(m_programm.Calc(), m_anzahl, wanted);
    const bool weighed = isAnythingWeighed();
    for (int row = 0; row < m_anzahl; ++row) {
        const float masse = massen.at(static_cast<std::size_t>(row));
        at(row).zeigeSollmasse(toQt(massentext(masse)));
        if (weighed)
            continue;
        at(row).zeigeMassenanteil(wanted == 0 ? QString() : toQt(fixedText(quotient(masse, wanted) * 100, 2)),
            QStringLiteral("Anteil an der gewünschten Gesamtmasse"));
    }
}

std::vector<float> conWiegen::istmassen() const
{
    std::vector<float> massen;
    for (int row = 0; row < m_anzahl; ++row)
        massen.push_back(wiegezahl(at(row).istmasse()));
    return massen;
}

bool conWiegen::isAnythingWeighed() const
{
    for (int row = 0; row < m_anzahl; ++row) {
        if (at(row).istGewogen())
            return true;
    }
    return false;
}

void conWiegen::Istmasse_Change()
{
    m_meldung.reset();
    try {
        showWeighed();
    } catch (const Laufzeitfehler& error) {
        clearWeighed();
        m_meldung = error;
    }
    showMangel();
    verlustChanged();
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
        reporting(m_programm.boxes(), "Istmasse_Change", Steuerelement, [&error] { throw *error; });
}

/// Says in the fields and below them what the masses lack for their at%.
void conWiegen::showMangel()
{
    std::vector<float> massen;
    for (int row = 0; row < m_anzahl; ++row)
        massen.push_back(at(row).istmasse());
    const clsCalc& calc = m_programm.Calc();
    const auto hindernis = isAnythingWeighed() ? atomprozentHindernis(calc, massen) : std::nullopt;
    m_istGrund.clear();
    if (hindernis)
        m_istGrund = QStringLiteral("Atomprozente nicht berechenbar: %1 %2.")
                         .arg(toQt(calc.Element_Name(hindernis->komponente)), toQt(hindernis->grund));
    for (int row = 0; row < m_anzahl; ++row)
        at(row).zeigeMangel(m_istGrund, hindernis && hindernis->komponente == row);
    showHinweis();
}

/// Sum, at%, deviation and mass percent of what was weighed; with nothing weighed the shares of the target masses.
/// Throws with the sum already shown.
void conWiegen::showWeighed()
{
    m_gesamt->clear();
    if (!isAnythingWeighed()) {
        clearWeighed();
        sollMasseChanged();
        return;
    }
    const std::vector<float> massen = istmassen();
    m_gesamt->setText(QStringLiteral("Gesamtmasse = %1").arg(toQt(FormatValue(gesamtmasse(massen), "mg"))));
    const clsCalc& calc = m_programm.Calc();
    const std::vector<float> atomprozente = gewogeneAtomprozente(calc, massen);
    const std::vector<float> shares = massenprozente(massen);
    for (int row = 0; row < m_anzahl; ++row) {
        const auto k = static_cast<std::size_t>(row);
        at(row).zeigeAtomprozent(atomprozente[k], calc.Element_Prozente(row));
        at(row).zeigeMassenanteil(toQt(fixedText(shares[k], 2)), QStringLiteral("Anteil an der gewogenen Masse"));
    }
}

void conWiegen::clearWeighed()
{
    for (Wiegezeile* const zeile : m_zeilen) {
        zeile->clearAtomprozent();
        zeile->zeigeMassenanteil({}, {});
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
    reporting(m_programm.boxes(), "Istmasse_KeyDown", Steuerelement, [&] {
        const std::vector<float> massen = sollmassenZu(calc, m_anzahl, row, wiegezahl(at(row).istmasse()));
        for (int other = 0; other < m_anzahl; ++other) {
            if (other != row)
                at(other).zeigeSollmasse(toQt(massentext(massen.at(static_cast<std::size_t>(other)))));
        }
    });
}

void conWiegen::verlustChanged()
{
    m_lstVerlust->clear();
    if (m_txtVerlust->text().isEmpty() || istUnbekannt(m_txtVerlust->masse()))
        return;
    try {
        for (const std::string& line : verlustliste(m_programm.Calc(), istmassen(), m_txtVerlust->masse()))
            m_lstVerlust->addItem(toQt(line));
    } catch (const Laufzeitfehler& error) {
        m_lstVerlust->addItem(QStringLiteral("Nicht berechenbar: %1").arg(toQt(error.what())));
    }
}

std::vector<Einwaagezeile> conWiegen::einwaagen() const
{
    const clsCalc& calc = m_programm.Calc();
    std::vector<Einwaagezeile> zeilen;
    for (int row = 0; row < m_anzahl; ++row)
        zeilen.push_back(at(row).einwaage(calc.Element_Symbol(row), textOfSingle(calc.Element_Prozente(row))));
    return zeilen;
}

std::string conWiegen::protokoll() const
{
    return wiegeprotokoll(fromQt(QDate::currentDate().toString(QStringLiteral("d.M.yyyy"))), einwaagen());
}

void conWiegen::copy() { copyToClipboard(toQt(protokoll())); }

void conWiegen::save()
{
    if (!istEineMasseBekannt(einwaagen()))
        return zeigeNichtsZuSpeichern(m_programm.boxes(), "Es gibt weder Sollmassen noch gewogene Massen.");
    const Exportart art = textdatei("Wiegeprotokoll (*.dat)", "*.dat", ".dat", [this] { return protokoll(); });
    exportieren(m_programm.boxes(), m_saveDialog, Exporttitel, std::span(&art, 1));
}

} // namespace zerna
