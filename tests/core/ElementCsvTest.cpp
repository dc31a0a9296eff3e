#include "core/ElementCsv.h"

#include <algorithm>

#include "core/Elementspalten.h"
#include "core/Zahlentext.h"
#include "support/FilesTest.h"

namespace zerna {

struct ElementCsvTest : FilesTest {
    std::string changed(std::string_view from, std::string_view to) const
    {
        return std::string(builtin).replace(builtin.find(from), from.size(), to);
    }

    const std::string builtin = bytesOf(ZERNA_DATA_DIR "/builtin-table.csv");
};

TEST_F(ElementCsvTest, TablesSurviveReadingAndWriting)
{
    for (const std::string& table : {bytesOf(ZERNA_DATA_DIR "/elemente.csv"), changed("Bor", "\"B,\"\"or\"")})
        EXPECT_EQ(writeElementCsv(readElementCsv("\xEF\xBB\xBF" + table)), table);
}

TEST_F(ElementCsvTest, ReadsTablesOfSpreadsheets)
{
    std::string german = builtin;
    std::ranges::replace(german, ',', ';');
    std::ranges::replace(german, '.', ',');
    std::string tabs = ReplaceText(german, ";", "\t");
    for (std::string table : {german, tabs, ReplaceText(german, "\n", "\r\n") + std::string(17, ';') + "\r\n"})
        EXPECT_EQ(readElementCsv(table), readElementCsv(builtin));
}

TEST_F(ElementCsvTest, ErrorsNameLineAndColumn)
{
    const std::pair<std::string, std::string> rows[] = {{"", "Zeile 1 enthält nicht die erwarteten Spaltennamen"},
        {changed("Bor", "\"Bor"), "Zeile 6 hat 4 statt " + std::to_string(Elementspalten.size()) + " Spalten"},
        {ReplaceText(changed("Lithium", "\"Li\nth\""), "10.811", "x"),
            "Zeile 7 Spalte Masse: \"x\" ist keine gültige Zahl"},
        {changed(",5,10.811", ",\xF6,10.811"),
            "Zeile 6 Spalte OZ: kein UTF-8-Text (die Tabelle als \"CSV UTF-8\" speichern)"},
        {changed("Bor", "B\xF6r"), "Zeile 6 Spalte Name: kein UTF-8-Text (die Tabelle als \"CSV UTF-8\" speichern)"},
        {changed("Bor", "Bωr?"), "Zeile 6 Spalte Name: das Zeichen \"ω\" kann die Elementdatei nicht aufnehmen"},
        {changed("6.941", std::string(100000, '7')),
            "Zeile 4 Spalte Masse: \"" + std::string(40, '7') + "…" + std::string(20, '7')
                + "\" ist keine gültige Zahl"},
        {changed("6.941", "1e39"), "Zeile 4 Spalte Masse: \"1e39\" ist keine gültige Zahl"},
        {changed("\n1,1", "\n256,1"), "Zeile 2 Spalte X: \"256\" ist keine gültige Zahl"},
        {changed("1 0 ", "1 "), "Zeile 2 Spalte Elektronen: \"\" ist keine gültige Zahl"},
        {changed("1 0 ", "1 0 0 "), "Zeile 2 Spalte Elektronen: \"0\" ist keine gültige Zahl"}};
    for (const auto& [text, message] : rows) {
        try {
            readElementCsv(text);
            ADD_FAILURE() << "accepted instead of: " << message;
        } catch (const Tabellenfehler& error) {
            EXPECT_EQ(error.what(), message);
        }
    }
}

} // namespace zerna
