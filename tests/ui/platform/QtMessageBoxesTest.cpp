#include "ui/platform/QtMessageBoxes.h"

#include <QMessageBox>

#include "support/ModalDialog.h"

namespace zerna {

TEST(QtMessageBoxesTest, TextIsShownAsItIsUntilAKeyIsPressed)
{
    struct Row {
        const char* name;
        Icon icon;
        QMessageBox::Icon shown;
        Qt::Key key;
    };
    const Row rows[]{
        {"hint, Return", Icon::None, QMessageBox::NoIcon, Qt::Key_Return},
        {"warning, Escape", Icon::Exclamation, QMessageBox::Warning, Qt::Key_Escape},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QtMessageBoxes boxes;
        const auto read = [&row](QMessageBox& box) {
            EXPECT_EQ(box.icon(), row.shown);
            EXPECT_EQ(box.windowTitle(), "Übersicht");
            EXPECT_EQ(box.text(), "Werte <b>über</b> 0\n&amp; mehr");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.buttons().size(), 1);
            press(row.key);
        };
        inDialog<QMessageBox>(read, [&] { boxes.show(row.icon, "Übersicht", "Werte <b>über</b> 0\r\n&amp; mehr"); });
    }
}

} // namespace zerna
