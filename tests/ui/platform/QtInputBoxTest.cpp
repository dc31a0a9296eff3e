#include "ui/platform/QtInputBox.h"

#include <QInputDialog>

#include "support/ModalDialog.h"

namespace zerna {

TEST(QtInputBoxTest, AnswerIsTheTypedTextOrNoneOnCancel)
{
    struct Row {
        const char* typed; // replaces the text that is offered
        Qt::Key key;
        std::optional<std::string> answer;
    };
    for (const Row& row : {Row{"", Qt::Key_Return, "1,5"}, {"größer 3/2 ", Qt::Key_Return, "größer 3/2 "},
             {"7", Qt::Key_Escape, std::nullopt}}) {
        SCOPED_TRACE(row.typed);
        QtInputBox box;
        const auto answer = [&row](QInputDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Schrittweite");
            EXPECT_EQ(dialog.labelText(), "in at%,\nhöchstens 10");
            typeText(QString::fromUtf8(row.typed));
            press(row.key);
        };
        inDialog<QInputDialog>(
            answer, [&] { EXPECT_EQ(box.ask("Schrittweite", "in at%,\r\nhöchstens 10", "1,5"), row.answer); });
    }
}

} // namespace zerna
