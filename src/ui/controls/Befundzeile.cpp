#include "ui/controls/Befundzeile.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr int Bar = 4; // width of the coloured bar in front
constexpr int Gap = 6;

} // namespace

Befundzeile::Befundzeile(QWidget* parent)
    : QAbstractButton(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    zeige({}, Ton::Hinweis);
}

void Befundzeile::zeige(const QString& befund, Ton ton)
{
    m_befund = befund;
    m_ton = ton;
    setToolTip(befund);
    setAccessibleName(befund);
    setFocusPolicy(befund.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
    setCursor(befund.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    setEnabled(!befund.isEmpty());
    cut();
    update();
}

QSize Befundzeile::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_befund) + Bar + 2 * Gap, fontMetrics().height() + 4};
}

QSize Befundzeile::minimumSizeHint() const { return {0, sizeHint().height()}; }

void Befundzeile::cut() { setText(fontMetrics().elidedText(m_befund, Qt::ElideRight, width() - Bar - 2 * Gap)); }

void Befundzeile::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        cut();
}

void Befundzeile::resizeEvent(QResizeEvent* event)
{
    QAbstractButton::resizeEvent(event);
    cut();
}

void Befundzeile::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

QColor Befundzeile::colour() const
{
    if (m_ton == Ton::Fehler)
        return fehlerfarbe(palette());
    return m_ton == Ton::Bedenken ? bedenkenfarbe(palette()) : palette().color(QPalette::Active, QPalette::WindowText);
}

void Befundzeile::paintEvent(QPaintEvent*)
{
    if (m_befund.isEmpty())
        return;
    QPainter painter(this);
    painter.fillRect(QRect(0, 2, Bar, height() - 4), colour());
    QFont shown = font();
    shown.setUnderline(underMouse());
    painter.setFont(shown);
    painter.setPen(colour());
    painter.drawText(
        rect().adjusted(Bar + Gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(Bar + 2, 0, 0, 0);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace zerna
