#include "ui/controls/Radsperre.h"

#include <QComboBox>
#include <QEvent>

namespace zerna {

Radsperre::Radsperre(QWidget& window)
    : QObject(&window)
{
    for (QComboBox* const list : window.findChildren<QComboBox*>())
        list->installEventFilter(this);
}

bool Radsperre::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    event->ignore(); // goes on to the widget beneath
    return true;
}

} // namespace zerna
