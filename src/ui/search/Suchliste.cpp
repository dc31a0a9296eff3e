#include "ui/search/Suchliste.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

#include "ui/platform/Schriftfolge.h"

namespace zerna {

Suchliste::Suchliste(const Settings& settings, QWidget* parent)
    : Wertetafel(settings, parent)
{
    setAlternatingRowColors(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    folgeSchrift(this, [this] {
        verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
        setMinimumHeight(2 * verticalHeader()->defaultSectionSize());
        verteile();
    });
    connect(this, &QTableWidget::currentCellChanged, this, &Suchliste::gewaehltChanged);
    connect(this, &QTableWidget::cellDoubleClicked, this, &Suchliste::uebernehmen);
}

void Suchliste::zeige(Tabelle tabelle)
{
    const int current = currentRow();
    {
        const QSignalBlocker quiet(this);
        Wertetafel::zeige(std::move(tabelle));
        if (rowCount() > 0)
            setCurrentCell(qBound(0, current, rowCount() - 1), 0);
        verteile();
    }
    emit gewaehltChanged();
}

/// Each column has room for its whole numbers; what is left over goes to those in equal parts.
void Suchliste::verteile()
{
    resizeColumnsToContents();
    const int left = viewport()->width() - horizontalHeader()->length();
    const auto isZahl = [](const Tabelle::Spalte& spalte) { return spalte.istZahl; };
    const auto count = static_cast<int>(std::ranges::count_if(tabelle().spalten, isZahl));
    for (int column = columnCount() - 1, rest = left, open = count; column >= 0 && open > 0 && rest > 0; --column) {
        if (!isZahl(tabelle().spalten.at(static_cast<std::size_t>(column))))
            continue;
        const int share = rest / open--;
        setColumnWidth(column, columnWidth(column) + share);
        rest -= share;
    }
}

void Suchliste::resizeEvent(QResizeEvent* event)
{
    Wertetafel::resizeEvent(event);
    verteile();
}

void Suchliste::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit uebernehmen();
    else
        Wertetafel::keyPressEvent(event);
}

} // namespace zerna
