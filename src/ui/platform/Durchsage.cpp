#include "ui/platform/Durchsage.h"

namespace zerna {

DurchsageZugang::DurchsageZugang(QObject* durchsage)
    : QAccessibleObject(durchsage)
{
}

QAccessibleInterface* DurchsageZugang::parent() const
{
    return QAccessible::queryAccessibleInterface(object()->parent());
}

QString DurchsageZugang::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? parent()->text(kind) : QString();
}

} // namespace zerna
