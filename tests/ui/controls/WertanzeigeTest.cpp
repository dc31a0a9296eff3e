#include "ui/controls/Wertanzeige.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace zerna {

TEST(WertanzeigeTest, UnitsStandInAColumn)
{
    constexpr int NumberWidth = 80;
    Wertanzeige anzeige;
    anzeige.resize(160, 24);
    anzeige.setEinheit("eV", NumberWidth);
    const auto unit = [&anzeige](const char* text) {
        anzeige.setText(text);
        return anzeige.grab(QRect(NumberWidth + 1, 0, 60, 24)).toImage();
    };
    const QImage einheit = unit("1,5 eV");
    EXPECT_EQ(unit("-1234,56 eV"), einheit);
    EXPECT_NE(unit("1,5"), einheit) << "no unit, no columns";
    EXPECT_GE(anzeige.sizeHint().width(), NumberWidth + anzeige.fontMetrics().horizontalAdvance(" eV"));
}

TEST(WertanzeigeTest, PaintsMinusAndPowerAndKeepsTheGivenText)
{
    Wertanzeige anzeige;
    anzeige.resize(160, 24);
    anzeige.setEinheit("eV", 80);
    const auto painted = [&anzeige](const char* text) {
        anzeige.setText(text);
        EXPECT_EQ(anzeige.text(), text);
        return anzeige.grab().toImage();
    };
    EXPECT_EQ(painted("-1,5 E+05 eV"), painted("−1,5·10⁵ eV"));
    EXPECT_EQ(painted("r(n) = -2 nm"), painted("r(n) = −2 nm"));
}

TEST(WertanzeigeTest, ClickAndKeysAskForTheDetails)
{
    Wertanzeige anzeige;
    anzeige.resize(160, 24);
    QSignalSpy asked(&anzeige, &Wertanzeige::detailsRequested);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_A})
        QTest::keyClick(&anzeige, key);
    EXPECT_EQ(asked.count(), 3);
    QTest::mouseClick(&anzeige, Qt::LeftButton);
    QTest::mouseClick(&anzeige, Qt::RightButton);
    QTest::mousePress(&anzeige, Qt::LeftButton);
    QTest::mouseRelease(&anzeige, Qt::LeftButton, {}, QPoint(500, 5)); // taken back outside
    EXPECT_EQ(asked.count(), 4);
}

} // namespace zerna
