#pragma once

#include <QWidget>

namespace zerna {

/// The weighing calculator's place in the main window.
class conWiegen : public QWidget {
    Q_OBJECT

public:
    explicit conWiegen(QWidget* parent = nullptr);

    /// Rebuilds the panel for the current composition.
    void Aktualisieren();
};

} // namespace zerna
