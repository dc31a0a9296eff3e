#include "ui/controls/Rollflaeche.h"

#include <QApplication>

namespace zerna {

Rollflaeche::Rollflaeche(QWidget* panel)
    : m_panel(panel)
{
    panel->setParent(viewport());
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* now) {
        if (now != nullptr && m_panel->isAncestorOf(now))
            ensureWidgetVisible(now);
    });
}

/// The first one comes with the first show.
void Rollflaeche::resizeEvent(QResizeEvent* event)
{
    if (widget() == nullptr)
        setWidget(m_panel);
    QScrollArea::resizeEvent(event);
}

} // namespace zerna
