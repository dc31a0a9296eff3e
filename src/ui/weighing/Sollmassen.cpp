#include "core/CheckedArithmetic.h"
#include "core/Fehlermeldung.h"
#include "core/Zahlentext.h"
#include "model/einwaage/Einwaage.h"
#include "ui/platform/QtText.h"
#include "ui/weighing/Massenfeld.h"
#include "ui/weighing/Wiegegrund.h"
#include "ui/weighing/Wiegemeldung.h"
#include "ui/weighing/Wiegezeile.h"
#include "ui/weighing/conWiegen.h"

// The target masses, for a wanted total or to match a mass weighed.

namespace zerna {

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

/// The mass weighed in this row becomes the reference for the others' target masses.
void conWiegen::Istmasse_KeyDown(int row)
{
    m_meldung->zeige();
    const clsCalc& calc = m_programm.Calc();
    if (m_sollFehler && !m_programm.gerechneteEingabe().istVollstaendig()) {
        m_programm.boxes().show(Icon::Exclamation, Programmtitel, fromQt(sollGrund(calc, m_anzahl, *m_sollFehler)));
        return;
    }
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
    reporting(m_programm.boxes(), "Istmasse_KeyDown", Wiegesteuerelement, [&] {
        beziehe({row, wiegezahl(at(row).istmasse())});
        m_offenerBezug.reset();
        emit geschehen({QStringLiteral("Bezug auf %1").arg(symbol(row))});
    });
}

void conWiegen::beziehe(const Wiegebezug& bezug)
{
    m_sollmassen = sollmassenZu(m_programm.Calc(), m_anzahl, bezug.komponente, bezug.masse);
    m_sollFehler.reset();
    for (int other = 0; other < m_anzahl; ++other) {
        if (other != bezug.komponente)
            at(other).zeigeSollmasse(toQt(massentext(m_sollmassen[static_cast<std::size_t>(other)])));
    }
    setBezug(bezug);
    showAuskunft();
}

/// The reference that a document came with is set as soon as its at% are complete.
void conWiegen::bezieheOffenes()
{
    if (!m_offenerBezug || m_offenerBezug->komponente >= m_anzahl)
        return;
    try {
        beziehe(*m_offenerBezug);
    } catch (const Laufzeitfehler&) {
        if (m_sollmassen.empty())
            setBezug(m_offenerBezug); // goes on waiting
    }
}

void conWiegen::setBezug(const std::optional<Wiegebezug>& bezug)
{
    daten().bezug = bezug;
    for (int row = 0; row < MaxKomponenten; ++row) {
        const bool isReference = bezug && bezug->komponente == row;
        at(row).zeigeBezug(isReference
                ? QStringLiteral("Die übrigen Sollmassen beziehen sich auf %1 mg").arg(toQt(textOfSingle(bezug->masse)))
                : QString());
    }
}

} // namespace zerna
