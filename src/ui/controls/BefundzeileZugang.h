#pragma once

#include "ui/platform/Zugang.h"

namespace zerna {

class Befundzeile;

/// A button where the line leads somewhere, else a text to be read; nothing while it says nothing.
class BefundzeileZugang : public Zugang {
public:
    explicit BefundzeileZugang(Befundzeile& zeile);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;

protected:
    QList<Aktion> aktionen() const override;

private:
    Befundzeile& m_zeile;
};

} // namespace zerna
