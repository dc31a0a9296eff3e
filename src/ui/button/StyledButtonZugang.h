#pragma once

#include "ui/platform/Zugang.h"

namespace zerna {

class StyledButton;

/// A button, or one of several of which one is on.
class StyledButtonZugang : public Zugang {
public:
    explicit StyledButtonZugang(StyledButton& button);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

protected:
    QList<Aktion> aktionen() const override;

private:
    StyledButton& m_button;
};

} // namespace zerna
