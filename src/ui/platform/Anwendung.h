#pragma once

#include <QApplication>

#include <exception>
#include <string_view>

#include "core/MessageBoxes.h"

namespace zerna {

/// Shows an error that nobody expected, and what to do.
void showUnexpected(MessageBoxes& boxes, const std::exception& error, std::string_view remedy);

/// The window program's application: an exception that nobody caught is shown and ends its event, not the program with
/// all that is entered.
class Anwendung : public QApplication {
public:
    Anwendung(int& argc, char** argv, MessageBoxes& boxes)
        : QApplication(argc, argv)
        , m_boxes(boxes)
    {
    }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    MessageBoxes& m_boxes;
    bool m_showing = false; // what fails again while a message is open is not shown on top of it
};

} // namespace zerna
