#include "ui/main/Suchliste.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "ui/platform/Anzeige.h"
#include "ui/platform/Schriftfolge.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

constexpr QChar Abstand = u'\u2007'; // keeps numbers off the line at their right

} // namespace

Suchliste::Suchliste(QWidget* parent)
    : QTableWidget(parent)
{
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
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
        m_tabelle = std::move(tabelle);
        setColumnCount(static_cast<int>(m_tabelle.spalten.size()));
        setRowCount(static_cast<int>(m_tabelle.zeilen.size()));
        for (int column = 0; column < columnCount(); ++column) {
            const Tabelle::Spalte& spalte = m_tabelle.spalten[static_cast<std::size_t>(column)];
            const auto alignment = Qt::AlignVCenter | (spalte.istZahl ? Qt::AlignRight : Qt::AlignLeft);
            const QString gap = spalte.istZahl ? QString(Abstand) : QString();
            auto* const head = new QTableWidgetItem(toQt(spalte.name) + gap);
            head->setTextAlignment(alignment);
            setHorizontalHeaderItem(column, head);
            for (int row = 0; row < rowCount(); ++row) {
                const std::string& text =
                    m_tabelle.zeilen[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
                auto* const cell = new QTableWidgetItem(gezeigt(toQt(text)) + gap);
                cell->setTextAlignment(alignment);
                setItem(row, column, cell);
            }
        }
        if (rowCount() > 0)
            setCurrentCell(qBound(0, current, rowCount() - 1), 0);
    }
    emit gewaehltChanged();
}

void Suchliste::kopiere() const { copyToClipboard(toQt(alsText(mitKopf(m_tabelle)))); }

void Suchliste::copySelection() const
{
    Tabelle selected{m_tabelle.spalten, {}};
    for (const QModelIndex& index : selectionModel()->selectedRows())
        selected.zeilen.push_back(m_tabelle.zeilen.at(static_cast<std::size_t>(index.row())));
    copyToClipboard(toQt(alsText(mitKopf(selected))));
}

void Suchliste::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit uebernehmen();
    else
        QTableWidget::keyPressEvent(event);
}

} // namespace zerna
