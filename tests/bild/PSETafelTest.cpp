#include "bild/PSETafel.h"

#include "support/FilesTest.h"

namespace zerna {

struct PSETafelTest : FilesTest {
    PSETafelTest()
    {
        const struct {
            const char* symbol;
            std::uint8_t column, row;
        } cells[] = {{"H", 1, 1}, {"He", 18, 1}, {"Be", 2, 2}, {"B", 13, 2}, {"Sc", 3, 4}, {"Cu", 11, 4},
            {"Zweit", 11, 4}, {"La", 4, 9}};
        for (const auto& cell : cells) {
            const auto element = std::make_shared<clsElement>(files, boxes);
            element->setX(cell.column);
            element->setY(cell.row);
            element->setsymbol(cell.symbol);
            elements.Add(element, cell.symbol);
        }
    }

    static std::string symbolOf(const std::shared_ptr<clsElement>& element) { return element ? element->symbol() : ""; }

    ElementCollection elements;
};

TEST_F(PSETafelTest, FirstElementOfTheCellUnderAPixelIsHit)
{
    const std::tuple<const char*, double, double, const char*> rows[] = {
        {"first of two in a cell", 1000, 300, "Cu"},
        {"the cell's last pixel", 1099.9, 399.9, "Cu"},
        {"beside it", 1100.1, 300, ""},
        {"left of the table", -0.1, 0, ""},
        {"a column that is no byte", 26600, 300, ""},
        {"no whole number at all", 1e300, -1e300, ""},
    };
    const Tafelmassstab scale(1820, 1020); // 100 pixels a cell
    for (const auto& [name, x, y, symbol] : rows)
        EXPECT_EQ(symbolOf(elementAt(elements, scale.columnAt(x), scale.rowAt(y))), symbol) << name;
    EXPECT_EQ(elementAt(elements, Tafelmassstab(0, 0).columnAt(5), Tafelmassstab(0, 0).rowAt(5)), nullptr);
}

TEST_F(PSETafelTest, NeighboursLieBeyondGaps)
{
    const struct {
        const char* name;
        const char* from;
        int dx, dy;
        const char* to;
    } rows[] = {
        {"left over a gap", "He", -1, 0, "H"},
        {"down to the nearest column", "He", 0, 1, "B"},
        {"down over empty rows", "Sc", 0, 1, "La"},
        {"from the second in a cell", "Zweit", -1, 0, "Sc"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(symbolOf(nextElement(elements, *elements.Item(row.from), row.dx, row.dy)), row.to) << row.name;
}

TEST_F(PSETafelTest, LettersFindTheWholeSymbolBeforeLongerOnes)
{
    EXPECT_EQ(symbolOf(elementWithPrefix(elements, "b")), "B");
    EXPECT_EQ(symbolOf(elementWithPrefix(elements, "L")), "La");
    EXPECT_EQ(elementWithPrefix(elements, "ä"), nullptr);
}

} // namespace zerna
