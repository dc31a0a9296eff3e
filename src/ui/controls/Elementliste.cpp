#include "ui/controls/Elementliste.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace zerna {

namespace {

constexpr int NameRole = Qt::UserRole + 1; // item data beside the list's own
constexpr int Margin = 6;

QString symbolOf(const QModelIndex& index) { return index.data().toString(); }
QString nameOf(const QModelIndex& index) { return index.data(NameRole).toString(); }

int symbolWidth(const QFontMetrics& metrics) { return metrics.horizontalAdvance(QStringLiteral("Mm")) + 2 * Margin; }

/// Draws symbol and name in columns.
class Namensspalte : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem background = option;
        initStyleOption(&background, index);
        background.text.clear();
        option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &background, painter, option.widget);
        const bool isSelected = (option.state & QStyle::State_Selected) != 0;
        painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        const QRect area = option.rect.adjusted(Margin, 0, 0, 0);
        painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter, symbolOf(index));
        painter->drawText(
            area.adjusted(symbolWidth(option.fontMetrics), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, nameOf(index));
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int Spacing = 6;
        const QFontMetrics& metrics = option.fontMetrics;
        return {
            symbolWidth(metrics) + metrics.horizontalAdvance(nameOf(index)) + 3 * Margin, metrics.height() + Spacing};
    }
};

/// The open list, which also answers to letters typed while it is closed.
class Symbolansicht : public QListView {
public:
    using QListView::QListView;

    void keyboardSearch(const QString& search) override
    {
        constexpr int Pause = 1000; // milliseconds that begin a new symbol
        if (search.isEmpty() || !m_lastKey.isValid() || m_lastKey.hasExpired(Pause))
            m_typed.clear();
        m_lastKey.start();
        m_typed += search;
        if (const int row = find(); row >= 0)
            setCurrentIndex(model()->index(row, 0));
    }

private:
    int find() const
    {
        using Matches = bool (*)(const QModelIndex&, const QString&);
        constexpr Matches InThisOrder[] = {
            [](const auto& index, const auto& typed) {
                return symbolOf(index).compare(typed, Qt::CaseInsensitive) == 0;
            },
            [](const auto& index, const auto& typed) { return symbolOf(index).startsWith(typed, Qt::CaseInsensitive); },
            [](const auto& index, const auto& typed) { return nameOf(index).startsWith(typed, Qt::CaseInsensitive); },
        };
        for (const Matches matches : InThisOrder) {
            for (int row = 0; row < model()->rowCount(); ++row) {
                if (!m_typed.isEmpty() && matches(model()->index(row, 0), m_typed))
                    return row;
            }
        }
        return -1;
    }

    QString m_typed;
    QElapsedTimer m_lastKey;
};

} // namespace

Elementliste::Elementliste(QWidget* parent)
    : Festliste(parent)
{
}

QAbstractItemView* Elementliste::view()
{
    if (!m_hasView) {
        m_hasView = true;
        setView(new Symbolansicht(this));
        setItemDelegate(new Namensspalte(this));
    }
    return Festliste::view();
}

void Elementliste::setName(int position, const QString& name)
{
    setItemData(position, name, NameRole);
    setItemData(position, itemText(position) + QLatin1Char(' ') + name, Qt::AccessibleTextRole);
}

void Elementliste::keyPressEvent(QKeyEvent* event)
{
    view(); // finds what is typed
    m_isTyping = !event->text().trimmed().isEmpty();
    Festliste::keyPressEvent(event);
    m_isTyping = false;
}

void Elementliste::showPopup()
{
    const int scrollBar = view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + scrollBar);
    Festliste::showPopup();
}

} // namespace zerna
