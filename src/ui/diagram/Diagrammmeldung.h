#pragma once

#include "ui/diagram/Diagramm.h"

namespace zerna {

/// A text in the place of a diagram: why there is none.
class Diagrammmeldung : public Diagramm {
public:
    explicit Diagrammmeldung(QString text = {});

    void paint(QPainter& painter, const Leinwand& leinwand) const override;
    QString name() const override { return m_text.simplified(); }

private:
    QString m_text;
};

} // namespace zerna
