#include "ui/controls/Wertanzeige.h"

#include <QTest>

#include <gtest/gtest.h>

namespace zerna {

struct WertanzeigeTest : testing::Test {
    static constexpr int NumberWidth = 80;

    /// Where the unit stands.
    QImage unit(const char* text)
    {
        anzeige.setText(text);
        return anzeige.grab(QRect(NumberWidth + 1, 0, 60, 24)).toImage();
    }

    Wertanzeige anzeige;
};

TEST_F(WertanzeigeTest, UnitsStandInAColumn)
{
    anzeige.resize(160, 24);
    anzeige.setEinheit("eV", NumberWidth);
    const QImage einheit = unit("1,5 eV");
    EXPECT_EQ(unit("-1234,56 eV"), einheit);
    EXPECT_NE(unit("1,5"), einheit) << "no unit, no columns";
    EXPECT_GE(anzeige.sizeHint().width(), NumberWidth + anzeige.fontMetrics().horizontalAdvance(" eV"));
}

TEST_F(WertanzeigeTest, KeyAndMouseAskForCopyAndMenu)
{
    int copies = 0;
    int menus = 0;
    QObject::connect(&anzeige, &Wertanzeige::copyRequested, [&copies] { ++copies; });
    QObject::connect(&anzeige, &Wertanzeige::menuRequested, [&menus] { ++menus; });
    QTest::keySequence(&anzeige, QKeySequence::Copy);
    EXPECT_EQ(copies, 1);
    QTest::mouseClick(&anzeige, Qt::LeftButton);
    EXPECT_EQ(menus, 0);
    QTest::mouseClick(&anzeige, Qt::RightButton);
    EXPECT_EQ(menus, 1);
}

} // namespace zerna
