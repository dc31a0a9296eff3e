#include "ui/button/StyledButtonZugang.h"

#include <QKeySequence>

#include "ui/button/StyledButton.h"

namespace zerna {

StyledButtonZugang::StyledButtonZugang(StyledButton& button)
    : Zugang(&button, QAccessible::Button)
    , m_button(button)
{
}

/// Buttons that stay down are switches between views in this program: one of them is on.
QAccessible::Role StyledButtonZugang::role() const
{
    return m_button.isCheckable() ? QAccessible::RadioButton : QAccessible::Button;
}

QAccessible::State StyledButtonZugang::state() const
{
    QAccessible::State state = Zugang::state();
    state.pressed = m_button.isDown();
    state.checkable = m_button.isCheckable();
    state.checked = m_button.isChecked();
    return state;
}

QString StyledButtonZugang::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name && m_button.accessibleName().isEmpty())
        return ohneKuerzel(m_button.text());
    if (kind == QAccessible::Accelerator)
        return QKeySequence::mnemonic(m_button.text()).toString(QKeySequence::NativeText);
    return Zugang::text(kind);
}

/// A dialog that the button opens goes on until it is closed: the button is clicked once the caller has been answered.
QList<Zugang::Aktion> StyledButtonZugang::aktionen() const
{
    const auto press = [this] { QMetaObject::invokeMethod(&m_button, &QAbstractButton::click, Qt::QueuedConnection); };
    return {{pressAction(), press, text(QAccessible::Accelerator)}};
}

} // namespace zerna
