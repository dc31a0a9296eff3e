#pragma once

#include <QScrollArea>

namespace zerna {

/// A panel fills its place as long as that is large enough; else it scrolls, and what has the focus is seen. The
/// window's size does not follow from the panels in it: none is asked for the size it likes, and none is laid out
/// before it is shown.
class Rollflaeche : public QScrollArea {
public:
    explicit Rollflaeche(QWidget* panel);

    QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* m_panel;
};

} // namespace zerna
