#pragma once

#include <QTableWidget>

#include "model/Tabelle.h"

namespace zerna {

/// The maxima of measured curves, a line each, a few of them to be seen at once. Ctrl+C copies the selected lines below
/// their heads, with a decimal point.
class Messtafel : public QTableWidget {
    Q_OBJECT

public:
    explicit Messtafel(QWidget* parent = nullptr);

    /// Shows a table, numbers with a comma.
    void zeige(Tabelle tabelle);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void takeHeight();
    void copySelection() const;
    void copyAll() const;

    Tabelle m_tabelle; // with a decimal point
};

} // namespace zerna
