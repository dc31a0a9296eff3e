#pragma once

#include <QObject>

class QWidget;

namespace zerna {

/// Keeps the mouse wheel from choosing in the closed lists of a window, with or without focus: it would throw away what
/// was typed beside them. Open lists scroll as ever; what lies beneath gets the wheel.
class Radsperre : public QObject {
public:
    /// For all lists that `window` has; lives as long as it.
    explicit Radsperre(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace zerna
