#include "ui/controls/Kurzlabel.h"

#include <QPainter>
#include <QStyle>

namespace zerna {

void Kurzlabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(
        &painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(), shown, foregroundRole());
}

} // namespace zerna
