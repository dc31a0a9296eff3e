#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

#include <gtest/gtest.h>

#include "ui/button/ButtonTheme.h"
#include "ui/picker/Elementzelle.h"
#include "ui/picker/Tafelfaerbung.h"
#include "ui/platform/Farben.h"
#include "ui/platform/Lesbarkeit.h"
#include "ui/weighing/Wiegezeile.h"

namespace zerna {

/// Light and dark as desktops have them, before the program makes them legible.
static std::vector<std::pair<const char*, QPalette>> desktops()
{
    QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, Qt::white);
    dark.setColor(QPalette::Base, QColor(35, 35, 35));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::Link, QColor(42, 130, 218));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(110, 110, 110));
    dark.setColor(QPalette::PlaceholderText, QColor(255, 255, 255, 80));
    const QPalette light = QApplication::style()->standardPalette();
    return {{"light", light}, {"dark", dark}, {"medium", QPalette(QColor(120, 120, 120), QColor(128, 128, 128))}};
}

TEST(Kontrast, EveryTextOfThePaletteIsLegible)
{
    using Role = QPalette::ColorRole;
    for (const auto& [name, desktop] : desktops()) {
        const QPalette palette = lesbar(desktop);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto& [text, ground] :
                {std::pair<Role, Role>(QPalette::WindowText, QPalette::Window), {QPalette::Text, QPalette::Base},
                    {QPalette::ButtonText, QPalette::Button}, {QPalette::PlaceholderText, QPalette::Base},
                    {QPalette::Link, QPalette::Window}, {QPalette::HighlightedText, QPalette::Highlight},
                    {QPalette::ToolTipText, QPalette::ToolTipBase}}) {
                EXPECT_GE(kontrast(palette.color(group, text), palette.color(group, ground)), 4.5)
                    << name << ' ' << group << ' ' << text;
                EXPECT_EQ(palette.color(group, text).alpha(), 255);
            }
        }
    }
    QPalette polished = QApplication::style()->standardPalette();
    LesbarerStil().polish(polished);
    EXPECT_GE(kontrast(polished.color(QPalette::Disabled, QPalette::Text), polished.color(QPalette::Base)), 4.5);
}

TEST(Kontrast, StyleMovesNothing)
{
    LesbarerStil style;
    EXPECT_EQ(style.styleHint(QStyle::SH_Widget_Animation_Duration), 0);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo);
    style.polish(qApp);
    EXPECT_FALSE(QApplication::isEffectEnabled(Qt::UI_AnimateCombo));
}

TEST(Kontrast, FieldsBoxesAndButtonsAreFramedOnDarkGrounds)
{
    LesbarerStil style;
    for (const auto element : {QStyle::PE_FrameLineEdit, QStyle::PE_IndicatorCheckBox}) {
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(Qt::black);
        QStyleOptionFrame option;
        option.palette = QPalette(Qt::black, Qt::black);
        option.palette.setColor(QPalette::WindowText, Qt::white);
        option.rect = image.rect();
        QPainter painter(&image);
        style.drawPrimitive(element, &option, &painter);
        EXPECT_GE(kontrast(image.pixelColor(10, 0), Qt::black), 3) << element;
    }
    QWidget dark;
    dark.setPalette(QPalette(Qt::black, Qt::black));
    QPushButton button(&dark);
    button.setStyle(&style);
    button.resize(20, 20);
    EXPECT_GE(kontrast(button.grab().toImage().pixelColor(10, 0), Qt::black), 3);
}

TEST(Kontrast, MarksStandOutFromTheirGround)
{
    for (const auto& [name, palette] : desktops()) {
        for (const auto ground : {QPalette::Window, QPalette::Base}) {
            for (const QColor& mark : {fehlerfarbe(palette, ground), bedenkenfarbe(palette, ground)})
                EXPECT_GE(kontrast(mark, palette.color(ground)), 4.5) << name << ' ' << ground;
        }
        EXPECT_GE(kontrast(abweichungsfarbe(palette), palette.color(QPalette::Window)), 4.5) << name;
    }
    for (const QColor& ink : {Cursorfarbe, Legierungsfarbe, Teilungsfarbe})
        EXPECT_GE(kontrast(ink, Qt::white), 4.5);
}

TEST(Kontrast, CellsOfTheTableCarryTheirTextsSignsAndHatching)
{
    std::vector<QColor> grounds;
    for (int i = 0; i <= 1000; ++i)
        grounds.push_back(toQt(farbskala(i / 1000.0)));
    for (const Elementgruppe& gruppe : elementgruppen()) {
        grounds.push_back(toQt(gruppe.hell));
        grounds.push_back(toQt(gruppe.dunkel));
    }
    for (const QColor& missing : {QColor(Qt::white), QColor(239, 239, 239), QColor(49, 54, 59), QColor(Qt::black)})
        grounds.push_back(missing);
    for (const QColor& ground : grounds) {
        const QColor text = textOn(ground);
        EXPECT_GE(kontrast(text, ground), 4.5) << ground.name().toStdString();
        EXPECT_GE(kontrast(textOn(text), text), 4.5) << "numbers on their plate";
        EXPECT_GE(kontrast(zeichenfarbe(ground, text), ground), 4.5) << ground.name().toStdString();
        EXPECT_GE(kontrast(linienfarbe(ground, text), ground), 3) << ground.name().toStdString();
    }
    EXPECT_NEAR(kontrast(Qt::white, QColor(118, 118, 118)), 4.54, 0.01) << "the guidelines' own example";
}

TEST(Kontrast, EveryStateOfAButtonIsLegibleInAwkwardPalettesToo)
{
    auto palettes = desktops();
    for (const auto& [window, button, text, accent] : {
             std::tuple("#000000", "#000000", "#ffff00", "#00ff00"), // high contrast
             {"#707070", "#757575", "#7a7a7a", "#777777"}, // grey on grey
             {"#ffffff", "#ffffff", "#202020", "#ffffff"}, // white accent on white
         }) {
        QPalette palette{QColor(button), QColor(window)};
        palette.setColor(QPalette::ButtonText, QColor(text));
        palette.setColor(QPalette::Highlight, QColor(accent));
        palettes.emplace_back(text, palette);
    }
    for (const auto& [name, palette] : palettes) {
        const ButtonTheme theme = themeFromPalette(palette);
        for (unsigned bits = 0; bits < 16; ++bits) {
            SCOPED_TRACE(testing::Message() << name << ", condition " << bits);
            const bool enabled = (bits & 8U) == 0;
            const ButtonLook look = lookOf(theme, {enabled, (bits & 4U) != 0, (bits & 2U) != 0, (bits & 1U) != 0});
            for (const QColor& background : {look.backgroundStart, look.backgroundEnd}) {
                EXPECT_GE(kontrast(look.text, background), 4.5);
                EXPECT_GE(kontrast(theme.focus, background), enabled ? 3.0 : 1.0);
            }
        }
    }
}

TEST(Kontrast, FocusStandsOutOnEveryGround)
{
    for (const QColor& highlight :
        {QColor(61, 174, 233), QColor(0, 120, 215), QColor(255, 255, 0), QColor(40, 40, 40)}) {
        QPalette palette;
        palette.setColor(QPalette::Highlight, highlight);
        for (const QColor& ground : {QColor(Qt::white), QColor(49, 54, 59), QColor(118, 118, 118)})
            EXPECT_GE(kontrast(fokusfarbe(palette, ground), ground), 3.0) << highlight.name().toStdString();
    }
}

} // namespace zerna
