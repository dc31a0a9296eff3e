#pragma once

#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace zerna {

/// The rows of a tree with one column, as high as their wrapped texts are; the toolkit gives each a single line.
class Titelumbruch : public QStyledItemDelegate {
public:
    explicit Titelumbruch(QTreeView& tree)
        : QStyledItemDelegate(&tree)
        , m_tree(tree)
    {
        tree.setWordWrap(true);
        connect(tree.header(), &QHeaderView::sectionResized, &tree, &QTreeView::doItemsLayout, Qt::QueuedConnection);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        int width = m_tree.width() - 2 * m_tree.frameWidth() - m_tree.verticalScrollBar()->sizeHint().width();
        for (QModelIndex level = index; level.isValid(); level = level.parent())
            width -= m_tree.indentation();
        QStyleOptionViewItem row = option;
        row.rect = {0, 0, width, 1};
        return QStyledItemDelegate::sizeHint(row, index);
    }

private:
    const QTreeView& m_tree;
};

} // namespace zerna
