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

TEST(QtMessageBoxesTest, TheFirstWayIsTheUsualOneAndTheLastTheWayOut)
{
    constexpr std::array<std::string_view, 3> Ways{"&Speichern", "&Verwerfen", "&Abbrechen"};
    for (const auto& [key, modifiers, way] :
        {std::tuple(Qt::Key_Return, Qt::NoModifier, 0U), {Qt::Key_V, Qt::AltModifier, 1U}, {Qt::Key_Escape, {}, 2U}}) {
        inDialog<QMessageBox>([key = key, modifiers = modifiers](const QMessageBox&) { press(key, modifiers); },
            [way = way, &Ways] { EXPECT_EQ(QtMessageBoxes().choose("Zerna", "Wohin?", Ways), way); });
    }
}

} // namespace zerna
