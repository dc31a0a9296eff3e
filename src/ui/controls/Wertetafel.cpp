#include "ui/controls/Wertetafel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <utility>

#include "ui/controls/Tabellenknopf.h"
#include "ui/platform/Anzeige.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

constexpr QChar Abstand = u'\u2007'; // keeps numbers off the line at their right

QString shown(const Tabelle::Spalte& spalte, const std::string& text)
{
    QString result = toQt(text);
    if (spalte.istZahl)
        result.replace(QLatin1Char('.'), QLatin1Char(','));
    return spalte.istZahl ? gezeigt(result) + Abstand : result;
}

} // namespace

Wertetafel::Wertetafel(const Settings& settings, QWidget* parent)
    : QTableWidget(parent)
    , m_settings(settings)
{
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
}

void Wertetafel::zeige(Tabelle tabelle)
{
    m_tabelle = std::move(tabelle);
    setColumnCount(static_cast<int>(m_tabelle.spalten.size()));
    setRowCount(static_cast<int>(m_tabelle.zeilen.size()));
    for (int column = 0; column < columnCount(); ++column)
        fillColumn(column);
}

void Wertetafel::fillColumn(int column)
{
    const auto index = static_cast<std::size_t>(column);
    const Tabelle::Spalte& spalte = m_tabelle.spalten[index];
    const auto made = [&spalte](const QString& text) {
        auto* const item = new QTableWidgetItem(text);
        item->setTextAlignment(Qt::AlignVCenter | (spalte.istZahl ? Qt::AlignRight : Qt::AlignLeft));
        return item;
    };
    setHorizontalHeaderItem(column, made(toQt(spalte.name) + (spalte.istZahl ? QString(Abstand) : QString())));
    for (int row = 0; row < rowCount(); ++row)
        setItem(row, column, made(shown(spalte, m_tabelle.zeilen[static_cast<std::size_t>(row)][index])));
}

void Wertetafel::copy(Tabelle table) const
{
    const auto trenner = static_cast<char>(tabellentrenner(m_settings));
    for (std::size_t column = 0; column < table.spalten.size(); ++column) {
        for (auto& line : table.zeilen) {
            if (table.spalten[column].istZahl)
                std::ranges::replace_if(
                    line[column], [](char c) { return c == ',' || c == '.'; }, trenner);
        }
    }
    copyToClipboard(toQt(alsText(mitKopf(table))));
}

void Wertetafel::kopiere() const { copy(m_tabelle); }

void Wertetafel::copySelection() const
{
    if (!selectionModel()->hasSelection())
        return kopiere();
    Tabelle selected{m_tabelle.spalten, {}};
    for (const QModelIndex& index : selectionModel()->selectedRows())
        selected.zeilen.push_back(m_tabelle.zeilen.at(static_cast<std::size_t>(index.row())));
    copy(std::move(selected));
}

/// The toolkit's table tells screen readers that its current cell has the focus, also while that is in a field above.
void Wertetafel::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    if (hasFocus())
        QTableWidget::currentChanged(current, previous);
    else
        QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call): see above
}

void Wertetafel::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else
        QTableWidget::keyPressEvent(event);
}

void Wertetafel::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    menu.addAction(QStringLiteral("Auswahl kopieren"), this, &Wertetafel::copySelection)
        ->setEnabled(selectionModel()->hasSelection());
    menu.addAction(QStringLiteral("Tabelle kopieren"), this, &Wertetafel::kopiere);
    menu.exec(event->globalPos());
}

} // namespace zerna
