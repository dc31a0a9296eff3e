#include "ui/controls/Wertanzeige.h"

#include <gtest/gtest.h>

namespace zerna {

TEST(WertanzeigeTest, PaintsUnitsInAColumnAndMinusAndPowerAsTheyAreWritten)
{
    constexpr int NumberWidth = 80;
    Wertanzeige anzeige;
    anzeige.resize(160, 24);
    anzeige.setEinheit("eV", NumberWidth);
    const auto painted = [&anzeige](const char* text, int from = 0) {
        anzeige.zeige(text);
        EXPECT_EQ(anzeige.text(), text);
        return anzeige.grab(QRect(from, 0, 160 - from, 24)).toImage();
    };
    const QImage unit = painted("1,5 eV", NumberWidth + 1);
    EXPECT_EQ(painted("-1234,56 eV", NumberWidth + 1), unit);
    EXPECT_NE(painted("1,5", NumberWidth + 1), unit) << "no unit, no columns";
    EXPECT_GE(anzeige.sizeHint().width(), NumberWidth + anzeige.fontMetrics().horizontalAdvance(" eV"));
    EXPECT_EQ(painted("-1,5 E+05 eV"), painted("−1,5·10⁵ eV"));
    EXPECT_EQ(painted("r(n) = -2 nm"), painted("r(n) = −2 nm"));
}

} // namespace zerna
