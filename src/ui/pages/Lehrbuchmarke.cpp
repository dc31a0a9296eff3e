#include "ui/pages/Lehrbuchmarke.h"

#include <QHelpEvent>
#include <QToolTip>

#include "model/rechnung/Groessen.h"
#include "ui/controls/Knopfzeile.h"
#include "ui/results/Ergebnisdetails.h"

namespace zerna {

Lehrbuchmarke::Lehrbuchmarke(Programm& programm, QWidget* parent)
    : StyledButton(QStringLiteral("≠"), parent)
    , m_programm(programm)
    , m_details(new Ergebnisdetails(this))
{
    setObjectName(QStringLiteral("cmdDiagramm_Lehrbuch"));
    setAccessibleName(QStringLiteral("Abweichung vom Lehrbuch"));
    m_details->setObjectName(QStringLiteral("Diagrammdetails"));
    setZeichenknopf(this);
    hide();
    connect(this, &StyledButton::clicked, this, [this] {
        m_details->zeige(einzelheiten(), {mapToGlobal(QPoint()), size()});
    });
}

void Lehrbuchmarke::zeige(int kennzahl)
{
    const Groesse* const groesse = findGroesse(kennzahl);
    m_zeile = groesse != nullptr ? groesse->zeile : -1;
    setVisible(abweichungImDiagramm(m_zeile) != nullptr);
}

bool Lehrbuchmarke::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return StyledButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), einzelheitenHtml(einzelheiten()), this);
    return true;
}

Einzelheiten Lehrbuchmarke::einzelheiten() const
{
    const std::optional<Legierung> legierung = m_programm.gerechneteEingabe().legierung();
    return diagrammeinzelheiten(
        m_zeile, legierung ? &m_programm.Calc() : nullptr, legierung.value_or(Legierung()).komponenten());
}

} // namespace zerna
