#pragma once

#include <QTableWidget>

#include "core/Settings.h"
#include "model/rechnung/Tabelle.h"

namespace zerna {

/// A table of texts and numbers to be looked at and copied. Ctrl+C copies the selected lines below their heads, or all
/// of them while none is selected, with the decimal separator that is remembered for tables.
class Wertetafel : public QTableWidget {
    Q_OBJECT

public:
    explicit Wertetafel(const Settings& settings, QWidget* parent = nullptr);

    /// Shows a table, numbers with a comma.
    void zeige(Tabelle tabelle);

    /// Copies the whole table.
    void kopiere() const;

protected:
    const Tabelle& tabelle() const { return m_tabelle; }

    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fillColumn(int column);
    void copySelection() const;
    void copy(Tabelle table) const;

    const Settings& m_settings;
    Tabelle m_tabelle;
};

} // namespace zerna
