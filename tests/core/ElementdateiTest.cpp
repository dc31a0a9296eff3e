#include "core/Elementdatei.h"

#include "core/ElementCsv.h"
#include "support/FilesTest.h"

namespace zerna {

struct ElementdateiTest : FilesTest {
    /// The bytes of a file with these one-letter symbols.
    std::string fileOf(std::string_view symbols)
    {
        std::vector<ElementRecord> records;
        for (const char symbol : symbols)
            records.emplace_back().symbol = symbol;
        saveElements(folder / "a.dat", records);
        return bytesOf(folder / "a.dat");
    }

    int load(std::string bytes)
    {
        elements.clear();
        boxes.shown.clear();
        files.openBytes(1, std::move(bytes));
        return errorNumber([&] { loadElements(files, 1, boxes, elements); });
    }

    ElementCollection elements;
};

TEST_F(ElementdateiTest, CountsThatTheBytesDoNotBear)
{
    const std::string two = fileOf("PC").substr(1);
    const std::tuple<const char*, std::string, int, int, std::size_t> rows[] = {
        {"bytes behind the last record", "\x02" + two + "x", 0, 2, 0},
        {"no elements", std::string(4, '\0'), 0, 0, 0},
        {"empty file", "", 62, 0, 0},
        {"negative count", "\xFF\xFF\xFF\xFF" + two.substr(3), 62, 0, 0},
        {"greatest count there is", "\xFF\xFF\xFF\x7F" + two.substr(3), 62, 0, 0},
        {"a record missing", "\x03" + two, 0, 3, 1},
        {"two records missing, both without a symbol", "\x04" + two, 457, 3, 2},
        {"one symbol twice", fileOf("CC"), 457, 1, 0},
        {"lengths beyond the end", std::string("\x09\0\0\0\1\1\1\0a\xFF\xFF\1\1\1\0b\xFF\xFF\1\1\1\0c\xFF\xFF", 25),
            457, 2, 3},
    };
    for (const auto& [name, bytes, error, count, messages] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(load(bytes), error);
        EXPECT_EQ(elements.Count(), count);
        EXPECT_EQ(boxes.shown.size(), messages);
    }
    const std::string whole = fileOf("ABCDEF");
    for (std::size_t size = 4; size < whole.size(); ++size) {
        load(whole.substr(0, size));
        EXPECT_TRUE(!boxes.shown.empty() && boxes.shown.size() <= 3) << size;
    }
}

TEST_F(ElementdateiTest, ATableThatCannotBeImportedSaysWhereAndWhy)
{
    const auto tableOf = [](const char* first, const char* second) {
        std::vector<ElementRecord> records(2);
        records[0].symbol = first;
        records[1].symbol = second;
        return writeElementCsv(records);
    };
    EXPECT_EQ(readElementCsv(tableOf("A", "B")).size(), 2U);
    for (const auto& [table, reason] :
        {std::pair(tableOf("A", "A"), "Zeile 3: Symbol \"A\" fehlt oder ist schon vergeben"),
            {tableOf("", "B"), "Zeile 2: Symbol \"\" fehlt oder ist schon vergeben"},
            {"Symbol;Gr\xF6\xDF", "Zeile 1: kein UTF-8-Text (die Tabelle als \"CSV UTF-8\" speichern)"},
            {"Symbol;Masse\nA;1", "Zeile 1 enthält nicht die erwarteten Spaltennamen"}}) {
        std::string said;
        try {
            readElementCsv(table);
        } catch (const std::runtime_error& error) {
            said = error.what();
        }
        EXPECT_EQ(said, reason);
    }
}

TEST_F(ElementdateiTest, AFailedSaveLeavesTheEarlierFile)
{
    const std::string before = fileOf("C");
    std::vector<ElementRecord> records(300);
    records[0].Name.assign(65536, 'x');
    EXPECT_EQ(errorNumber([&] { saveElements(folder / "a.dat", records); }), 6);
    EXPECT_EQ(bytesOf(folder / "a.dat"), before);
}

} // namespace zerna
