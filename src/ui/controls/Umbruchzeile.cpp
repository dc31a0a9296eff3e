#include "ui/controls/Umbruchzeile.h"

#include <QWidget>

#include <algorithm>

namespace zerna {

namespace {

bool wantsMore(const QLayoutItem* item) { return item->expandingDirections().testFlag(Qt::Horizontal); }

int heightOf(const std::vector<QLayoutItem*>& row)
{
    int height = 0;
    for (const QLayoutItem* const item : row)
        height = std::max(height, item->sizeHint().height());
    return height;
}

} // namespace

Umbruchzeile::Umbruchzeile(QWidget* parent)
    : QLayout(parent)
{
}

QLayoutItem* Umbruchzeile::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* Umbruchzeile::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* const item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

int Umbruchzeile::neededWidth(const Row& row) const
{
    int width = row.empty() ? 0 : -spacing();
    for (const QLayoutItem* const item : row)
        width += item->minimumSize().width() + spacing();
    return width;
}

std::vector<Umbruchzeile::Row> Umbruchzeile::rows(int width) const
{
    const QMargins margins = contentsMargins();
    std::vector<Row> rows(1);
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        rows.back().push_back(item.get());
        Row& row = rows.back();
        if (row.size() == 1 || neededWidth(row) <= width - margins.left() - margins.right())
            continue;
        const bool goesAlong = row.size() > 2 && wantsMore(row[row.size() - 2]); // what is behind stays at the right
        const Row next(row.end() - (goesAlong ? 2 : 1), row.end());
        row.resize(row.size() - next.size());
        rows.push_back(next);
    }
    return rows;
}

int Umbruchzeile::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    int height = margins.top() + margins.bottom() - spacing();
    for (const Row& row : rows(width))
        height += heightOf(row) + spacing();
    return height;
}

QSize Umbruchzeile::sizeHint() const
{
    const std::vector<Row> single = rows(QLAYOUTSIZE_MAX);
    const QMargins margins = contentsMargins();
    return {neededWidth(single.front()) + margins.left() + margins.right(), heightForWidth(QLAYOUTSIZE_MAX)};
}

QSize Umbruchzeile::minimumSize() const
{
    const Row all = rows(QLAYOUTSIZE_MAX).front();
    int width = neededWidth(all);
    for (auto split = all.begin(); split != all.end(); ++split)
        width = std::min(width, std::max(neededWidth({all.begin(), split}), neededWidth({split, all.end()})));
    const QMargins margins = contentsMargins();
    return {width + margins.left() + margins.right(), heightForWidth(QLAYOUTSIZE_MAX)};
}

void Umbruchzeile::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    QRect place = rect.marginsRemoved(contentsMargins());
    for (const Row& row : rows(rect.width())) {
        place.setHeight(heightOf(row));
        placeRow(row, place);
        place.moveTop(place.bottom() + 1 + spacing());
    }
}

void Umbruchzeile::placeRow(const Row& row, const QRect& place) const
{
    const auto greedy = static_cast<int>(std::ranges::count_if(row, wantsMore));
    const int share = greedy > 0 ? std::max(0, place.width() - neededWidth(row)) / greedy : 0;
    int x = place.left();
    for (QLayoutItem* const item : row) {
        const int width = item->minimumSize().width() + (wantsMore(item) ? share : 0);
        const int height = std::min(item->sizeHint().height(), place.height());
        item->setGeometry({x, place.top() + (place.height() - height) / 2, width, height});
        x += width + spacing();
    }
}

} // namespace zerna
