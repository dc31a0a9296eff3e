#include <QApplication>
#include <QStyle>

#include <gtest/gtest.h>

#include "ui/button/ButtonTheme.h"
#include "ui/main/Elementzelle.h"
#include "ui/main/Tafelfaerbung.h"
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

TEST(Kontrast, MarksStandOutFromTheirGround)
{
    for (const auto& [name, palette] : desktops()) {
        for (const auto ground : {QPalette::Window, QPalette::Base}) {
            for (const QColor& mark : {fehlerfarbe(palette, ground), bedenkenfarbe(palette, ground)})
                EXPECT_GE(kontrast(mark, palette.color(ground)), 4.5) << name << ' ' << ground;
        }
        EXPECT_GE(kontrast(abweichungsfarbe(palette), palette.color(QPalette::Window)), 4.5) << name;
        const ButtonTheme theme = themeFromPalette(palette);
        for (const ButtonLook& look : {theme.normal, theme.hover, theme.pressed, theme.checked, theme.disabled}) {
            EXPECT_GE(kontrast(look.text, look.backgroundStart), 4.5) << name;
            EXPECT_GE(kontrast(look.text, look.backgroundEnd), 4.5) << name;
        }
    }
    for (const QColor& ink : {Cursorfarbe, Legierungsfarbe, Teilungsfarbe})
        EXPECT_GE(kontrast(ink, Qt::white), 4.5);
}

TEST(Kontrast, CellsOfTheTableCarryTheirTextsSignsAndHatching)
{
    std::vector<QColor> grounds;
    for (const Elementgruppe& gruppe : elementgruppen()) {
        for (const bool dark : {false, true})
            grounds.push_back(toQt(gruppe.farbe(dark)));
    }
    for (int i = 0; i <= 100; ++i)
        grounds.push_back(toQt(farbskala(i / 100.0)));
    for (const auto& [name, palette] : desktops())
        grounds.push_back(palette.color(QPalette::Button));
    for (const QColor& ground : grounds) {
        const QColor text = textOn(ground);
        EXPECT_GE(kontrast(text, ground), 4.5) << ground.name().toStdString();
        EXPECT_GE(kontrast(zeichenfarbe(ground, text), ground), 3) << ground.name().toStdString();
        EXPECT_GE(kontrast(linienfarbe(ground, text), ground), 3) << ground.name().toStdString();
    }
}

} // namespace zerna
