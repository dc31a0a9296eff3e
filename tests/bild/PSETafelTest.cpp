#include "bild/PSETafel.h"

#include "support/FilesTest.h"

namespace zerna {

struct PSETafelTest : FilesTest {
    PSETafelTest()
    {
        const std::tuple<const char*, std::uint8_t, std::uint8_t> cells[] = {{"H", 1, 1}, {"He", 18, 1}, {"Li", 1, 2},
            {"B", 13, 2}, {"Sc", 3, 4}, {"Cu", 11, 4}, {"Zweit", 11, 4}, {"La", 4, 9}, {"Fern", 40, 200}};
        for (const auto& [symbol, column, row] : cells) {
            const auto element = std::make_shared<clsElement>(files, boxes);
            element->setX(column);
            element->setY(row);
            element->setsymbol(symbol);
            elements.Add(element, symbol);
        }
    }

    static std::string symbolOf(const std::shared_ptr<clsElement>& element) { return element ? element->symbol() : ""; }

    ElementCollection elements;
};

TEST_F(PSETafelTest, FirstElementOfTheCellUnderAPixelIsHit)
{
    const std::tuple<double, double, const char*> rows[] = {{1000, 300, "Cu"}, {1099.9, 399.9, "Cu"}, {1100.1, 300, ""},
        {0, 0, "H"}, {-0.1, 0, ""}, {5, -150, ""}, {3950, 19950, "Fern"}, {26600, 300, ""}, {1e300, -1e300, ""}};
    const Tafelmassstab scale(1820, 1020); // 100 pixels a cell
    for (const auto& [x, y, symbol] : rows)
        EXPECT_EQ(symbolOf(elementAt(elements, scale.columnAt(x), scale.rowAt(y))), symbol) << x << ' ' << y;
    const Rechteck copper = scale.cell(11, 4);
    EXPECT_NEAR(copper.left - copper.top, 700, 1e-9);
    EXPECT_NEAR(copper.width + copper.height, 200, 1e-9);
    EXPECT_EQ(elementAt(elements, Tafelmassstab(0, 0).columnAt(5), Tafelmassstab(0, 0).rowAt(5)), nullptr);
}

TEST_F(PSETafelTest, NeighboursLieBeyondGaps)
{
    const std::tuple<const char*, int, int, const char*> rows[] = {{"H", 1, 0, "He"}, {"He", -1, 0, "H"},
        {"H", -1, 0, ""}, {"H", 0, -1, ""}, {"H", 0, 1, "Li"}, {"Li", 1, 0, "B"}, {"He", 0, 1, "B"}, {"Sc", 0, 1, "La"},
        {"La", 0, -1, "Sc"}, {"La", 1, 0, ""}, {"Zweit", -1, 0, "Sc"}, {"Cu", 1, 0, ""}};
    for (const auto& [from, dx, dy, to] : rows)
        EXPECT_EQ(symbolOf(nextElement(elements, *elements.Item(from), dx, dy)), to) << from << dx << dy;
}

TEST_F(PSETafelTest, LettersFindASymbolInAnyCase)
{
    for (const auto& [letters, symbol] :
        {std::pair("h", "H"), {"hE", "He"}, {"l", "Li"}, {"LA", "La"}, {"s", "Sc"}, {"hx", ""}, {"ä", ""}})
        EXPECT_EQ(symbolOf(elementWithPrefix(elements, letters)), symbol) << letters;
}

} // namespace zerna
