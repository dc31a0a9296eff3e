#include "ui/picker/Zelltexte.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

using ZelltexteTest = FilesTest;

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
    EXPECT_EQ(zellwert(118.714F, 40, fiveEach), "118,71");
    EXPECT_EQ(zellwert(118.714F, 30, fiveEach), "118,7");
    EXPECT_EQ(zellwert(-8.3514e21F, 44, fiveEach), "-8,4E+21");
    EXPECT_EQ(zellwert(-8.3514e21F, 43, fiveEach), "");
    EXPECT_EQ(tafelzahl(-8.62747F), "-8,6275") << "the same digits as in the cell";
    EXPECT_EQ(tafelzahl(8.3509e21F), "8,3509 E+21");
    EXPECT_EQ(zellwert(Unbekannt, 43, fiveEach), "?");
}

} // namespace zerna
