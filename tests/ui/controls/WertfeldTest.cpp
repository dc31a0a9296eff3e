#include "ui/controls/Wertfeld.h"

#include <QTest>

#include <gtest/gtest.h>

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

TEST(WertfeldTest, ADoubleClickTakesANumberWholeAndAWordOfAFormula)
{
    Wertfeld feld;
    feld.resize(200, 26);
    for (const auto& [typed, taken] :
        {std::pair("32,203", "32,203"), std::pair("1,5e-3", "1,5e-3"), std::pair("z_Cu-1", "z_Cu")}) {
        feld.setWert(typed, false);
        QTest::mouseDClick(&feld, Qt::LeftButton, {}, QPoint(12, 13));
        EXPECT_EQ(feld.selectedText(), taken);
    }
}

TEST(WertfeldTest, TheFormulaIsReadableBeforeTheEcho)
{
    Wertfeld feld;
    const auto widthOf = [&](const QString& text) { return feld.fontMetrics().horizontalAdvance(text); };
    const QString echo("= 0,999999979374768");
    for (const int width : {widthOf("sqrt(2)*0,7071067") + 20, widthOf("sqrt(2)*0,7071067" + echo), 40}) {
        feld.resize(width, 26);
        feld.setWert("3/2", false);
        feld.setEcho(echo);
        QTest::keyClick(&feld, Qt::Key_End);
        feld.selectAll();
        QTest::keyClicks(&feld, "sqrt(2)*0,7071067");
        const int room = width - feld.textMargins().right();
        EXPECT_EQ(feld.textMargins().right() > 0, width > widthOf(feld.text()) + 20) << "echoed where there is room";
        EXPECT_TRUE(room >= widthOf(feld.text()) || feld.textMargins().right() == 0) << width;
        feld.setEcho(echo + '1');
        EXPECT_EQ(feld.toolTip(), "sqrt(2)*0,7071067 " + echo + '1');
    }
}

TEST(WertfeldTest, FaultMarksTheFieldBeforeWhatIsOdd)
{
    Wertfeld feld;
    feld.resize(80, 26);
    const QImage valid = feld.grab().toImage();
    feld.setBedenken("Mehr als 100 at%");
    const QImage odd = feld.grab().toImage();
    EXPECT_EQ(feld.toolTip(), "Mehr als 100 at%");
    feld.setFehler("Typen unverträglich");
    EXPECT_EQ(feld.accessibleDescription(), "Typen unverträglich");
    for (const QImage& marked : {odd, feld.grab().toImage()})
        EXPECT_GT(marked.pixelColor(1, 13).hsvSaturation(), 150) << "a frame";
    EXPECT_NE(feld.grab().toImage(), odd);
    feld.setFehler({});
    feld.setBedenken({});
    EXPECT_EQ(feld.grab().toImage(), valid);
}

TEST(WertfeldTest, ComputedValueLooksLikeALabelUntilItHasTheFocus)
{
    QWidget desk;
    Wertfeld feld(&desk);
    feld.resize(80, 26);
    desk.show();
    desk.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desk));
    feld.setFocus();
    feld.setBerechnet(true);
    const auto ground = [&] { return desk.grab().toImage().pixelColor(70, 13); };
    EXPECT_EQ(ground(), desk.palette().color(QPalette::Base));
    feld.clearFocus();
    EXPECT_EQ(ground(), desk.palette().color(QPalette::Window));
}

} // namespace zerna
