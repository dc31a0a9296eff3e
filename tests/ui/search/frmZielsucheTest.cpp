#include "ui/search/frmZielsuche.h"

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>

#include <algorithm>

#include "support/FakeDesk.h"
#include "ui/controls/Befundzeile.h"
#include "ui/results/Ergebnisgitter.h"

namespace zerna {

/// Al60Cu40, both crystalline, and the search for its Fermi energy open.
struct frmZielsucheTest : FakeDesk {
    frmZielsucheTest()
    {
        openAluminiumCopper();
        type("txtProzent_0", "60");
        choose("cmbDiagramm", "Fermienergie");
        QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    }

    QTableWidget& answers() const { return find<QTableWidget>("tblSuche_Anteile"); }
    QTableWidget& elements() const { return find<QTableWidget>("tblSuche_Elemente"); }
    std::string satz(const char* name) const { return find<Befundzeile>(name).befund().toStdString(); }
    bool isEnabled(const char* name) const { return find(name).isEnabled(); }
    Ergebnisgitter& grid() const { return *window->findChild<Ergebnisgitter*>(); }
    void undo() const { find<QAction>("mnuRueckgaengig").trigger(); }

    static QString cell(const QTableWidget& table, int row, int column)
    {
        return table.item(row, column)->text().trimmed();
    }

    /// "Al|Cu": the at% of a line of the answers.
    std::string line(int row) const { return (cell(answers(), row, 0) + '|' + cell(answers(), row, 1)).toStdString(); }
};

TEST_F(frmZielsucheTest, AnAnswerIsTakenOverByKeysAsOneStep)
{
    EXPECT_EQ(text("txtSuche_Ziel"), "10,294") << "begins with the value of the alloy";
    click("chkSuche_Mischungsreihe");
    type("txtSuche_Ziel", "9,5");
    ASSERT_EQ(answers().rowCount(), 1);
    EXPECT_EQ(line(0), "41,64005|58,35995");
    for (const char* const asked : {"txtSuche_Ziel", "cmbSuche_Komponente", "chkSuche_Mischungsreihe"}) {
        find(asked).setFocus();
        QTest::keyClick(&find(asked), Qt::Key_Return);
        ASSERT_EQ(find("frmZielsuche").focusWidget(), &answers()) << asked;
    }
    QTest::keyClick(&answers(), Qt::Key_Return);
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "41,64005|58,35995");
    EXPECT_EQ(grid().wertUndEinheitIn(7).toStdString(), "9,5 eV");
    EXPECT_EQ(programm->Dokument().diagramm.komponente, 0);
    EXPECT_EQ(find<QAction>("mnuRueckgaengig").text().toStdString(), "&Rückgängig: Anteil übernehmen");
    EXPECT_EQ(text("lblMeldung"), "✓  Anteil übernommen");
    undo();
    EXPECT_EQ(text("txtProzent_0"), "60");
    EXPECT_EQ(line(0), "41,64005|58,35995") << "it is looked for again";
    QTest::keyClick(&answers(), Qt::Key_Escape);
    EXPECT_FALSE(find("frmZielsuche").isVisible());
}

TEST_F(frmZielsucheTest, WhatTheBalanceRowWouldChangeIsNotTakenOver)
{
    type("txtSuche_Ziel", "9,5");
    EXPECT_EQ(line(0), "22,2033|31,11868");
    EXPECT_FALSE(isEnabled("cmdSuche_Uebernehmen"));
    EXPECT_NE(satz("lblSuche_Anteil").find("53,32 at%"), std::string::npos);
    QTest::keyClick(&answers(), Qt::Key_Return);
    EXPECT_EQ(text("txtProzent_0"), "60");
    click("lblSuche_Anteil"); // offers the other series
    EXPECT_TRUE(find<QCheckBox>("chkSuche_Mischungsreihe").isChecked());
    EXPECT_TRUE(isEnabled("cmdSuche_Uebernehmen"));
    click("cmdSuche_Kopieren");
    EXPECT_EQ(clipboard(), "Al [at%]\tCu [at%]\teV\r\n41,64005\t58,35995\t9,5\r\n");
}

