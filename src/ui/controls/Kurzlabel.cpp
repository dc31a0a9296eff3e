#include "ui/controls/Kurzlabel.h"

#include <QAccessible>
#include <QPainter>

namespace zerna {

Kurzlabel::Kurzlabel(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy({QSizePolicy::Preferred, QSizePolicy::Preferred, QSizePolicy::Label});
}

void Kurzlabel::setText(const QString& text)
{
    if (text == m_text)
        return;
    const QSize before = sizeHint();
    m_text = text;
    m_breite = m_behaeltBreite && !text.isEmpty() ? sizeHint().width() : 0;
    if (sizePolicy().horizontalPolicy() != QSizePolicy::Ignored && sizeHint() != before)
        updateGeometry();
    update();
    if (accessibleName().isEmpty() && QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

QSize Kurzlabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const int width = m_text.isEmpty() ? metrics.averageCharWidth() : metrics.size(Qt::TextSingleLine, m_text).width();
    return {qMax(width, m_breite), metrics.height()};
}

void Kurzlabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(
        rect(), Qt::AlignLeft | Qt::AlignVCenter, fontMetrics().elidedText(m_text, Qt::ElideRight, width()));
}

} // namespace zerna
