#include "ui/platform/Schriftfolge.h"

#include <QEvent>

#include <utility>

namespace zerna {

namespace {

class Schriftfolge : public QObject {
public:
    Schriftfolge(QWidget* widget, std::function<void()> adapt)
        : QObject(widget)
        , m_adapt(std::move(adapt))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
            m_adapt();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_adapt;
};

} // namespace

void folgeSchrift(QWidget* widget, std::function<void()> adapt)
{
    adapt();
    new Schriftfolge(widget, std::move(adapt)); // owned by the widget
}

} // namespace zerna
