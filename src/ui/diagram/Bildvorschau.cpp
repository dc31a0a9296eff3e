#include "ui/diagram/Bildvorschau.h"

#include <QPainter>

#include <algorithm>
#include <utility>

#include "ui/diagram/Bilddatei.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr double Margin = 12; // around the sheet

} // namespace

Bildvorschau::Bildvorschau(Bildmaler maler, QWidget* parent)
    : QWidget(parent)
    , m_maler(std::move(maler))
{
    setAccessibleName(QStringLiteral("Vorschau"));
}

void Bildvorschau::zeige(const Bildvorgabe& vorgabe)
{
    m_vorgabe = vorgabe;
    update();
}

QRectF Bildvorschau::blatt() const
{
    const QRectF room = QRectF(rect()).adjusted(Margin, Margin, -Margin, -Margin);
    const double scale = std::max(0.0, std::min(room.width() / m_vorgabe.breite, room.height() / m_vorgabe.hoehe));
    QRectF sheet(0, 0, scale * m_vorgabe.breite, scale * m_vorgabe.hoehe);
    sheet.moveCenter(room.center());
    return sheet;
}

void Bildvorschau::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor ground = palette().color(QPalette::Dark);
    painter.fillRect(rect(), ground);
    const QRectF sheet = blatt();
    painter.fillRect(sheet, Qt::white);
    const double scale = sheet.width() / pixelAusMillimeter(m_vorgabe.breite);
    if (scale <= 0)
        return;
    Leinwand leinwand = leinwandNach(m_vorgabe);
    leinwand.devicePixelRatio = scale * devicePixelRatioF();
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    painter.scale(scale, scale);
    m_maler(painter, leinwand);
}

} // namespace zerna
