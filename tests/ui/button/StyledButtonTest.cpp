#include "ui/button/StyledButton.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <utility>

namespace {

using namespace zerna;

QPalette paletteWith(const char* window, const char* button, const char* text, const char* highlight)
{
    QPalette palette{QColor(button), QColor(window)};
    palette.setColor(QPalette::ButtonText, QColor(text));
    palette.setColor(QPalette::Highlight, QColor(highlight));
    return palette;
}

QPalette lightPalette() { return paletteWith("#efefef", "#efefef", "#000000", "#308cc6"); }
QPalette darkPalette() { return paletteWith("#2b2b2b", "#353535", "#eeeeee", "#2a82da"); }

QImage rendered(StyledButton& button, qreal ratio)
{
    QImage image((QSizeF(button.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    button.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

struct Step {
    const char* name;
    int expected; // clicks or repaints
    std::function<void()> act;
};

/// A window with two buttons, shown and active; the second one has the focus.
class StyledButtonTest : public testing::Test {
protected:
    class Button : public StyledButton {
    public:
        using StyledButton::StyledButton;
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent* event) override
        {
            ++paints;
            StyledButton::paintEvent(event);
        }
    };

    void SetUp() override
    {
        m_layout.addWidget(&m_button);
        m_layout.addWidget(&m_other);
        m_window.show();
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_other.setFocus();
        moveMouseTo({1, 1});
        QObject::connect(&m_button, &QAbstractButton::clicked, [this] { ++m_clicks; });
    }
    void TearDown() override { StyledButton::setApplicationTheme({}); }

    void moveMouseTo(const QPoint& place) { QTest::mouseMove(m_window.windowHandle(), place); }

    QWidget m_window;
    QVBoxLayout m_layout{&m_window};
    Button m_button{"&Berechnen"};
    Button m_other{"Schließen"};
    int m_clicks = 0;
};

TEST_F(StyledButtonTest, IsClickedByMouseAndKeysUnlessDisabled)
{
    m_button.setCheckable(true);
    const std::array steps{
        Step{"mouse", 1, [&] { QTest::mouseClick(&m_button, Qt::LeftButton); }},
        Step{"Space", 1, [&] { QTest::keyClick(&m_button, Qt::Key_Space); }},
        Step{"Return", 1, [&] { QTest::keyClick(&m_button, Qt::Key_Return); }},
        Step{"Enter", 1, [&] { QTest::keyClick(&m_button, Qt::Key_Enter, Qt::KeypadModifier); }},
        Step{"mnemonic", 1, [&] { QTest::keyClick(&m_window, Qt::Key_B, Qt::AltModifier); }},
    };
    for (const bool enabled : {true, false}) {
        m_button.setEnabled(enabled);
        for (const Step& step : steps) {
            SCOPED_TRACE(testing::Message() << step.name << (enabled ? "" : ", disabled"));
            const bool before = m_button.isChecked();
            m_clicks = 0;
            step.act();
            QTest::qWait(150); // a mnemonic shows the button pressed for a moment before it clicks
            EXPECT_EQ(m_clicks, enabled ? step.expected : 0);
            EXPECT_EQ(m_button.isChecked() != before, m_clicks == 1);
        }
    }
}

TEST_F(StyledButtonTest, EnterHeldDownClicksOnceAndIsKeptFromTheWindow)
{
    for (const bool repeated : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", repeated);
        QApplication::sendEvent(&m_button, &press);
        EXPECT_TRUE(press.isAccepted());
    }
    EXPECT_EQ(m_clicks, 1);
}

TEST_F(StyledButtonTest, RepaintsOnceWhenItsLookChangesAndNotOtherwise)
{
    const QIcon icon(QPixmap(16, 16));
    const ButtonTheme theme = themeFromPalette(darkPalette());
    const QPoint inside = m_button.geometry().center();
    m_button.setCheckable(true);
    m_button.setPicture(ButtonState::Hover, icon);
    QTest::qWait(50);
    const std::array steps{
        Step{"enter", 1, [&] { moveMouseTo(inside); }},
        Step{"move inside", 0, [&] { moveMouseTo(inside + QPoint(3, 3)); }},
        Step{"leave", 1,
            [&] {
                moveMouseTo({1, 1});
            }},
        Step{"focus", 1, [&] { m_button.setFocus(); }},
        Step{"same caption", 0, [&] { m_button.setText("&Berechnen"); }},
        Step{"same picture", 0, [&] { m_button.setPicture(ButtonState::Hover, icon); }},
        Step{"checked", 1, [&] { m_button.setChecked(true); }},
        Step{"checked again", 0, [&] { m_button.setChecked(true); }},
        Step{"effect", 1, [&] { m_button.setCaptionEffect(StyledButton::CaptionEffect::Raised); }},
        Step{"same effect", 0, [&] { m_button.setCaptionEffect(StyledButton::CaptionEffect::Raised); }},
        Step{"theme", 1, [&] { StyledButton::setApplicationTheme(theme); }},
        Step{"equal theme", 0, [&] { StyledButton::setApplicationTheme(theme); }},
        Step{"disabled", 1, [&] { m_button.setEnabled(false); }},
        Step{"enter while disabled", 0, [&] { moveMouseTo(inside); }},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.name);
        m_button.paints = 0;
        step.act();
        QTest::qWait(30);
        EXPECT_EQ(m_button.paints, step.expected);
    }
}

TEST_F(StyledButtonTest, OnlyTheFocusedButtonShowsTheRing)
{
    const QColor focus = m_button.theme().focus;
    EXPECT_EQ(rendered(m_other, 1).pixelColor(m_other.width() / 2, 2), focus) << "below frame and gap";
    EXPECT_NE(rendered(m_button, 1).pixelColor(m_button.width() / 2, 2), focus);
}

TEST_F(StyledButtonTest, ThemeOfTheApplicationReachesAllButtonsAndElseThePaletteDecides)
{
    ButtonTheme theme = themeFromPalette(lightPalette());
    theme.normal.frame = Qt::red;
    StyledButton::setApplicationTheme(theme);
    const StyledButton later;
    EXPECT_TRUE(m_button.theme() == theme);
    EXPECT_TRUE(later.theme() == theme);

    const QPalette before = QApplication::palette();
    StyledButton::setApplicationTheme({});
    QApplication::setPalette(darkPalette());
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_button.theme() == themeFromPalette(darkPalette())) << "palette of the application";
    m_window.setPalette(lightPalette());
    EXPECT_TRUE(m_button.theme() == themeFromPalette(lightPalette())) << "palette of the window";
    QApplication::setPalette(before);
}

TEST(ButtonTheme, EveryStateIsLegibleInLightDarkAndAwkwardPalettes)
{
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21.0, 0.01);
    EXPECT_NEAR(contrastRatio(QColor("#777777"), Qt::white), 4.48, 0.01);
    EXPECT_NEAR(contrastRatio(Qt::blue, Qt::white), 8.59, 0.01);
    const std::array<std::pair<const char*, QPalette>, 6> rows{{
        {"light", lightPalette()},
        {"dark", darkPalette()},
        {"high contrast", paletteWith("#000000", "#000000", "#ffff00", "#00ff00")},
        {"grey on grey", paletteWith("#707070", "#757575", "#7a7a7a", "#777777")},
        {"yellow accent", paletteWith("#202020", "#303030", "#ffffff", "#ffff00")},
        {"white accent on white", paletteWith("#ffffff", "#ffffff", "#202020", "#ffffff")},
    }};
    for (const auto& [name, palette] : rows) {
        const ButtonTheme theme = themeFromPalette(palette);
        for (unsigned bits = 0; bits < 16; ++bits) {
            SCOPED_TRACE(testing::Message() << name << ", condition " << bits);
            const bool enabled = (bits & 8U) == 0;
            const ButtonLook look = lookOf(theme, {enabled, (bits & 4U) != 0, (bits & 2U) != 0, (bits & 1U) != 0});
            for (const QColor& background : {look.backgroundStart, look.backgroundEnd}) {
                EXPECT_GE(contrastRatio(look.text, background), enabled ? 4.5 : 3.0);
                EXPECT_GE(contrastRatio(theme.focus, background), enabled ? 3.0 : 1.0);
            }
        }
    }
}

TEST(StyledButtonPicture, FollowsTheStateAndFallsBackToTheNormalOne)
{
    StyledButton button;
    button.resize(40, 30);
    const auto setPicture = [&button](ButtonState state, const QColor& colour) {
        QPixmap pixmap(16, 16);
        pixmap.fill(colour);
        button.setPicture(state, pixmap);
    };
    const auto shown = [&button] { return rendered(button, 1).pixelColor(20, 15); };

    setPicture(ButtonState::Normal, Qt::red);
    setPicture(ButtonState::Hover, Qt::blue);
    EXPECT_EQ(shown(), QColor(Qt::red));
    button.setAttribute(Qt::WA_UnderMouse);
    EXPECT_EQ(shown(), QColor(Qt::blue));
    button.setDown(true);
    EXPECT_EQ(shown(), QColor(Qt::red)) << "none for pressed";
    setPicture(ButtonState::Pressed, Qt::green);
    EXPECT_EQ(shown(), QColor(Qt::green));
    button.setEnabled(false);
    EXPECT_LT(shown().hsvSaturation(), 60) << "normal one in grey";
    setPicture(ButtonState::Disabled, Qt::yellow);
    EXPECT_EQ(shown(), QColor(Qt::yellow));
}

TEST(StyledButtonFrame, StraightEdgesAreFullyFrameColouredAtEveryRatio)
{
    // the lines in device pixels
    for (const auto& [ratio, lines] : {std::pair{1.0, 1}, {1.5, 2}, {2.0, 2}, {3.0, 3}}) {
        for (const int width : {100, 101}) { // 101 · 1.5 ends in the middle of a pixel
            SCOPED_TRACE(testing::Message() << "ratio " << ratio << ", width " << width);
            StyledButton button;
            button.resize(width, 31);
            const QImage image = rendered(button, ratio);
            const int right = static_cast<int>(width * ratio) - 1;
            const int bottom = static_cast<int>(31 * ratio) - 1;
            const QPoint middle(right / 2, bottom / 2);
            const ButtonLook& look = button.theme().normal;
            for (int i = 0; i <= lines; ++i) { // the pixel after the line belongs to the background alone
                const bool line = i < lines;
                EXPECT_EQ(image.pixelColor(i, middle.y()), line ? look.frame : image.pixelColor(middle));
                EXPECT_EQ(image.pixelColor(right - i, middle.y()), line ? look.frame : image.pixelColor(middle));
                EXPECT_EQ(image.pixelColor(middle.x(), i), line ? look.frame : look.backgroundStart);
                EXPECT_EQ(image.pixelColor(middle.x(), bottom - i), line ? look.frame : look.backgroundEnd);
            }
        }
    }
    const FrameGeometry halfPixel = layOutFrame({0, 0, 11, 11}, 1, 1.5, {1.5, 1.5});
    EXPECT_DOUBLE_EQ(halfPixel.outer.left() * 1.5 + 1.5, 2.0) << "inwards to the next whole pixel";
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
