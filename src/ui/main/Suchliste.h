#pragma once

#include <QTableWidget>

#include "model/Tabelle.h"

namespace zerna {

/// What a search has found, a line each, of which one can be taken over: by a double click or Enter. Ctrl+C copies the
/// selected lines below their heads.
class Suchliste : public QTableWidget {
    Q_OBJECT

public:
    explicit Suchliste(QWidget* parent = nullptr);

    /// Shows a table, numbers with a comma; the current line stays as long as there is one in its place.
    void zeige(Tabelle tabelle);

    /// The current line; -1 for none.
    int gewaehlt() const { return rowCount() == 0 ? -1 : qMax(0, currentRow()); }

    /// Copies the whole table.
    void kopiere() const;

signals:
    void gewaehltChanged();
    void uebernehmen();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void copySelection() const;

    Tabelle m_tabelle;
};

} // namespace zerna
