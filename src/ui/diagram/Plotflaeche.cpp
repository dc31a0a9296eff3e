#include "ui/diagram/Plotflaeche.h"

#include <QMouseEvent>
#include <QPainter>

namespace zerna {

Plotflaeche::Plotflaeche(Paint paint, QWidget* parent)
    : QWidget(parent)
    , m_paint(std::move(paint))
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Plotflaeche::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    emit mouseLeft();
}

void Plotflaeche::mouseMoveEvent(QMouseEvent* event)
{
    emit mouseMoved(event->position());
    event->ignore(); // the diagram area moves the crosshair
}

void Plotflaeche::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_paint(painter);
}

} // namespace zerna
