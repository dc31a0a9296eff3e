#include <QAccessible>
#include <QTableView>

#include <gmock/gmock.h>

#include "support/FakeDesk.h"
#include "support/Zugangsprotokoll.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/conDisplay.h"

namespace zerna {

/// What screen readers, braille displays and voice control are told, and what they can do.
struct ZugangTest : FakeDesk {
    QAccessibleInterface& zugang(const char* name) const { return *QAccessible::queryAccessibleInterface(&find(name)); }
    std::string said(const char* name, QAccessible::Text kind) const { return zugang(name).text(kind).toStdString(); }
    static void press(QAccessibleInterface& read, const QString& action) { read.actionInterface()->doAction(action); }
    static void press(QAccessibleInterface& read) { press(read, QAccessibleActionInterface::pressAction()); }
    void key(const char* name, int key, Qt::KeyboardModifiers held = {}) const
    {
        QTest::keyClick(&find(name), static_cast<Qt::Key>(key), held);
    }
};

TEST_F(ZugangTest, WidgetsThatPaintThemselvesSayWhatTheyAreAndWhatTheyShow)
{
    openAluminiumCopper();
    const struct {
        const char* name;
        QAccessible::Role role;
        const char* said;
        const char* value;
    } rows[] = {
        {"cmdAbout", QAccessible::Button, "Info", ""},
        {"optButton_1_0", QAccessible::RadioButton, "Rechner", ""},
        {"lblMFE_7", QAccessible::EditableText, "Fermienergie", "9,8778 eV"},
        {"conLabel_0", QAccessible::SpinBox, "Anteil von Al", "50 at%"},
        {"Label2", QAccessible::RadioButton, "Anteile in at % eintippen", ""},
        {"lblElement_0", QAccessible::StaticText, "Elementname, Komponente 1", ""},
        {"LabelPos", QAccessible::StaticText, "", ""},
        {"lblMeldung", QAccessible::StaticText, "", ""},
        {"picDiagramm", QAccessible::Grouping, "Diagramm", ""},
        {"conDisplay1", QAccessible::Chart, "Konzentrationsdiagramm: Valenz [e/a] über at% Al", ""},
        {"picPSE", QAccessible::Table, "Periodensystem", ""},
        {"PicInfo", QAccessible::Grouping, "H, Wasserstoff, Ordnungszahl 1, (1)s1", ""},
    };
    QTest::keyClick(window.get(), Qt::Key_P, Qt::AltModifier); // at once: readers ask when the focus comes
    for (const auto& [name, role, text, value] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(zugang(name).role(), role);
        EXPECT_EQ(said(name, QAccessible::Name), text);
        EXPECT_EQ(said(name, QAccessible::Value), value);
    }
    EXPECT_TRUE(zugang("optButton_1_1").state().checked);
    EXPECT_TRUE(zugang("lblMFE_7").state().readOnly);
    EXPECT_EQ(said("cmdAbout", QAccessible::Accelerator), "Alt+I");
}

TEST_F(ZugangTest, ActionsDoWhatKeysAndMouseDo)
{
    openAluminiumCopper();
    press(zugang("optButton_1_2"));
    EXPECT_FALSE(find("Pic_1_2").isVisible()) << "a dialog that opens would keep the caller waiting";
    QCoreApplication::processEvents();
    EXPECT_TRUE(find("Pic_1_2").isVisible());
    press(zugang("optButton_1_0"));
    QCoreApplication::processEvents();
    press(zugang("conLabel_0"), QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(text("txtProzent_0"), "51");
    zugang("conLabel_0").valueInterface()->setCurrentValue(70);
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "70|30");
    EXPECT_TRUE(zugang("conLabel_1").state().disabled) << "the last component takes what is left";
    EXPECT_TRUE(zugang("conLabel_1").actionInterface()->actionNames().isEmpty());
    press(zugang("lblMFE_7"), QStringLiteral("Wert kopieren"));
    press(zugang("lblMFE_7"));
    EXPECT_FALSE(find("Ergebnisdetails").isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(clipboard(), said("lblMFE_7", QAccessible::Value));
    EXPECT_TRUE(find("Ergebnisdetails").isVisible());
    find("Ergebnisdetails").close();
    type("txtProzent_0", "x");
    QAccessibleInterface& befund = zugang("lblBefund");
    EXPECT_EQ(befund.role(), QAccessible::Button);
    find("cmdAbout").setFocus();
    press(befund);
    QCoreApplication::processEvents();
    EXPECT_TRUE(find("txtProzent_0").hasFocus()) << "the line leads to the fault";
    type("txtProzent_0", "60");
    EXPECT_TRUE(befund.state().invisible);
}

TEST_F(ZugangTest, PeriodicTableIsReadCellByCell)
{
    openAluminiumCopper();
    click("optButton_1_1");
    QAccessibleInterface& read = zugang("picPSE");
    QAccessibleTableInterface& table = *read.tableInterface();
    EXPECT_EQ(read.childCount(), 103);
    EXPECT_EQ(table.columnCount(), 18);
    EXPECT_EQ(table.cellAt(0, 5), nullptr) << "between hydrogen and helium";
    QAccessibleInterface* const copper = table.cellAt(3, 10);
    ASSERT_NE(copper, nullptr);
    EXPECT_EQ(copper->text(QAccessible::Name), "Cu, Ordnungszahl 29, Kupfer, Nebengruppen, Komponente 2 der Legierung");
    EXPECT_EQ(read.child(28), copper);
    EXPECT_EQ(read.indexOfChild(copper), 28);
    EXPECT_EQ(copper->parent(), &read);
    EXPECT_EQ(read.childAt(copper->rect().center().x(), copper->rect().center().y()), copper);
    EXPECT_FALSE(copper->state().selected);
    press(*copper);
    EXPECT_TRUE(copper->state().selected);
    EXPECT_EQ(table.selectedCells(), QList{copper});
    EXPECT_EQ(copper->tableCellInterface()->rowIndex(), 3);

    find("picPSE").setFocus();
    const Zugangsprotokoll log;
    EXPECT_EQ(read.focusChild(), copper);
    key("picPSE", Qt::Key_Left);
    EXPECT_THAT(Zugangsprotokoll::told(), testing::Contains("Focus: Ni, Ordnungszahl 28, Nickel, Nebengruppen"));
}

TEST_F(ZugangTest, DiagramsAreReadPointByPoint)
{
    openAluminiumCopper();
    const Zugangsprotokoll log;
    find("conDisplay1").setFocus();
    Zugangsprotokoll::told();
    QAccessibleInterface& curve = zugang("conDisplay1");
    EXPECT_EQ(curve.childCount(), 0);
    EXPECT_THAT(said("conDisplay1", QAccessible::Description), testing::HasSubstr("at% Al von 0 bis 100"));
    key("conDisplay1", Qt::Key_Right);
    key("conDisplay1", Qt::Key_Right);
    const auto told = Zugangsprotokoll::told(); // the line below the diagram changes, too
    EXPECT_THAT(told, testing::Contains("Focus: Anteile wie eingetragen: 0,00 at% Al - 0,5 e/a").Times(1));
    EXPECT_THAT(told, testing::Contains("Name: Anteile wie eingetragen: 1,00 at% Al - 0,525 e/a").Times(2));
    ASSERT_EQ(curve.childCount(), 1);
    EXPECT_EQ(curve.focusChild(), curve.child(0));
    EXPECT_EQ(curve.child(0)->parent(), &curve);
    EXPECT_TRUE(curve.child(0)->state().focused);
    press(curve, QStringLiteral("Letzter Punkt"));
    EXPECT_EQ(said("conDisplay1", QAccessible::Value), "Anteile wie eingetragen: 100,00 at% Al - 3 e/a");
    EXPECT_THAT(curve.actionInterface()->keyBindingsForAction(QStringLiteral("Nächste Kurve")), QStringList("Down"));

    choose("cmbDiagramm_Typ", "PSE");
    find("picDiagramm").setFocus();
    EXPECT_EQ(zugang("picDiagramm").role(), QAccessible::Chart);
    key("picDiagramm", Qt::Key_Home);
    EXPECT_THAT(said("picDiagramm", QAccessible::Value), testing::StartsWith("H   OZ 1"));
    find("cmdAbout").setFocus();
    EXPECT_EQ(said("picDiagramm", QAccessible::Value), "");
    type("txtProzent_0", "x");
    choose("cmbDiagramm_Typ", "Messkurve");
    EXPECT_EQ(zugang("picDiagramm").role(), QAccessible::StaticText) << "a message in its place";
    EXPECT_THAT(said("picDiagramm", QAccessible::Name), testing::StartsWith("Diagramm: Noch keine Messkurve."));
    EXPECT_TRUE(zugang("picDiagramm").actionInterface()->actionNames().isEmpty());
}

TEST_F(ZugangTest, TernaryDiagramIsReadFromPointToPointOfItsGrid)
{
    settings["Element_2"] = "Mg";
    openAluminiumCopper();
    click("cmdKom_0");
    choose("cmbDiagramm_Typ", "3 D - ternär");
    find("picDiagramm").setFocus();
    const auto& area = find<Diagrammflaeche>("picDiagramm");
    const Ansicht before = area.ansicht();
    const QImage plain = find("picDiagramm").grab().toImage();
    key("picDiagramm", Qt::Key_Home);
    const std::string own = said("picDiagramm", QAccessible::Value);
    EXPECT_THAT(own, testing::StartsWith("Al 50,0 at%  Cu 50,0 at%  Mg 0,0 at%  -  "));
    EXPECT_NE(find("picDiagramm").grab().toImage(), plain) << "a ring around the point";
    EXPECT_EQ(text("LabelPos"), own);
    key("picDiagramm", Qt::Key_Up, Qt::ShiftModifier);
    key("picDiagramm", Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_THAT(
        said("picDiagramm", QAccessible::Value), testing::StartsWith("Al 46,0 at%  Cu 52,0 at%  Mg 2,0 at%  -  "));
    EXPECT_EQ(area.ansicht(), before) << "reading does not turn it";
    press(zugang("picDiagramm"), QStringLiteral("Ablesen: weniger Mg"));
    press(zugang("picDiagramm"), QStringLiteral("Ablesen: weniger Mg"));
    EXPECT_THAT(said("picDiagramm", QAccessible::Value), testing::HasSubstr("Mg 0,0 at%")) << "the edge";
    key("picDiagramm", Qt::Key_Left);
    EXPECT_NE(area.ansicht(), before);
}

TEST_F(ZugangTest, KeptAlloysAndAnswersAreTablesOfNamedCells)
{
    openAluminiumCopper();
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    click("optButton_1_2");
    auto* const view = find("Pic_1_2").findChild<QTableView*>();
    ASSERT_NE(view, nullptr);
    QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(view);
    EXPECT_EQ(read->role(), QAccessible::Table);
    EXPECT_EQ(read->text(QAccessible::Name), "Gemerkte Legierungen");
    QAccessibleInterface* const cell = read->tableInterface()->cellAt(0, 0);
    EXPECT_EQ(cell->text(QAccessible::Name), "Anteil Al, Al50Cu50: 50 at%");
    EXPECT_TRUE(cell->state().selectable);
}

TEST_F(ZugangTest, FieldsAreReadWholeAndFilledAsIfTyped)
{
    openAluminiumCopper();
    QAccessibleInterface& feld = zugang("txtProzent_0");
    QAccessibleTextInterface& read = *feld.textInterface();
    feld.setText(QAccessible::Value, QStringLiteral("62,5"));
    feld.editableTextInterface()->insertText(4, QStringLiteral("3"));
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "62,53|37,47");
    int start = -1;
    int end = -1;
    read.attributes(2, &start, &end);
    EXPECT_EQ(read.text(start, end), "62,53");
    for (const auto& [from, to, part] : {std::tuple(-3, 2, "62"), {3, 9, "53"}, {9, 12, ""}, {3, 1, ""}})
        EXPECT_EQ(read.text(from, to), part) << from;
    read.setSelection(0, 1, 3);
    read.selection(0, &start, &end);
    EXPECT_EQ(std::pair(start, end), std::pair(1, 3));
    EXPECT_EQ(read.offsetAtPoint(read.characterRect(2).center()), 2);
    feld.editableTextInterface()->deleteText(1, 5);
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "6|94");
    read.setCursorPosition(0);
    feld.editableTextInterface()->insertText(9, QStringLiteral("1")); // as if of a text that was longer
    feld.editableTextInterface()->deleteText(-3, -1);
    EXPECT_EQ(text("txtProzent_0"), "61");
}

TEST_F(ZugangTest, APasswordForAPrinterIsNotReadOut)
{
    open();
    QLineEdit feld(QStringLiteral("geheim"));
    QAccessibleInterface& read = *QAccessible::queryAccessibleInterface(&feld);
    EXPECT_EQ(read.text(QAccessible::Value), "geheim");
    feld.setEchoMode(QLineEdit::Password);
    EXPECT_TRUE(read.state().passwordEdit);
    for (const QString& told : {read.text(QAccessible::Value), read.textInterface()->text(0, 6)}) {
        EXPECT_EQ(told.size(), 6);
        EXPECT_FALSE(told.contains(QLatin1Char('g')));
    }
}

/// A key changes twenty results, the diagram and more.
TEST_F(ZugangTest, TypingTellsResultsOnceAndMessagesAtOnce)
{
    openAluminiumCopper();
    find("txtProzent_0").setFocus();
    const Zugangsprotokoll log;
    type("txtProzent_0", "62,5");
    EXPECT_EQ(Zugangsprotokoll::count("Value"), 0) << "while keys follow each other";
    EXPECT_EQ(Zugangsprotokoll::count("Name"), 0);
    EXPECT_EQ(Zugangsprotokoll::count("Alert"), 0);
    const auto told = Zugangsprotokoll::told();
    EXPECT_THAT(told, testing::Contains("Value: Fermienergie = " + said("lblMFE_7", QAccessible::Value)).Times(1));
    EXPECT_THAT(told, testing::Contains("Value: Anteil von Cu = 38 at%").Times(1));
    EXPECT_LT(told.size(), 30U);

    type("txtProzent_0", "xyz");
    const std::string befund = said("lblBefund", QAccessible::Name);
    EXPECT_THAT(Zugangsprotokoll::told(), testing::Contains("Alert: " + befund).Times(1));
    type("txtProzent_0", "40");
    Zugangsprotokoll::told();
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Zugangsprotokoll::count("Alert: ✓  "), 1) << "at once";
    EXPECT_EQ(said("Sollmasse_1", QAccessible::Description), "Sollmasse [mg] von Kupfer");
}

} // namespace zerna
