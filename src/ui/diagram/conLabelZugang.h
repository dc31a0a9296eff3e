#pragma once

#include "ui/platform/Zugang.h"

namespace zerna {

class conLabel;

/// A whole number from 0 to 100 that can be stepped, named after its component.
class conLabelZugang : public Zugang, public QAccessibleValueInterface {
public:
    explicit conLabelZugang(conLabel& label);

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override; ///< as if it had been stepped there
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

protected:
    QList<Aktion> aktionen() const override;

private:
    void stelle(int value) const;

    conLabel& m_label;
};

} // namespace zerna