TEST_F(frmZielsucheTest, FollowsWhatIsEnteredAndChosen)
{
    click("chkSuche_Mischungsreihe");
    type("txtSuche_Ziel", "12");
    EXPECT_EQ(answers().rowCount(), 0);
    EXPECT_EQ(
        satz("lblSuche_Anteil"), "Keine Zusammensetzung hat 12 eV. Am nächsten kommt 11,65869 eV bei 100 at% Al.");
    type("txtSuche_Ziel", "12x");
    EXPECT_EQ(satz("lblSuche_Anteil").substr(0, 19), "Keine gültige Zahl");
    type("txtSuche_Ziel", "");
    EXPECT_EQ(satz("lblSuche_Anteil"), "Einen Wert eintragen, der gesucht wird.");
    type("txtSuche_Ziel", "9.5");
    EXPECT_EQ(line(0), "41,64005|58,35995") << "with a point";
    choose("cmdDichte_0", "flüssig");
    EXPECT_EQ(line(0), "53,42388|46,57612");
    type("txtProzent_0", "");
    EXPECT_EQ(satz("lblSuche_Anteil"), "Es sind nicht alle Anteile eingetragen.");
    type("txtProzent_0", "60");
    choose("cmbSuche_Komponente", "Cu");
    EXPECT_EQ(text("cmbDiagramm_Element"), "Cu");
    choose("cmbDiagramm", "Valenz");
    EXPECT_EQ(texts({"cmbSuche_Groesse", "txtSuche_Ziel", "lblSuche_Einheit"}), "Valenz|2,2|e/a");
    choose("cmbSuche_Groesse", "Fermienergie");
    EXPECT_EQ(texts({"cmbDiagramm", "lblSuche_Einheit"}), "Fermienergie|eV");
    EXPECT_EQ(grid().wertUndEinheitIn(7), find<QLineEdit>("txtSuche_Ziel").text() + " eV");
    emit grid().menuRequested(6, {});
    find<QAction>("mnuMFE_Anteil").trigger();
    EXPECT_EQ(texts({"cmbSuche_Groesse", "cmbDiagramm"}), "Plasmonenenergie|Plasmonenenergie");
    EXPECT_EQ(line(0), "60|40") << "where the value is";
    find<QTabWidget>("tabSuche").setCurrentIndex(1);
    choose("cmbDiagramm_Typ", "Messkurve");
    click("cmdDiagramm_Anteil");
    EXPECT_EQ(find<QTabWidget>("tabSuche").currentIndex(), 0) << "its question is about a part";
}

TEST_F(frmZielsucheTest, TheTernaryDiagramGivesThePointsOfTheValue)
{
    EXPECT_FALSE(find("cmdSuche_Punkte").isVisible());
    type("txtFormel", "Al50Cu30Mg20");
    QTest::keyClick(&find("txtFormel"), Qt::Key_Return);
    choose("cmbDiagramm_Typ", "3 D - ternär");
    type("txtSuche_Ziel", "9,5");
    click("cmdSuche_Punkte");
    const std::string points = clipboard();
    EXPECT_EQ(points.substr(0, points.find('\n')), "Al [at%]\tCu [at%]\tMg [at%]\r");
    EXPECT_GT(std::ranges::count(points, '\n'), 10);
    type("txtSuche_Ziel", "99");
    click("cmdSuche_Punkte");
    EXPECT_EQ(clipboard(), points) << "nothing to be copied in its place";
    type("txtSuche_Ziel", "abc");
    EXPECT_FALSE(isEnabled("cmdSuche_Punkte"));
}

TEST_F(frmZielsucheTest, ItsListsChooseBesideEveryDiagram)
{
    choose("cmbSuche_Groesse", "Valenz");
    EXPECT_EQ(texts({"cmbDiagramm", "txtSuche_Ziel", "lblSuche_Einheit"}), "Valenz|2,2|e/a");
    choose("cmbElement_2", "Si");
    click("cmdKom_0");
    choose("cmbDiagramm_Typ", "3 D - ternär");
    choose("cmbSuche_Komponente", "Cu");
    EXPECT_EQ(text("cmbSuche_Komponente"), "Cu");
    EXPECT_NE(find<QAction>("mnuRueckgaengig").text(), QStringLiteral("&Rückgängig: Diagramm: Valenz"))
        << "nothing has changed there";
    choose("cmbDiagramm_Typ", "PSE");
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(texts({"cmbDiagramm_Typ", "cmbDiagramm", "cmbSuche_Groesse"}), "2 D|Valenz|Valenz");
}

