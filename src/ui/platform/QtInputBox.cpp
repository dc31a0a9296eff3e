#include "ui/platform/QtInputBox.h"

#include <QApplication>
#include <QInputDialog>

#include "ui/platform/QtText.h"

namespace zerna {

std::optional<std::string> QtInputBox::ask(std::string_view title, std::string_view prompt, std::string_view standard)
{
    bool entered = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), toQt(title),
        toQt(prompt).remove(QLatin1Char('\r')), QLineEdit::Normal, toQt(standard), &entered);
    return entered ? std::optional(fromQt(text)) : std::nullopt;
}

} // namespace zerna
