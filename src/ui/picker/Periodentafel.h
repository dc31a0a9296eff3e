#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

#include "core/ElementCollection.h"
#include "ui/picker/Tafelfaerbung.h"

namespace zerna {

class Tafelmassstab;
struct Zellstil;

/// The drawn periodic table: a click, the arrow keys or typed letters select an element; Enter, a double click or the
/// right button asks for what to do with it. Cells are coloured by group of elements or by a property.
class Periodentafel : public QWidget {
    Q_OBJECT

public:
    explicit Periodentafel(const ElementCollection& elements, QWidget* parent = nullptr);

    /// Marks an element as selected without a signal.
    void setSelected(const std::shared_ptr<clsElement>& element);

    void setFaerbung(Tafelfaerbung faerbung);

    /// Marks the alloy's elements with the numbers of their rows; `symbols` has a symbol per row.
    void setKomponenten(std::vector<std::string> symbols);

    const ElementCollection& elemente() const { return m_elements; }
    const std::shared_ptr<clsElement>& gewaehlt() const { return m_selected; }

    /// Where the cell of an element is, and what it says: "Mg, Ordnungszahl 12, Magnesium, Hauptgruppen".
    QRectF cellOf(const clsElement& element) const;
    QString auskunft(const std::shared_ptr<clsElement>& element) const;

    /// As a click and a double click on its cell.
    void select(const std::shared_ptr<clsElement>& element);
    void askForSelected();

    /// The free area at the top of the table and the one between its two parts, in pixels.
    QRect freeArea() const;
    QRect gap() const;

signals:
    void selected(const std::shared_ptr<clsElement>& element);
    void activated(const QPoint& globalPosition);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Tafelmassstab scale() const;
    std::shared_ptr<clsElement> elementUnder(const QPointF& position) const;
    void hover(const std::shared_ptr<clsElement>& element);
    std::string komponentenOf(const clsElement& element) const;
    QString hinweis(const std::shared_ptr<clsElement>& element) const;
    void updateCell(const std::shared_ptr<clsElement>& element);
    void moveSelection(int dx, int dy);
    void typeLetter(const QString& letter);
    void paintCell(QPainter& painter, const clsElement& element, std::size_t index, const Zellstil& stil) const;

    const ElementCollection& m_elements;
    std::shared_ptr<clsElement> m_selected;
    std::shared_ptr<clsElement> m_hovered;
    Tafelfaerbung m_faerbung;
    std::vector<std::string> m_komponenten; // symbols
    bool m_namenPassen = false; // into the cells; else these show masses
    QString m_typed;
    QElapsedTimer m_sinceLetter;
};

} // namespace zerna
