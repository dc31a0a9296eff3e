#include "ui/comparison/Vergleichsansicht.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>

#include "ui/comparison/Vergleichsmodell.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Schriftfolge.h"

namespace zerna {

namespace {

constexpr QChar Abstand = u'\u2007'; // keeps texts off the line at their right, at the end of any line

/// The alloys' names, which end where their numbers do.
class Legierungsnamen : public QHeaderView {
public:
    using QHeaderView::QHeaderView;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int column) const override
    {
        QHeaderView::initStyleOptionForIndex(option, column);
        option->text.replace(QLatin1Char('\n'), Abstand + QStringLiteral("\n")).append(Abstand);
    }
};

/// Tints the reference and sets what was entered off against what was computed.
class Vergleichszelle : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const bool isResult = index.data(Vergleichsmodell::ErgebnisRolle).toBool();
        QColor ground = option->palette.color(QPalette::Base);
        if (!isResult) // mixed here: not every theme's alternate ground goes with its texts
            ground = gemischt(ground, option->palette.color(QPalette::Text), EntryTint);
        if (index.data(Vergleichsmodell::ReferenzRolle).toBool())
            ground = gemischt(ground, option->palette.color(QPalette::Active, QPalette::Highlight), ReferenceTint);
        option->backgroundBrush = ground;
        option->text += Abstand;
    }

private:
    static constexpr double EntryTint = 0.05;
    static constexpr double ReferenceTint = 0.16;
};

} // namespace

Vergleichsansicht::Vergleichsansicht(Vergleichsmodell& modell, QWidget* parent)
    : QTableView(parent)
    , m_modell(modell)
{
    setModel(&modell);
    setItemDelegate(new Vergleichszelle(this));
    setAccessibleName(QStringLiteral("Gemerkte Legierungen"));
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false); // the key leaves the table
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this,
        [this](const QPoint& position) { emit menuRequested(viewport()->mapToGlobal(position)); });
    connect(this, &QTableView::doubleClicked, this, &Vergleichsansicht::doppelklick);
    createHeaders();
}

void Vergleichsansicht::createHeaders()
{
    auto* const alloys = new Legierungsnamen(Qt::Horizontal, this);
    setHorizontalHeader(alloys);
    alloys->setSectionsMovable(true);
    alloys->setSectionsClickable(true);
    alloys->setHighlightSections(false);
    alloys->setTextElideMode(Qt::ElideRight);
    alloys->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(alloys, &QHeaderView::sectionPressed, this, [this](int column) { waehle(column); });
    connect(alloys, &QHeaderView::sectionDoubleClicked, this, [this](int column) {
        waehle(column);
        emit doppelklick();
    });
    connect(alloys, &QHeaderView::sectionMoved, this, &Vergleichsansicht::moved, Qt::QueuedConnection);
    connect(alloys, &QWidget::customContextMenuRequested, this, [this, alloys](const QPoint& position) {
        if (const int column = alloys->logicalIndexAt(position); column >= 0) {
            waehle(column);
            emit menuRequested(alloys->viewport()->mapToGlobal(position));
        }
    });
    QHeaderView* const lines = verticalHeader();
    lines->setSectionsClickable(false);
    lines->setHighlightSections(false);
    lines->setSectionResizeMode(QHeaderView::Fixed);
    folgeSchrift(this, [this, lines] {
        constexpr int Spacing = 8;
        lines->setDefaultSectionSize(fontMetrics().height() + Spacing);
        passeBreitenAn();
    });
}

void Vergleichsansicht::passeBreitenAn()
{
    constexpr int Margin = 5; // of the toolkit, on each side
    QFont bold = font();
    bold.setBold(true);
    const auto width = [](const QString& text, const QFont& font) {
        return QFontMetrics(font).horizontalAdvance(text + Abstand) + 2 * Margin;
    };
    const int number = width(QStringLiteral("−8,8888·10⁻⁸⁸"), font());
    for (int column = 0; column < m_modell.columnCount(); ++column) {
        const int name = width(toQt(m_modell.tabelle().name(static_cast<std::size_t>(column))), bold);
        setColumnWidth(column, std::clamp(name, number, 2 * number));
    }
}

void Vergleichsansicht::waehle(int legierung)
{
    const int row = std::clamp(m_zeile, 0, std::max(m_modell.rowCount() - 1, 0));
    setCurrentIndex(m_modell.index(row, legierung));
}

/// The header has moved what it shows; the alloys themselves are moved instead.
void Vergleichsansicht::moved(int logical, int from, int to)
{
    const QSignalBlocker blocker(horizontalHeader());
    if (horizontalHeader()->visualIndex(logical) == to)
        horizontalHeader()->moveSection(to, from);
    emit verschoben(from, to);
}

void Vergleichsansicht::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    if (hasFocus())
        QTableView::currentChanged(current, previous);
    else // which would tell screen readers that the cell has the focus
        QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
    if (current.isValid())
        m_zeile = current.row();
    emit legierungGewaehlt();
}

QString Vergleichsansicht::auswahl(Dezimaltrenner trenner) const
{
    const QItemSelection selected = selectionModel()->selection();
    if (selected.isEmpty())
        return {};
    const QItemSelectionRange& cells = selected.first(); // there is but one
    if (cells.width() == m_modell.columnCount() && cells.height() == m_modell.rowCount())
        return {};
    QString text;
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column)
            text += (column == cells.left() ? QString() : QStringLiteral("\t"))
                + toQt(m_modell.tabelle().zahl(
                    static_cast<std::size_t>(row), static_cast<std::size_t>(column), m_modell.art(), trenner));
        text += row == cells.bottom() ? QString() : QStringLiteral("\r\n");
    }
    return text;
}

} // namespace zerna
