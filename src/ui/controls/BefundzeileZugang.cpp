#include "ui/controls/BefundzeileZugang.h"

#include "ui/controls/Befundzeile.h"

namespace zerna {

BefundzeileZugang::BefundzeileZugang(Befundzeile& zeile)
    : Zugang(&zeile, QAccessible::StaticText)
    , m_zeile(zeile)
{
}

QAccessible::Role BefundzeileZugang::role() const
{
    return m_zeile.isEnabled() ? QAccessible::Button : QAccessible::StaticText;
}

QAccessible::State BefundzeileZugang::state() const
{
    QAccessible::State state = Zugang::state();
    state.disabled = false; // only to be read is not disabled
    state.invisible = state.invisible || m_zeile.befund().isEmpty();
    return state;
}

QList<Zugang::Aktion> BefundzeileZugang::aktionen() const
{
    const auto press = [this] { QMetaObject::invokeMethod(&m_zeile, &QAbstractButton::click, Qt::QueuedConnection); };
    return {{pressAction(), press}};
}

} // namespace zerna
