#pragma once

#include "ui/controls/Wertetafel.h"

namespace zerna {

/// What a search has found, a line each, of which one can be taken over: by a double click or Enter.
class Suchliste : public Wertetafel {
    Q_OBJECT

public:
    explicit Suchliste(const Settings& settings, QWidget* parent = nullptr);

    /// Shows a table; the current line stays as long as there is one in its place.
    void zeige(Tabelle tabelle);

    /// The current line; -1 for none.
    int gewaehlt() const { return rowCount() == 0 ? -1 : qMax(0, currentRow()); }

signals:
    void gewaehltChanged();
    void uebernehmen();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void verteile();
};

} // namespace zerna
