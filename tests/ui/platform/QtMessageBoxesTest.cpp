#include "ui/platform/QtMessageBoxes.h"

#include <QMessageBox>

#include "support/ModalDialog.h"

namespace zerna {

TEST(QtMessageBoxesTest, TextIsShownAsItIsUntilAKeyIsPressed)
{
    for (const auto& [icon, shown, key] : {std::tuple(Icon::None, QMessageBox::NoIcon, Qt::Key_Return),
             {Icon::Exclamation, QMessageBox::Warning, Qt::Key_Escape}}) {
        const auto read = [shown = shown, key = key](QMessageBox& box) {
            EXPECT_EQ(box.icon(), shown);
            EXPECT_EQ(box.windowTitle(), "Übersicht");
            EXPECT_EQ(box.text(), "Werte <b>über</b> 0\n&amp; mehr");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.buttons().size(), 1);
            press(key);
        };
        inDialog<QMessageBox>(
            read, [icon = icon] { QtMessageBoxes().show(icon, "Übersicht", "Werte <b>über</b> 0\r\n&amp; mehr"); });
    }
}

} // namespace zerna
