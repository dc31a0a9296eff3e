#pragma once

#include <QTableWidget>

#include "model/Tabelle.h"

namespace zerna {

/// A table of texts and numbers to be looked at and copied. Ctrl+C copies the selected lines below their heads, or all
/// of them while none is selected.
class Wertetafel : public QTableWidget {
    Q_OBJECT

public:
    explicit Wertetafel(QWidget* parent = nullptr);

    /// Shows a table, numbers with a comma.
    void zeige(Tabelle tabelle);

    /// Copies the whole table, as it was given.
    void kopiere() const;

protected:
    const Tabelle& tabelle() const { return m_tabelle; }

    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fillColumn(int column);
    void copySelection() const;

    Tabelle m_tabelle;
};

} // namespace zerna
