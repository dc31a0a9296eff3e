#pragma once

#include <QComboBox>

namespace zerna {

/// A list whose size is given: no entry is measured for it.
class Festliste : public QComboBox {
public:
    using QComboBox::QComboBox;

    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSizeHint() const override { return minimumSize(); }
};

} // namespace zerna
