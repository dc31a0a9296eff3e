#include "ui/diagram/conLabelZugang.h"

#include <algorithm>

#include "ui/diagram/conLabel.h"

namespace zerna {

conLabelZugang::conLabelZugang(conLabel& label)
    : Zugang(&label, QAccessible::SpinBox)
    , m_label(label)
{
}

QAccessible::State conLabelZugang::state() const
{
    QAccessible::State state = Zugang::state();
    state.disabled = !m_label.Enabled(); // its own flag
    return state;
}

QString conLabelZugang::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name)
        return QStringLiteral("Anteil von %1").arg(m_label.label().trimmed());
    if (kind == QAccessible::Value)
        return QStringLiteral("%1 at%").arg(m_label.Value());
    return Zugang::text(kind);
}

void* conLabelZugang::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return Zugang::interface_cast(type);
}

QVariant conLabelZugang::currentValue() const { return m_label.Value(); }

void conLabelZugang::setCurrentValue(const QVariant& value) { stelle(std::clamp(value.toInt(), 0, 100)); }

void conLabelZugang::stelle(int value) const
{
    if (!m_label.Enabled())
        return;
    m_label.setValue(value);
    emit m_label.Change();
}

QList<Zugang::Aktion> conLabelZugang::aktionen() const
{
    if (!m_label.Enabled())
        return {};
    const auto stepBy = [this](
                            int button) { return [this, button] { stelle(steppedValue(m_label.Value(), button)); }; };
    return {{increaseAction(), stepBy(1)}, {decreaseAction(), stepBy(0)}};
}

} // namespace zerna
