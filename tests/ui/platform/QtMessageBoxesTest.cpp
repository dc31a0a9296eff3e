#include "ui/platform/QtMessageBoxes.h"

#include <QMessageBox>

#include <array>

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

TEST(QtMessageBoxesTest, AQuestionIsAnsweredByAButtonOrCancelled)
{
    constexpr std::array<std::string_view, 2> Buttons{"&Speichern", "&Verwerfen"};
    using Answer = std::optional<std::size_t>;
    for (const auto& [key, modifiers, answer] : {std::tuple(Qt::Key_Return, Qt::NoModifier, Answer(0)),
             {Qt::Key_V, Qt::AltModifier, Answer(1)}, {Qt::Key_Escape, Qt::NoModifier, Answer()}}) {
        inDialog<QMessageBox>([key = key, modifiers = modifiers](const QMessageBox&) { press(key, modifiers); },
            [answer = answer, &Buttons] { EXPECT_EQ(QtMessageBoxes().choose("Zerna", "Wohin?", Buttons), answer); });
    }
}

} // namespace zerna
