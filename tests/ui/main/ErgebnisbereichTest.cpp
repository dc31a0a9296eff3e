#include "ui/main/Ergebnisbereich.h"

#include <QMenu>
#include <QMimeData>
#include <QTextDocument>
#include <QTextTable>

#include <QAction>

#include "support/FakeDesk.h"
#include "support/FullDisk.h"
#include "ui/controls/Befundzeile.h"
#include "ui/controls/Wertanzeige.h"
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

TEST_F(ErgebnisbereichTest, TheMenuShowsWhatItCopies)
{
    struct Row {
        const char* line;
        std::array<const char*, 3> entries;
    };
    for (const auto& [line, entries] :
        {Row{"lblMFE_4",
             {"Kopieren\t-4.4269", "Zahl kopieren\t-4,4269E-11", "Zahl und Einheit kopieren\t-4,4269 E-11 m³/As"}},
            {"lblMFE_0", {"Kopieren\te/a", "Zahl kopieren\t2", "Zahl und Einheit kopieren\t2 e/a"}},
            {"lblMFE_14",
                {"Kopieren", "Zahl kopieren\t0,30371", "Zahl und Einheit kopieren\t0,30371 states/eV atom"}}}) {
        SCOPED_TRACE(line);
        QTest::mouseClick(&find(line), Qt::RightButton);
        const auto actions = find<QMenu>("mnuRight").actions();
        ASSERT_EQ(actions.size(), 3);
        for (std::size_t i = 0; i < entries.size(); ++i)
            EXPECT_EQ(actions.at(static_cast<int>(i))->text().toStdString(), entries[i]);
        EXPECT_EQ(actions.at(0)->isEnabled(), actions.at(0)->text() != "Kopieren");
        find<QMenu>("mnuRight").close();
    }
}

TEST_F(ErgebnisbereichTest, ATableForSpreadsheetsAndWordProcessors)
{
    click("cmdMFE_Tabelle");
    EXPECT_TRUE(clipboard().starts_with("Größe\tWert\tEinheit\tLehrbuch\tEinheit\r\nmittlere Valenz\t2\te/a\r\n"));
    EXPECT_NE(clipboard().find("\r\nKompressionsmodul\t1,487537E-16\tN/m²\t148,75371\tGPa\r\n"), std::string::npos)
        << clipboard();
    find<QAction>("mnuPunkt").trigger();
    click("cmdMFE_Tabelle");
    EXPECT_NE(clipboard().find("\t1.487537E-16\tN/m²\t148.75371\tGPa"), std::string::npos) << "remembered";
    QTextDocument document;
    document.setHtml(QApplication::clipboard()->mimeData()->html());
    const auto* const table = qobject_cast<QTextTable*>(document.rootFrame()->childFrames().value(0));
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->columns(), 5);
    EXPECT_EQ(table->rows(), 19);
    EXPECT_EQ(table->cellAt(18, 3).firstCursorPosition().block().text().toStdString(), "148.75371");
    type("txtMFE_0", "");
    EXPECT_FALSE(find("cmdMFE_Tabelle").isEnabled()) << "no results";
}

TEST_F(ErgebnisbereichTest, TheLineAboveLeadsToTheFaultAndFaultyResultsAreAskedAbout)
{
    const auto line = [this] { return find<Befundzeile>("lblBefund").befund().toStdString(); };
    EXPECT_EQ(line(), "");
    click("cmdMFE_Kopieren");
    const std::string before = clipboard();
    type("txtProzent_0", "");
    EXPECT_EQ(line(), "Komponente 1 (Al): at% fehlt. Die Ergebnisse gehören zu Al 50, Cu 50 at%.");
    EXPECT_TRUE(find<Wertanzeige>("lblMFE_7").istBlass());
    find("cmbElement_1").setFocus();
    QTest::keyClick(&find("lblBefund"), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &find("txtProzent_0"));
    boxes.answer = false;
    QApplication::clipboard()->clear();
    for (const char* const button : {"cmdMFE_Kopieren", "cmdMFE_Tabelle", "cmdMFE_Speichern"})
        click(button);
    EXPECT_EQ(boxes.asked.size(), 3U);
    EXPECT_EQ(clipboard() + saveDialog.offered, "");
    boxes.answer = true;
    click("cmdMFE_Kopieren");
    EXPECT_EQ(clipboard(), before);
    type("txtProzent_0", "50");
    EXPECT_EQ(line(), "");
    EXPECT_FALSE(find<Wertanzeige>("lblMFE_7").istBlass());
    choose("cmbValenz_0", "<andere>");
    type("txtValenz_0", "0-3");
    EXPECT_FALSE(find<Wertfeld>("txtMFE_0").fehler().isEmpty()) << "a mean valence that is not positive";
}

TEST_F(ErgebnisbereichTest, TypedValuesHaveAWayBack)
{
    const std::vector<const char*> names{"txtMFE_0", "txtMFE_1", "txtMFE_2", "lblMFE_7"};
    const std::string before = texts(names);
    for (const auto& [field, back, pale] :
        {std::tuple("txtMFE_0", "cmdZurueck_0", false), {"txtMFE_2", "cmdZurueck_2", true}}) {
        EXPECT_FALSE(window->findChild<QAction*>(back)->isVisible());
        type(field, "30");
        EXPECT_EQ(find<Wertanzeige>("lblMFE_7").istBlass(), pale);
        EXPECT_FALSE(find<Wertanzeige>("lblMFE_9").istBlass());
        boxes.asked.clear();
        boxes.answer = false;
        click("cmdMFE_Speichern");
        EXPECT_EQ(boxes.asked.size(), 1U);
        find(field).setFocus();
        QTest::keyClick(&find(field), Qt::Key_Escape);
        EXPECT_EQ(texts(names), before);
        EXPECT_FALSE(window->findChild<QAction*>(back)->isVisible());
        EXPECT_FALSE(find<Wertanzeige>("lblMFE_7").istBlass());
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
