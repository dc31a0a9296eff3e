#include "ui/weighing/Wiegemeldung.h"

#include <QGuiApplication>
#include <QTimer>

#include <utility>

#include "core/Fehlermeldung.h"

namespace zerna {

Wiegemeldung::Wiegemeldung(MessageBoxes& boxes, QObject* parent)
    : QObject(parent)
    , m_boxes(boxes)
{
}

void Wiegemeldung::zeige()
{
    const std::optional<Laufzeitfehler> error = std::exchange(m_fehler, std::nullopt);
    if (error)
        reporting(m_boxes, "Istmasse_Change", Wiegesteuerelement, [&error] { throw Laufzeitfehler(*error); });
}

void Wiegemeldung::zeigeSpaeter()
{
    constexpr int Wait = 20; // ms
    if (!m_fehler)
        return;
    QTimer::singleShot(QGuiApplication::mouseButtons() == Qt::NoButton ? 0 : Wait, this, [this] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            zeige();
        else
            zeigeSpaeter();
    });
}

} // namespace zerna
