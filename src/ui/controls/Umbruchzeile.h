#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace zerna {

/// A row of widgets that goes on in a further row where it has no room. What wants to expand gets what a row has left.
class Umbruchzeile : public QLayout {
public:
    explicit Umbruchzeile(QWidget* parent);

    void addItem(QLayoutItem* item) override { m_items.emplace_back(item); } // takes it, as layouts do
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override; ///< in one row
    QSize minimumSize() const override; ///< as narrow as two rows can be, as high as one is
    void setGeometry(const QRect& rect) override;

private:
    using Row = std::vector<QLayoutItem*>;

    std::vector<Row> rows(int width) const;
    int neededWidth(const Row& row) const;
    void placeRow(const Row& row, const QRect& place) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace zerna
