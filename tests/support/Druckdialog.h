#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>

#include <string>

#include "support/ModalDialog.h"

namespace zerna {

/// Prints to a file with the keys that a user has.
template <std::invocable Open>
void printTo(const std::string& file, const char* title, const Open& open)
{
    const auto print = [&](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), title);
        dialog.findChild<QComboBox*>(QStringLiteral("printers"))->setFocus();
        press(Qt::Key_End); // the file stands below the printers
        auto* const output = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
        ASSERT_TRUE(output->isEnabled());
        output->setFocus();
        output->selectAll();
        typeText(QString::fromStdString(file));
        press(Qt::Key_Return);
    };
    inDialog<QPrintDialog>(print, open);
}

} // namespace zerna
