#include "ui/main/Suchliste.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <utility>

#include "ui/platform/Schriftfolge.h"

namespace zerna {

Suchliste::Suchliste(QWidget* parent)
    : Wertetafel(parent)
{
    setAlternatingRowColors(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    folgeSchrift(this, [this] {
        verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
        setMinimumHeight(5 * (fontMetrics().height() + 6));
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
    }
    emit gewaehltChanged();
}

void Suchliste::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit uebernehmen();
    else
        Wertetafel::keyPressEvent(event);
}

} // namespace zerna
