#include "ui/controls/Wertfeld.h"

#include <QTest>

#include <gtest/gtest.h>

#include "ui/button/ButtonTheme.h"

namespace zerna {

TEST(WertfeldTest, WrittenValueIsNotTakenForTyping)
{
    Wertfeld feld;
    int typed = 0;
    QObject::connect(&feld, &QLineEdit::textChanged, [&typed] { ++typed; });
    feld.setWert("ein Wert, der länger als das Feld ist", true);
    EXPECT_TRUE(feld.istWertUnbekannt());
    EXPECT_EQ(feld.cursorPosition(), 0);
    feld.setWert("2,7", false);
    EXPECT_FALSE(feld.istWertUnbekannt());
    EXPECT_EQ(typed, 0);
    QTest::keyClicks(&feld, "35");
    EXPECT_EQ(typed, 2);
}

TEST(WertfeldTest, ToolTipGivesTheReasonBeforeTheEchoBeforeTheHint)
{
    for (const auto& [fehler, echo, hinweis, expected] : {
             std::tuple("", "", "", ""),
             {"", "", "Zahl oder Formel", "Zahl oder Formel"},
             {"", "= 1,5", "Zahl oder Formel", "3/2 = 1,5"},
             {"Division durch Null", "= 1,5", "Zahl oder Formel", "Division durch Null"},
         }) {
        Wertfeld feld;
        feld.setWert("3/2", false);
        feld.setHinweis(hinweis);
        feld.setEcho(echo);
        feld.setFehler(fehler);
        EXPECT_EQ(feld.toolTip().toStdString(), expected);
        EXPECT_EQ(feld.accessibleDescription(), feld.toolTip());
        EXPECT_GE(feld.textMargins().right(), feld.fontMetrics().horizontalAdvance(echo)) << "beside the text";
    }
}

TEST(WertfeldTest, FaultMarksTheField)
{
    Wertfeld feld;
    feld.resize(80, 26);
    const QImage valid = feld.grab().toImage();
    feld.setFehler("Typen unverträglich");
    EXPECT_GT(feld.grab().toImage().pixelColor(1, 13).hsvSaturation(), 150) << "red frame";
    feld.setFehler({});
    EXPECT_EQ(feld.grab().toImage(), valid);
}

TEST(WertfeldTest, DisabledTextIsLegibleInEveryPalette)
{
    Wertfeld feld;
    for (const char* const ground : {"#ffffff", "#efefef", "#2b2b2b"}) {
        feld.setPalette(QPalette(QColor(ground), QColor(ground)));
        const QColor text = feld.palette().color(QPalette::Disabled, QPalette::Text);
        EXPECT_GE(contrastRatio(text, QColor(ground)), 4.5) << ground;
    }
}

} // namespace zerna
