#include "ui/platform/QtInputBox.h"

#include <QInputDialog>
#include <QLineEdit>

#include "support/ModalDialog.h"

namespace zerna {

TEST(QtInputBoxTest, AnswerIsTheTypedTextOrNoneOnCancel)
{
    struct Row {
        const char* name;
        const char* typed; // replaces the text that is offered
        Qt::Key key;
        std::optional<std::string> answer;
    };
    const Row rows[]{
        {"offered text", "", Qt::Key_Return, "1,5"},
        {"typed text", "größer 3/2 ", Qt::Key_Return, "größer 3/2 "},
        {"no text", "\b", Qt::Key_Return, ""},
        {"cancel", "7", Qt::Key_Escape, std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QtInputBox box;
        const auto answer = [&row](QInputDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Schrittweite");
            EXPECT_EQ(dialog.labelText(), "in at%,\nhöchstens 10");
            if (*row.typed == '\b')
                press(Qt::Key_Backspace);
            else
                typeText(QString::fromUtf8(row.typed));
            press(row.key);
        };
        inDialog<QInputDialog>(
            answer, [&] { EXPECT_EQ(box.ask("Schrittweite", "in at%,\r\nhöchstens 10", "1,5"), row.answer); });
    }
}

} // namespace zerna
