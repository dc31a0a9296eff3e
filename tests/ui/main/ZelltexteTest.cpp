#include "ui/main/Zelltexte.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

using ZelltexteTest = FilesTest;

TEST_F(ZelltexteTest, SizesFollowTheShorterSideOfTheCell)
{
    struct Row {
        double width, height, symbol, klein;
        bool dritteZeile;
    };
    for (const Row& row : {
             Row{50, 90, 19, 10, true}, {90, 40, 15.2, 8, true}, // just high enough for a third line
             {39, 90, 14.82, 7.8, false}, {100, 100, 38, 14, true}, // largest small text
             {12, 12, 4.56, 6, false}, // smallest
         }) {
        const Schriftgroessen groessen = schriftgroessen(row.width, row.height);
        EXPECT_NEAR(groessen.symbol, row.symbol, 1e-9) << row.width;
        EXPECT_NEAR(groessen.klein, row.klein, 1e-9) << row.width;
        EXPECT_EQ(groessen.dritteZeile, row.dritteZeile) << row.width;
    }
}

TEST_F(ZelltexteTest, BelowTheSymbolStandAllNamesOrMasses)
{
    ElementCollection elements;
    for (const auto& [name, mass] : {std::pair("Zinn", 118.71F), {"Rutherfordium", Unbekannt}}) {
        const auto element = std::make_shared<clsElement>(files, boxes);
        element->setName(name);
        element->setMasse(mass);
        elements.Add(element, name);
    }
    const auto fiveEach = [](std::string_view text) { return 5.0 * static_cast<double>(text.size()); };
    EXPECT_TRUE(namenPassen(elements, 69, fiveEach)) << "65 for the longest and a margin";
    EXPECT_FALSE(namenPassen(elements, 68.5, fiveEach));
    EXPECT_EQ(dritteZeile(*elements.Item("Zinn"), true), "Zinn");
    EXPECT_EQ(dritteZeile(*elements.Item("Zinn"), false), "118,71");
    EXPECT_EQ(dritteZeile(*elements.Item("Rutherfordium"), false), "");
}

} // namespace zerna
