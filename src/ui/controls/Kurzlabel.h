#pragma once

#include <QLabel>

namespace zerna {

/// A label that cuts off with an ellipsis what it has no room for; whoever sets the text sees to the tool tip.
class Kurzlabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zerna
