#pragma once

#include "ui/controls/Wertetafel.h"

namespace zerna {

/// The maxima of measured curves, a line each, a few of them to be seen at once.
class Messtafel : public Wertetafel {
    Q_OBJECT

public:
    explicit Messtafel(const Settings& settings, QWidget* parent = nullptr);

    void zeige(Tabelle tabelle);

private:
    void takeHeight();
};

} // namespace zerna
