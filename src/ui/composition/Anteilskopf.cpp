#include "ui/composition/Anteilskopf.h"

#include <QEvent>
#include <QPainter>

#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr int Bar = 2; // height of the bar below the chosen one

} // namespace

Anteilskopf::Anteilskopf(const QString& einheit, QWidget* parent)
    : QAbstractButton(parent)
{
    setText(einheit);
    setCheckable(true);
    setAutoExclusive(true);
    setFocusPolicy(Qt::TabFocus); // clicking leaves the focus in the field that is typed into
    setAccessibleName(QStringLiteral("Anteile in %1 eintippen").arg(einheit));
    setToolTip(accessibleName());
}

QSize Anteilskopf::sizeHint() const { return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(0, Bar); }

/// The pointer tells what can be clicked.
bool Anteilskopf::event(QEvent* event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        setCursor(isChecked() ? Qt::ArrowCursor : Qt::PointingHandCursor);
        update();
    }
    return QAbstractButton::event(event);
}

void Anteilskopf::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QFont shown = font();
    shown.setUnderline(!isChecked() && (underMouse() || hasFocus()));
    painter.setFont(shown);
    painter.setPen(isChecked() ? palette().color(QPalette::WindowText) : abgeschwaecht(palette()));
    const QRect area = rect().adjusted(0, 0, 0, -Bar);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, text());
    const QColor accent = fokusfarbe(palette(), palette().color(QPalette::Window));
    const int width = fontMetrics().horizontalAdvance(text());
    if (isChecked())
        painter.fillRect(QRect(0, height() - Bar, width, Bar), accent);
    if (hasFocus()) {
        painter.setPen(accent);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace zerna
