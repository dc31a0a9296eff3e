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
    struct Row {
        const char* name;
        const char* fehler;
        const char* echo;
        const char* hinweis;
        const char* expected;
    };
    const Row rows[]{
        {"nothing to say", "", "", "", ""},
        {"hint", "", "", "Zahl oder Formel", "Zahl oder Formel"},
        {"echo with its formula", "", "= 1,5", "Zahl oder Formel", "3/2 = 1,5"},
        {"fault", "Division durch Null", "= 1,5", "Zahl oder Formel", "Division durch Null"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Wertfeld feld;
        feld.setWert("3/2", false);
        feld.setHinweis(row.hinweis);
        feld.setEcho(row.echo);
        feld.setFehler(row.fehler);
        EXPECT_EQ(feld.toolTip().toStdString(), row.expected);
        EXPECT_EQ(feld.accessibleDescription(), feld.toolTip());
        EXPECT_GE(feld.textMargins().right(), feld.fontMetrics().horizontalAdvance(row.echo)) << "beside the text";
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
