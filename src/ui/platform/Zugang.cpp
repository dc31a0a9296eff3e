#include "ui/platform/Zugang.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QWidget>

#include <algorithm>

namespace zerna {

QStringList Zugang::actionNames() const
{
    QStringList names;
    if (!widget()->isEnabled())
        return names;
    for (const Aktion& aktion : aktionen())
        names += aktion.name;
    return names + QAccessibleWidget::actionNames();
}

void Zugang::doAction(const QString& name)
{
    const QList<Aktion> all = aktionen();
    const auto found = std::ranges::find(all, name, &Aktion::name);
    if (found == all.end())
        QAccessibleWidget::doAction(name);
    else if (widget()->isEnabled())
        found->tun();
}

QStringList Zugang::keyBindingsForAction(const QString& name) const
{
    const QList<Aktion> all = aktionen();
    const auto found = std::ranges::find(all, name, &Aktion::name);
    if (found == all.end())
        return QAccessibleWidget::keyBindingsForAction(name);
    return found->taste.isEmpty() ? QStringList() : QStringList(found->taste);
}

/// The toolkit's own names it translates itself.
QString Zugang::localizedActionName(const QString& name) const
{
    const auto isOwn = std::ranges::any_of(name, [](QChar c) { return c.unicode() > 127 || c == QLatin1Char(' '); });
    return isOwn ? name : QAccessibleWidget::localizedActionName(name);
}

Zugang::Aktion Zugang::menueaktion() const
{
    QWidget* const asked = widget();
    const auto open = [asked] {
        const auto ask = [asked] {
            const QPoint middle = asked->rect().center();
            QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, asked->mapToGlobal(middle));
            QCoreApplication::sendEvent(asked, &event);
        };
        QMetaObject::invokeMethod(asked, ask, Qt::QueuedConnection); // a menu goes on until it is closed
    };
    return {showMenuAction(), open, QStringLiteral("Menu")};
}

QString ohneKuerzel(const QString& caption)
{
    QString read;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && i + 1 < caption.size())
            ++i; // of a pair the second stands for itself
        read += caption[i];
    }
    return read;
}

} // namespace zerna
