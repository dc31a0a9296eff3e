#include "ui/main/Ergebnisbereich.h"

#include "support/FakeDesk.h"
#include "support/FullDisk.h"
#include "ui/controls/Wertfeld.h"

namespace zerna {

/// What the lines show, and what is copied and saved, is recorded in stunde.txt.
struct ErgebnisbereichTest : FakeDesk {
    ErgebnisbereichTest() { openAluminiumCopper(); }
};

TEST_F(ErgebnisbereichTest, TypedValuesExploreTheModelUntilTheNextEdit)
{
    const std::vector<const char*> names{"txtMFE_0", "txtMFE_1", "txtMFE_2", "lblMFE_7"};
    const std::string before = texts(names);
    struct Row {
        const char* field;
        const char* typed;
        const char* shown;
    };
    for (const auto& [field, typed, shown] : {
             Row{"txtMFE_0", "3", "3|70,495|36,863|12,944 eV"},
             {"txtMFE_0", "x", "x|70,495|32,203|9,8778 eV"},
         }) {
        SCOPED_TRACE(typed);
        type(field, typed);
        EXPECT_EQ(texts(names), shown);
        EXPECT_EQ(find<Wertfeld>(field).fehler().isEmpty(), *typed != 'x');
        type("txtProzent_0", "50");
        EXPECT_EQ(texts(names), before);
        EXPECT_TRUE(find<Wertfeld>(field).fehler().isEmpty());
    }
}

TEST_F(ErgebnisbereichTest, FullDiskIsReportedAndKeepsTheEarlierFile)
{
    writeBytes(folder / "a.dat", "alt");
    saveDialog.answer = {(folder / "a.dat").string(), 1};
    saveDialog.replace = true;
    const FullDisk disk(100);
    click("cmdMFE_Speichern");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.starts_with("Die Datei \"a.dat\" konnte nicht gespeichert werden:\r\n"));
    EXPECT_EQ(bytesOf(folder / "a.dat"), "alt");
}

} // namespace zerna
