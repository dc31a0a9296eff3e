#include "ui/pages/Messtafel.h"

#include <QHeaderView>

#include <utility>

#include "ui/platform/Schriftfolge.h"

namespace zerna {

Messtafel::Messtafel(const Settings& settings, QWidget* parent)
    : Wertetafel(settings, parent)
{
    setAccessibleName(QStringLiteral("Maxima der Messkurven"));
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    folgeSchrift(this, [this] {
        verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
        takeHeight();
    });
}

/// As high as its lines, up to five.
void Messtafel::takeHeight()
{
    const int lines = qMin(5, rowCount());
    setFixedHeight(
        horizontalHeader()->sizeHint().height() + lines * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
}

void Messtafel::zeige(Tabelle tabelle)
{
    Wertetafel::zeige(std::move(tabelle));
    takeHeight();
}

} // namespace zerna
