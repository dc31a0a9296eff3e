#include "ui/main/Ergebnisbereich.h"

#include <QMenu>

#include <array>

#include "core/Zeichensatz.h"
#include "support/ErwarteteTexte.h"
#include "support/FakeDesk.h"
#include "support/FullDisk.h"
#include "ui/controls/Wertfeld.h"

namespace zerna {

struct ErgebnisbereichTest : FakeDesk {
    ErgebnisbereichTest()
    {
        openAluminiumCopper();
        type("txtProzent_0", "60");
    }

    void chooseFromMenu(const char* line, int entry)
    {
        QTest::mouseClick(&find(line), Qt::RightButton);
        auto& menu = *window->findChild<QMenu*>("mnuRight");
        ASSERT_TRUE(menu.isVisible());
        for (int i = 0; i <= entry; ++i)
            QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
    }

    void save(const std::string& name, int type)
    {
        saveDialog.answer = {(folder / name).string(), type};
        click("cmdMFE_Speichern");
    }
};

TEST_F(ErgebnisbereichTest, TypedValuesExploreTheModelUntilTheNextEdit)
{
    const std::vector<const char*> names{
        "txtMFE_0", "txtMFE_1", "txtMFE_2", "lblMFE_7", "lblMFE_9", "lblMFE_11", "lblMFE_16"};
    struct Row {
        const char* name;
        const char* field;
        const char* typed;
        const char* shown;
    };
    for (const auto& [name, field, typed, shown] : {
             Row{"density", "txtMFE_1", "0,05", "2,2|0,05|2,9646|0,083714 eV|2,1194 nm|0,11 e/nm³|0,050228 eV"},
             {"valence", "txtMFE_0", "3", "3|68,18|36,455|12,659 eV|0,17235 nm|204,54 e/nm³|7,5952 eV"},
             {"2 kF", "txtMFE_2", "25,132742", "2,2|68,18|25,132742|10,294 eV|0,25 nm|149,99 e/nm³|6,1765 eV"},
             {"no density", "txtMFE_1", "", "2,2||32,875||||"},
             {"no 2 kF", "txtMFE_2", "", "2,2|68,18|||||"},
             {"no number", "txtMFE_0", "x", "x|68,18|32,875|10,294 eV|0,19112 nm|149,99 e/nm³|6,1765 eV"},
         }) {
        SCOPED_TRACE(name);
        type(field, typed);
        EXPECT_EQ(texts(names), shown);
        EXPECT_EQ(find<Wertfeld>(field).fehler().isEmpty(), *typed != 'x');
        type("txtProzent_0", "60");
        EXPECT_EQ(texts(names), "2,2|68,18|32,875|10,294 eV|0,19112 nm|149,99 e/nm³|6,1765 eV");
        EXPECT_TRUE(find<Wertfeld>(field).fehler().isEmpty());
    }
}

TEST_F(ErgebnisbereichTest, FriedelMinimaWrapAtUnequalBounds)
{
    const auto expect = [this](const char* shown) { EXPECT_EQ(texts({"Label7", "lblMFE_10"}), shown); };
    expect("n = 1|r(n) = 0,23891 nm");
    click("cmdKnopf2_1");
    expect("n = 21|r(n) = 4,0614 nm");
    for (int i = 0; i < 20; ++i) // the first of these steps goes on from 21 to 1
        click("cmdKnopf2_0");
    expect("n = 20|r(n) = 3,8703 nm");
    click("cmdKnopf2_0");
    expect("n = 1|r(n) = 0,23891 nm");
    click("cmdKnopf2_0");
    expect("n = 2|r(n) = 0,43003 nm");
    type("txtProzent_0", "60");
    expect("n = 1|r(n) = 0,23891 nm"); // with each update
}

TEST_F(ErgebnisbereichTest, LinesFromTheFirstErrorOnAreEmptyNotStale)
{
    const std::vector<const char*> names{"lblMFE_7", "lblMFE_10", "lblMFE_15", "lblMFE_18"};
    const std::string before = texts(names);
    choose("cmbValenz_0", "<andere>");
    type("txtValenz_0", "0-3"); // a negative number of electrons: the Fermi temperature overflows
    EXPECT_EQ(texts(names), "|||");
    type("txtValenz_0", "3");
    EXPECT_EQ(texts(names), before);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ErgebnisbereichTest, MenuAndKeyCopyOneLine)
{
    struct Row {
        const char* line;
        std::array<const char*, 3> copies; // "Kopieren", "Zahl kopieren", "Zahl und Einheit kopieren"
    };
    for (const auto& [line, copies] : {
             Row{"lblMFE_7", {"10.294", "10,294", "10,294 eV"}},
             {"lblMFE_0", {"e/a", "2,2", "2,2 e/a"}},
         }) {
        SCOPED_TRACE(line);
        for (int entry = 0; const char* const copy : copies) {
            chooseFromMenu(line, entry++);
            EXPECT_EQ(clipboard(), copy);
        }
        QApplication::clipboard()->clear();
        QTest::keyClick(&find(line), Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(clipboard(), copies.back());
    }
}

TEST_F(ErgebnisbereichTest, CopiesAndSavesResultsAndFriedelMinima)
{
    click("cmdMFE_Kopieren");
    EXPECT_EQ(clipboard(), erwartet::Ergebnistext);
    save("a", 1);
    EXPECT_EQ(bytesOf(folder / "a.dat"), toWindows1252(erwartet::Ergebnisdatei));
    type("txtMFE_2", "25,132742");
    click("cmdKnopf2_0");
    save("b", 2);
    EXPECT_EQ(bytesOf(folder / "b.fri"), erwartet::Friedeldatei);
    EXPECT_EQ(text("Label7"), "n = 1");
    EXPECT_TRUE(boxes.shown.empty());
    const FullDisk disk(100);
    save("a.dat", 1);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.starts_with("Die Datei \"a.dat\" konnte nicht gespeichert werden:\r\n"));
    EXPECT_EQ(bytesOf(folder / "a.dat"), toWindows1252(erwartet::Ergebnisdatei));
}

} // namespace zerna
