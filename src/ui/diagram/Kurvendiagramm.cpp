#include "ui/diagram/Kurvendiagramm.h"

#include <QPainter>

#include <utility>

namespace zerna {

namespace {

QRect rectOf(const Rechteck& box)
{
    return {static_cast<int>(box.left), static_cast<int>(box.top), static_cast<int>(box.width),
        static_cast<int>(box.height)};
}

} // namespace

void Kurvendiagramm::setBild(Kurvenbild bild)
{
    m_bild = std::move(bild);
    m_hatBild = true;
    ++m_stand;
}

const Kurvenzeichnung& Kurvendiagramm::zeichnung(const Leinwand& leinwand) const
{
    return m_zeichnung.get({leinwand, m_stand}, [&] { return kurvenzeichnung(m_bild, leinwand); });
}

QRect Kurvendiagramm::kern(const Leinwand& leinwand) const
{
    return m_hatBild ? rectOf(zeichnung(leinwand).layout.kern) : QRect(QPoint(0, 0), leinwand.size);
}

QRect Kurvendiagramm::plot(const Leinwand& leinwand) const
{
    return rectOf(
        m_hatBild ? zeichnung(leinwand).layout.plot : plotArea(leinwand.size.width(), leinwand.size.height()));
}

void Kurvendiagramm::paintRand(QPainter& painter, const Leinwand& leinwand) const
{
    if (m_hatBild)
        zerna::paintRand(painter, m_bild, zeichnung(leinwand), leinwand);
}

void Kurvendiagramm::paintAchsen(QPainter& painter, const Leinwand& leinwand) const
{
    if (m_hatBild)
        zerna::paintAchsen(painter, zeichnung(leinwand), leinwand);
}

void Kurvendiagramm::paintPlot(QPainter& painter, const Leinwand& leinwand) const
{
    if (m_hatBild)
        zerna::paintPlot(painter, m_bild, zeichnung(leinwand), leinwand);
}

void Kurvendiagramm::paint(QPainter& painter, const Leinwand& leinwand) const
{
    painter.fillRect(QRect(QPoint(0, 0), leinwand.size), Qt::white);
    paintRand(painter, leinwand);
    paintAchsen(painter, leinwand);
    paintPlot(painter, leinwand);
}

} // namespace zerna
