#include "ui/controls/Auskunftsliste.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <optional>

#include "core/Zahlentext.h"
#include "ui/platform/Anzeige.h"
#include "ui/platform/Farben.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

const QString& separator()
{
    static const QString text = QStringLiteral(": ");
    return text;
}

QString captionOf(const QString& line) { return line.section(separator(), 0, 0); }

QString valueOf(const QString& line) { return line.section(separator(), 1).trimmed(); }

/// The number that a value begins with; empty if it does not.
QString numberOf(const QString& value)
{
    const QString first = value.section(QLatin1Char(' '), 0, 0);
    return zerna::numberIn(fromQt(first)) ? first : QString();
}

/// Draws caption and value in columns; the captions' column is as wide as the widest of them.
class SpaltenDelegate : public QStyledItemDelegate {
public:
    explicit SpaltenDelegate(QListWidget* list)
        : QStyledItemDelegate(list)
    {
        const auto forget = [this] { m_captionWidth.reset(); };
        connect(list->model(), &QAbstractItemModel::modelReset, this, forget);
        connect(list->model(), &QAbstractItemModel::rowsInserted, this, forget);
        connect(list->model(), &QAbstractItemModel::dataChanged, this, forget);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int Margin = 6;
        QStyleOptionViewItem background = option;
        initStyleOption(&background, index);
        const QString line = background.text;
        background.text.clear();
        const QWidget* const widget = option.widget;
        widget->style()->drawControl(QStyle::CE_ItemViewItem, &background, painter, widget);
        const bool isSelected = (option.state & QStyle::State_Selected) != 0;
        const QPalette& colours = option.palette;
        painter->setPen(isSelected
                ? lesbar(colours.color(QPalette::HighlightedText), colours.color(QPalette::Highlight))
                : colours.color(QPalette::Text));
        const int column = captionWidth(*index.model(), option.font);
        const QRect area = option.rect.adjusted(Margin, 0, -Margin, 0);
        painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter, captionOf(line));
        const QRect valueArea = area.adjusted(column + 2 * Margin, 0, 0, 0);
        painter->drawText(valueArea, Qt::AlignLeft | Qt::AlignVCenter,
            option.fontMetrics.elidedText(gezeigt(valueOf(line)), Qt::ElideRight, valueArea.width()));
    }

    /// The text is cut rather than scrolled.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        constexpr int Spacing = 8;
        return {0, option.fontMetrics.height() + Spacing};
    }

private:
    /// Measured once for all lines, as long as they and the font stay.
    int captionWidth(const QAbstractItemModel& model, const QFont& font) const
    {
        if (!m_captionWidth || m_font != font) {
            m_font = font;
            m_captionWidth = 0;
            const QFontMetrics metrics(font);
            for (int row = 0; row < model.rowCount(); ++row) {
                const QString caption = captionOf(model.index(row, 0).data().toString());
                m_captionWidth = std::max(*m_captionWidth, metrics.horizontalAdvance(caption));
            }
        }
        return *m_captionWidth;
    }

    mutable std::optional<int> m_captionWidth;
    mutable QFont m_font;
};

} // namespace

Auskunftsliste::Auskunftsliste(QWidget* parent)
    : QListWidget(parent)
{
    setItemDelegate(new SpaltenDelegate(this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void Auskunftsliste::setLines(std::span<const std::string> lines, std::span<const std::string> details)
{
    const int row = currentRow();
    clear();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        addItem(toQt(lines[i]));
        item(count() - 1)->setToolTip(toQt(i < details.size() ? lines[i] + '\n' + details[i] : lines[i]));
    }
    setCurrentRow(row);
}

void Auskunftsliste::copyValue() const
{
    if (currentItem() != nullptr)
        copyToClipboard(valueOf(currentItem()->text()));
}

void Auskunftsliste::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    const auto offer = [&menu](const QString& caption, const QString& copied) {
        QAction* const action =
            menu.addAction(caption + QLatin1Char('\t') + copied, &menu, [copied] { copyToClipboard(copied); });
        action->setEnabled(!copied.isEmpty());
    };
    const QString value = currentItem() != nullptr ? valueOf(currentItem()->text()) : QString();
    offer(QStringLiteral("&Kopieren"), value);
    if (const QString number = numberOf(value); !number.isEmpty() && number != value)
        offer(QStringLiteral("&Zahl kopieren"), number);
    menu.exec(event->globalPos());
}

void Auskunftsliste::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copyValue();
    else
        QListWidget::keyPressEvent(event);
}

} // namespace zerna
