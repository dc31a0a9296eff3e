#include "ui/diagram/Diagrammmeldung.h"

#include <QPainter>

#include <utility>

namespace zerna {

Diagrammmeldung::Diagrammmeldung(QString text)
    : m_text(std::move(text))
{
}

void Diagrammmeldung::paint(QPainter& painter, const Leinwand& leinwand) const
{
    constexpr double Punkte = 14;
    constexpr int Rand = 16;
    const QRect area(QPoint(0, 0), leinwand.size);
    QFont large = leinwand.font;
    large.setPointSizeF(Punkte);
    painter.fillRect(area, Qt::white);
    painter.setFont(large);
    painter.setPen(Qt::black);
    painter.drawText(area.adjusted(Rand, Rand, -Rand, -Rand), Qt::AlignCenter | Qt::TextWordWrap, m_text);
}

} // namespace zerna
