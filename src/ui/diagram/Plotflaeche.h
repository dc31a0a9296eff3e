#pragma once

#include <QWidget>

#include <functional>

namespace zerna {

/// The inner surface of a diagram: it has its painting done for it and tells where the mouse is.
class Plotflaeche : public QWidget {
    Q_OBJECT

public:
    using Paint = std::function<void(QPainter&)>;

    Plotflaeche(Paint paint, QWidget* parent);

signals:
    void mouseMoved(const QPointF& position);
    void mouseLeft();

protected:
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Paint m_paint;
};

} // namespace zerna
