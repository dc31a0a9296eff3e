#pragma once

#include "ui/main/Diagrammseite.h"

namespace zerna {

/// A property over the elements of the periodic table, "PSE".
class PSEseite : public Diagrammseite {
    Q_OBJECT

public:
    using Diagrammseite::Diagrammseite;

    QString titel() const override { return QStringLiteral("PSE"); }
    std::span<const int> groessen() const override;
    void zeichne(const Eingabe& eingabe) override;
};

} // namespace zerna
