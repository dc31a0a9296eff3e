#include "ui/platform/Anwendung.h"

#include <string>

namespace zerna {

void showUnexpected(MessageBoxes& boxes, const std::exception& error, std::string_view remedy)
{
    boxes.show(Icon::Exclamation, Programmtitel,
        std::string("Ein unerwarteter Fehler ist aufgetreten:\r\n") + error.what() + "\r\n\r\n" + std::string(remedy));
}

bool Anwendung::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        if (!m_showing) {
            m_showing = true;
            showUnexpected(m_boxes, error,
                "Was eingetragen ist, steht noch im Fenster. Bitte prüfen Sie, ob die letzte Eingabe gewirkt hat.");
            m_showing = false;
        }
        return false;
    }
}

} // namespace zerna
