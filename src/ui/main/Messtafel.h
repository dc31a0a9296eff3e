#pragma once

#include "ui/main/Wertetafel.h"

namespace zerna {

/// The maxima of measured curves, a line each, a few of them to be seen at once. They are copied with a decimal point.
class Messtafel : public Wertetafel {
    Q_OBJECT

public:
    explicit Messtafel(QWidget* parent = nullptr);

    /// Shows a table whose numbers have a decimal point.
    void zeige(Tabelle tabelle);

private:
    void takeHeight();
};

} // namespace zerna
