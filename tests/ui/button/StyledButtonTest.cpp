#include "ui/button/StyledButton.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace zerna;

QPalette paletteWith(const char* window, const char* button, const char* text, const char* highlight)
{
    QPalette palette{QColor(button), QColor(window)};
    palette.setColor(QPalette::ButtonText, QColor(text));
    palette.setColor(QPalette::Highlight, QColor(highlight));
    return palette;
}

const QPalette light = paletteWith("#efefef", "#efefef", "#000000", "#308cc6");
const QPalette dark = paletteWith("#2b2b2b", "#353535", "#eeeeee", "#2a82da");

struct Step {
    const char* name;
    int expected; // clicks or repaints
    std::function<void()> act;
};

/// A window with two buttons, shown and active; the second one has the focus.
struct StyledButtonTest : testing::Test {
    struct Button : StyledButton {
        using StyledButton::StyledButton;
        int paints = 0;

        void paintEvent(QPaintEvent* event) override
        {
            ++paints;
            StyledButton::paintEvent(event);
        }
    };

    StyledButtonTest()
    {
        layout.addWidget(&button);
        layout.addWidget(&other);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
        moveMouseTo({1, 1});
        QObject::connect(&button, &QAbstractButton::clicked, [this] { ++clicks; });
    }
    ~StyledButtonTest() override { StyledButton::setApplicationTheme({}); }

    void moveMouseTo(const QPoint& place) const { QTest::mouseMove(window.windowHandle(), place); }

    QWidget window;
    QVBoxLayout layout{&window};
    Button button{"&Berechnen"};
    Button other{"Schließen"};
    int clicks = 0;
};

TEST_F(StyledButtonTest, IsClickedByMouseAndKeysUnlessDisabled)
{
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    const Step steps[]{
        {"mouse", 1, [&] { QTest::mouseClick(&button, Qt::LeftButton); }},
        {"Return", 1, [&] { QTest::keyClick(&button, Qt::Key_Return); }},
        {"Return held down", 0, [&] { QApplication::sendEvent(&button, &repeated); }},
        {"Enter", 1, [&] { QTest::keyClick(&button, Qt::Key_Enter, Qt::KeypadModifier); }},
        {"mnemonic", 1, [&] { QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier); }},
    };
    for (const bool enabled : {true, false}) {
        button.setEnabled(enabled);
        for (const Step& step : steps) {
            clicks = 0;
            step.act();
            // A mnemonic shows the button pressed for a moment before it clicks.
            EXPECT_TRUE(QTest::qWaitFor([&] { return clicks == (enabled ? step.expected : 0); }, 1000))
                << step.name << (enabled ? "" : ", disabled");
        }
        EXPECT_EQ(repeated.isAccepted(), enabled) << "kept from the window";
    }
}

TEST_F(StyledButtonTest, RepaintsOnceWhenItsLookChangesAndNotOtherwise)
{
    const QIcon icon(QPixmap(16, 16));
    const ButtonTheme theme = themeFromPalette(dark);
    const QPoint inside = button.geometry().center();
    button.setCheckable(true);
    button.setPicture(ButtonState::Hover, icon);
    QTest::qWait(50);
    const Step steps[]{
        {"enter", 1, [&] { moveMouseTo(inside); }},
        {"leave", 1, [&] { moveMouseTo(QPoint(1, 1)); }},
        {"focus", 1, [&] { button.setFocus(); }},
        {"same caption", 0, [&] { button.setText("&Berechnen"); }},
        {"same picture", 0, [&] { button.setPicture(ButtonState::Hover, icon); }},
        {"checked", 1, [&] { button.setChecked(true); }},
        {"theme", 1, [&] { StyledButton::setApplicationTheme(theme); }},
        {"equal theme", 0, [&] { StyledButton::setApplicationTheme(theme); }},
        {"disabled", 1, [&] { button.setEnabled(false); }},
        {"enter while disabled", 0, [&] { moveMouseTo(inside); }},
    };
    for (const Step& step : steps) {
        button.paints = 0;
        step.act();
        (void)QTest::qWaitFor([&] { return button.paints >= step.expected; }); // on a busy machine
        QTest::qWait(30);
        EXPECT_EQ(button.paints, step.expected) << step.name;
    }
}

TEST_F(StyledButtonTest, ThemeOfTheApplicationReachesAllButtonsAndElseThePaletteDecides)
{
    ButtonTheme theme = themeFromPalette(light);
    theme.normal.frame = Qt::red;
    StyledButton::setApplicationTheme(theme);
    EXPECT_TRUE(button.theme() == theme && StyledButton().theme() == theme);

    const QPalette before = QApplication::palette();
    StyledButton::setApplicationTheme({});
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    EXPECT_TRUE(button.theme() == themeFromPalette(dark)) << "palette of the application";
    window.setPalette(light);
    EXPECT_TRUE(button.theme() == themeFromPalette(light)) << "palette of the window";
    QApplication::setPalette(before);
}

TEST(StyledButtonTexts, ToolTipIsEscapedAndScreenReadersGetPlainTexts)
{
    StyledButton button("&Speichern && Beenden");
    button.setToolTipText("Werte < 0 & > 9\nsind rot", "<Titel>");
    EXPECT_TRUE(button.toolTip().contains("<b>&lt;Titel&gt;</b>"));
    EXPECT_TRUE(button.toolTip().contains("Werte &lt; 0 &amp; &gt; 9<br>sind rot"));
    EXPECT_EQ(button.accessibleDescription(), "<Titel>\nWerte < 0 & > 9\nsind rot");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), "Speichern & Beenden");
    button.setToolTipText({});
    EXPECT_TRUE(button.toolTip().isEmpty()) << "no empty box";
}

} // namespace