TEST_F(frmZielsucheTest, TheTabKeyGoesFromTheValueToThePageAndItsButtons)
{
    QString order;
    QWidget* focus = &find("txtSuche_Ziel");
    for (int page = 1; page >= 0; --page) {
        find<QTabWidget>("tabSuche").setCurrentIndex(page);
        type("txtSuche_Ziel", page == 0 ? "99" : "9,5"); // no answer: the message is only read
        focus->setFocus();
        do {
            QTest::keyClick(focus, Qt::Key_Tab);
            focus = find("frmZielsuche").focusWidget();
            order += focus->objectName() + ' ';
        } while (focus != &find("txtSuche_Ziel"));
    }
    EXPECT_EQ(order.toStdString(),
        "qt_tabwidget_tabbar txtSuche_Prozent tblSuche_Elemente cmdSuche_Element cmdSuche_Rangliste "
        "cmdSuche_Schliessen cmbSuche_Groesse txtSuche_Ziel "
        "qt_tabwidget_tabbar cmbSuche_Komponente chkSuche_Mischungsreihe tblSuche_Anteile cmdSuche_Schliessen "
        "cmbSuche_Groesse txtSuche_Ziel ");
}

TEST_F(frmZielsucheTest, NumbersAreShownWhole)
{
    type("txtFormel", "Al33,33333Cu33,33333Mg33,33334");
    QTest::keyClick(&find("txtFormel"), Qt::Key_Return);
    click("chkSuche_Mischungsreihe");
    choose("cmbDiagramm", "Hall-Koeffizient");
    for (const int page : {0, 1}) {
        find<QTabWidget>("tabSuche").setCurrentIndex(page);
        const QTableWidget& table = page == 0 ? answers() : elements();
        ASSERT_GT(table.rowCount(), 0);
        const QHeaderView& head = *table.horizontalHeader();
        EXPECT_EQ(head.length(), table.viewport()->width()) << page;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QString widest = cell(table, 0, column);
            EXPECT_GT(head.sectionSize(column), table.fontMetrics().horizontalAdvance(widest)) << page;
            EXPECT_GE(head.sectionSize(column), head.sectionSizeHint(column)) << page;
        }
    }
}

TEST_F(frmZielsucheTest, TheNearestElementGetsARow)
{
    find<QTabWidget>("tabSuche").setCurrentIndex(1);
    type("txtSuche_Ziel", "9,5");
    type("txtSuche_Prozent", "200");
    EXPECT_EQ(elements().rowCount(), 0);
    type("txtSuche_Prozent", "7,5");
    EXPECT_GT(elements().rowCount(), 90);
    EXPECT_EQ(satz("lblSuche_Element").substr(0, 51), "Nicht in der Liste, weil Daten fehlen: 6 Elemente (");
    const std::string nearest = elements().item(0, 0)->text().toStdString();
    EXPECT_EQ(cell(elements(), 0, 1), QStringLiteral("9,359441"));
    QTest::keyClick(&find("txtSuche_Prozent"), Qt::Key_Return);
    QTest::keyClick(&elements(), Qt::Key_Return);
    EXPECT_EQ(texts({"cmbElement_2", "txtProzent_0", "txtProzent_2"}), nearest + "|55,5|7,5");
    EXPECT_EQ(grid().wertUndEinheitIn(7), QStringLiteral("9,3594 eV"));
    undo();
    EXPECT_EQ(programm->Eingabe().anzahl(), 2);
    for (int i = 0; i < 3; ++i)
        click("cmdKom_0");
    EXPECT_FALSE(isEnabled("cmdSuche_Element"));
    EXPECT_NE(satz("lblSuche_Element").find("kein Platz"), std::string::npos);
}

} // namespace zerna
