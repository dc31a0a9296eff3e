#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include <memory>
#include <vector>

#include "core/ElementCollection.h"
#include "model/PSEReihe.h"

namespace zerna {

class Tafelmassstab;

/// The drawn periodic table: a click, the arrow keys or typed letters select an element; Enter or a double click asks
/// for what to do with it. Cells are coloured by group of elements or by a property.
class Periodentafel : public QWidget {
    Q_OBJECT

public:
    explicit Periodentafel(const ElementCollection& elements, QWidget* parent = nullptr);

    /// Marks an element as selected without a signal.
    void setSelected(const std::shared_ptr<clsElement>& element);

    /// Colours the cells by a property; values in collection order. Without values by group.
    void setReihe(PSEReihe reihe);

    /// The free area at the top of the table, in pixels.
    QRect freeArea() const;

signals:
    void selected(const std::shared_ptr<clsElement>& element);
    void activated(const QPoint& globalPosition);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Tafelmassstab scale() const;
    QRectF cellOf(const clsElement& element) const;
    std::shared_ptr<clsElement> elementUnder(const QPointF& position) const;
    void select(const std::shared_ptr<clsElement>& element);
    void hover(const std::shared_ptr<clsElement>& element);
    void updateCell(const std::shared_ptr<clsElement>& element);
    void moveSelection(int dx, int dy);
    void typeLetter(const QString& letter);
    void paintCell(QPainter& painter, const clsElement& element, std::size_t index) const;
    void paintCellTexts(QPainter& painter, const clsElement& element, const QRectF& cell, const QColor& text) const;
    void paintLegend(QPainter& painter) const;
    void paintGroupLegend(QPainter& painter, QRectF area) const;
    void paintScaleLegend(QPainter& painter, const QRectF& area) const;
    void paintSeriesHints(QPainter& painter) const;
    QColor colourOfCell(const clsElement& element, std::size_t index) const;

    const ElementCollection& m_elements;
    std::shared_ptr<clsElement> m_selected;
    std::shared_ptr<clsElement> m_hovered;
    PSEReihe m_reihe; // empty while coloured by group
    double m_smallest = 0; // range of its known values
    double m_largest = 0;
    bool m_namesFit = false; // else the cells show masses
    QString m_typed;
    QElapsedTimer m_sinceLetter;
};

} // namespace zerna
