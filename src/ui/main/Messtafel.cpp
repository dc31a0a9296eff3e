#include "ui/main/Messtafel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <utility>

#include "ui/platform/Anzeige.h"
#include "ui/platform/Schriftfolge.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

QString shown(const Tabelle::Spalte& spalte, const std::string& text)
{
    QString result = toQt(text);
    if (spalte.istZahl)
        result.replace(QLatin1Char('.'), QLatin1Char(','));
    return spalte.istZahl ? gezeigt(result) : result;
}

} // namespace

Messtafel::Messtafel(QWidget* parent)
    : QTableWidget(parent)
{
    setAccessibleName(QStringLiteral("Maxima der Messkurven"));
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
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
    m_tabelle = std::move(tabelle);
    setColumnCount(static_cast<int>(m_tabelle.spalten.size()));
    setRowCount(static_cast<int>(m_tabelle.zeilen.size()));
    for (int column = 0; column < columnCount(); ++column) {
        const Tabelle::Spalte& spalte = m_tabelle.spalten[static_cast<std::size_t>(column)];
        const auto alignment = Qt::AlignVCenter | (spalte.istZahl ? Qt::AlignRight : Qt::AlignLeft);
        const auto put = [&](const QString& text, const auto& where) {
            auto* const item = new QTableWidgetItem(text);
            item->setTextAlignment(alignment);
            where(item);
        };
        put(toQt(spalte.name), [&](QTableWidgetItem* item) { setHorizontalHeaderItem(column, item); });
        for (int row = 0; row < rowCount(); ++row)
            put(shown(spalte, m_tabelle.zeilen[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]),
                [&](QTableWidgetItem* item) { setItem(row, column, item); });
    }
    takeHeight();
}

void Messtafel::copyAll() const { copyToClipboard(toQt(alsText(mitKopf(m_tabelle)))); }

void Messtafel::copySelection() const
{
    Tabelle selected{m_tabelle.spalten, {}};
    for (const QModelIndex& index : selectionModel()->selectedRows())
        selected.zeilen.push_back(m_tabelle.zeilen.at(static_cast<std::size_t>(index.row())));
    copyToClipboard(toQt(alsText(mitKopf(selected))));
}

void Messtafel::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Copy))
        QTableWidget::keyPressEvent(event);
    else if (selectionModel()->hasSelection())
        copySelection();
    else
        copyAll();
}

void Messtafel::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    menu.addAction(QStringLiteral("Auswahl kopieren"), this, &Messtafel::copySelection)
        ->setEnabled(selectionModel()->hasSelection());
    menu.addAction(QStringLiteral("Tabelle kopieren"), this, &Messtafel::copyAll);
    menu.exec(event->globalPos());
}

} // namespace zerna
