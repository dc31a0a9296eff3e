#include "ui/controls/Befundzeile.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "ui/platform/Ansage.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr int Bar = 4; // width of the coloured bar in front
constexpr int Gap = 6;
constexpr int Wrapped = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;

} // namespace

Befundzeile::Befundzeile(QWidget* parent)
    : QAbstractButton(parent)
    , m_ansage(new Ansage(this, QAccessible::Alert))
{
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    zeige({}, Ton::Hinweis);
}

void Befundzeile::zeige(const QString& befund, Ton ton, bool fuehrtHin)
{
    if (befund != m_befund || ton != m_ton) {
        updateGeometry();
        update();
    }
    m_ton = ton;
    if (befund != m_befund) {
        m_befund = befund;
        setToolTip(befund);
        setAccessibleName(befund);
        if (!befund.isEmpty())
            m_ansage->merke();
    }
    const bool isActive = fuehrtHin && !befund.isEmpty();
    setFocusPolicy(isActive ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(isActive ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setEnabled(isActive);
}

QSize Befundzeile::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_befund) + Bar + 2 * Gap, fontMetrics().height() + 4};
}

int Befundzeile::heightForWidth(int width) const
{
    const QRect area(0, 0, qMax(1, width - Bar - Gap), QWIDGETSIZE_MAX);
    return qMax(fontMetrics().height(), fontMetrics().boundingRect(area, Wrapped, m_befund).height()) + 4;
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
    shown.setUnderline(isEnabled() && underMouse());
    painter.setFont(shown);
    painter.setPen(colour());
    painter.drawText(rect().adjusted(Bar + Gap, 0, 0, 0), Wrapped, m_befund);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(Bar + 2, 0, 0, 0);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace zerna
