#include "ui/pages/Diagrammbereich.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QUndoStack>

#include <random>

#include "support/FakeDesk.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/conDisplay.h"

namespace zerna {

struct DiagrammbereichTest : FakeDesk {
    DiagrammbereichTest() { openAluminiumCopper(); }

    /// What the area shows, as it is copied.
    QImage picture()
    {
        click("cmdDiagramm_Kopieren");
        return QApplication::clipboard()->image();
    }
};

TEST_F(DiagrammbereichTest, EveryEditRedrawsAndCalcKeepsTheAlloy)
{
    auto& display = find<conDisplay>("conDisplay1");
    std::string values = display.values(1);
    QImage image = picture();
    const std::pair<const char*, const char*> edits[] = {{"cmbDiagramm", "Fermienergie"}, {"cmdDichte_0", "flüssig"},
        {"cmbValenz_0", "p-Elektronen"}, {"cmbElement_0", "Zn"}, {"cmbDiagramm_Element", "Cu"}, {"txtProzent_0", "60"}};
    for (const auto& [control, entry] : edits) {
        if (std::string_view(control).starts_with("txt"))
            type(control, entry);
        else
            choose(control, entry);
        EXPECT_NE(std::exchange(values, display.values(1)), values) << control;
        EXPECT_NE(std::exchange(image, picture()), image) << control;
    }
    EXPECT_EQ(picture(), image) << "copying leaves it as it is";
    EXPECT_FLOAT_EQ(programm->Calc().Valenz(), 1.6F) << "of 60 at% zinc, not of the last step";
}

/// While an at% cannot be read, lists, picture and values are still those of the same alloy.
TEST_F(DiagrammbereichTest, ListsPictureAndValuesAgreeWhileAnAtomicPercentIsTyped)
{
    auto& display = find<conDisplay>("conDisplay1");
    type("txtProzent_0", "60");
    const auto look = [&] {
        choose("cmbDiagramm", "Fermienergie");
        choose("cmbDiagramm_Element", "Cu");
        return std::pair(display.values(1), picture());
    };
    const auto complete = look();
    choose("cmbDiagramm_Element", "Al");
    choose("cmbDiagramm", "Valenz");
    type("txtProzent_0", "");
    EXPECT_EQ(look(), complete);
    choose("cmbDiagramm_Typ", "PSE");
    choose("cmbDiagramm", "Masse");
    choose("cmbDiagramm_Typ", "2 D");
    EXPECT_EQ(look(), complete);
    choose("cmbElement_1", "Zn"); // no picture has this component yet
    EXPECT_FALSE(find("cmdDiagramm_Kopieren").isEnabled());
    EXPECT_FALSE(display.isVisible());
    choose("cmbElement_1", "Cu");
    choose("cmdDichte_1", "kristallin");
    EXPECT_EQ(look(), complete);
}

TEST_F(DiagrammbereichTest, WithoutADiagramNothingCanBeCopiedOrSaved)
{
    const auto isOffered = [this] {
        const bool isEnabled = find("cmdDiagramm_Kopieren").isEnabled();
        for (const char* const name : {"mnuDiagramm_Kopieren", "mnuDiagramm_Speichern", "mnuBild_Speichern"}) {
            auto* const action = window->findChild<QAction*>(QLatin1String(name));
            auto* const menu = qobject_cast<QMenu*>(action->associatedObjects().constFirst());
            emit menu->aboutToShow();
            EXPECT_EQ(action->isEnabled(), isEnabled) << name;
            emit menu->aboutToHide();
        }
        EXPECT_EQ(find("cmdDiagramm_Speichern").isEnabled(), isEnabled);
        return isEnabled;
    };
    EXPECT_TRUE(isOffered());
    choose("cmdDichte_0", "<andere>"); // 0
    EXPECT_FALSE(isOffered());
    type("txtProzent_0", "");
    type("txtDichte_0", "2,7"); // the alloy computed last has no density yet
    EXPECT_FALSE(isOffered());
    type("txtProzent_0", "30");
    EXPECT_TRUE(isOffered());
    click("cmdKom_1"); // one component
    EXPECT_FALSE(isOffered());
    choose("cmbDiagramm_Typ", "PSE");
    EXPECT_TRUE(isOffered());
}

TEST_F(DiagrammbereichTest, TheAreaSaysWhyThereIsNoDiagram)
{
    const auto said = [this] { return find("picDiagramm").accessibleDescription().toStdString(); };
    EXPECT_EQ(said(), "");
    choose("cmbDiagramm", "Hall-Koeffizient");
    for (const char* const list : {"cmbValenz_0", "cmbValenz_1"})
        choose(list, "<andere>"); // 0
    EXPECT_EQ(said().find("Konnte Diagramm nicht berechnen!\nUngültiger Prozeduraufruf"), 0U) << said();
    choose("cmdDichte_0", "<andere>"); // 0
    EXPECT_EQ(said(), "Konnte Diagramm nicht berechnen!\n\nDichte für Aluminium ist Null!");
}

TEST_F(DiagrammbereichTest, LeavingAndReturningKeepsQuantityAndComponent)
{
    const std::vector<const char*> lists{"cmbDiagramm_Typ", "cmbDiagramm", "cmbDiagramm_Element"};
    choose("cmbDiagramm_Element", "Cu");
    choose("cmbDiagramm", "Fermienergie");
    choose("cmbDiagramm_Typ", "PSE");
    EXPECT_EQ(texts(lists), "PSE|Fermienergie|Cu");
    choose("cmbDiagramm", "Masse");
    choose("cmbDiagramm_Typ", "2 D");
    EXPECT_EQ(texts(lists), "2 D|Fermienergie|Cu");
    choose("cmbDiagramm", "Dichte");
    choose("cmbDiagramm_Typ", "PSE");
    EXPECT_EQ(texts(lists), "PSE|Masse|Cu");
    choose("cmbDiagramm", "Atomradius");
    for (int step = 0; step < 4; ++step)
        window->verlauf().stapel().undo();
    EXPECT_EQ(texts(lists), "PSE|Masse|Cu");
    choose("cmbDiagramm_Typ", "2 D");
    EXPECT_EQ(texts(lists), "2 D|Fermienergie|Cu");
    choose("cmdDichte_0", "<andere>"); // Intended: a density puts the first component along the axis again
    EXPECT_EQ(text("cmbDiagramm_Element"), "Al");
}

TEST_F(DiagrammbereichTest, RandomEditsLeaveNoTrace)
{
    constexpr std::array Typed{"", "0", "50", "-20", "120", "1e30", "1e-30", "abc", "33,3", "3/2", "z_Cu", "foo(1)"};
    constexpr std::array Keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End};
    std::mt19937 generator(2);
    const auto random = [&generator](
                            auto count) { return static_cast<int>(generator() % static_cast<unsigned>(count)); };
    const auto any = [&random](const auto& list) { return list.at(static_cast<std::size_t>(random(list.size()))); };
    const QImage before = picture();
    const int edits = qMax(2000, qEnvironmentVariableIntValue("ZERNA_EDITS"));
    for (int i = 0; i < edits; ++i) {
        std::vector<QWidget*> widgets;
        for (QWidget* const w : window->findChildren<QWidget*>()) {
            const bool isOther = w->window() != window.get() || w->objectName() == QStringLiteral("cmdAbout");
            if (!isOther && w->isVisible() && w->isEnabled() && w->focusPolicy() != Qt::NoFocus)
                widgets.push_back(w);
        }
        QWidget* const widget = any(widgets);
        if (qobject_cast<QLineEdit*>(widget) != nullptr) {
            type(widget->objectName().toStdString().c_str(), any(Typed));
        } else if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
            QTest::mouseClick(widget, Qt::LeftButton);
        } else {
            QTest::keyClick(widget, any(Keys));
            QTest::mouseMove(window->windowHandle(), {random(window->width()), random(window->height())});
        }
        if (i % 50 == 0)
            window->resize(1 + random(1600), 1 + random(1000));
        QCoreApplication::processEvents();
    }
    for (QDialog* const opened : window->findChildren<QDialog*>())
        opened->close(); // the search marks what it finds
    window->resize(1280, 800);
    click("optButton_1_0");
    while (text("lblAnzahl") != "2")
        click("cmdKom_1");
    for (const auto& [list, entry] :
        {std::pair("cmbElement_0", "Al"), {"cmbElement_1", "Cu"}, {"cmdDichte_0", "kristallin"},
            {"cmdDichte_1", "kristallin"}, {"cmbValenz_0", "Standard"}, {"cmbValenz_1", "Standard"},
            {"cmbDiagramm_Typ", "2 D"}, {"cmbDiagramm", "Valenz"}, {"cmbDiagramm_Element", "Al"}})
        choose(list, entry);
    click("cmdKnopf1_1");
    type("txtSollMasse", "1000"); // larger ones widen the column
    click("cmdKnopf1_0");
    for (const char* const part : {"txtProzent_0", "txtMasse_0"}) // whichever is typed
        type(part, "50");
    click("Label2");
    type("txtProzent_0", "50");
    QCoreApplication::processEvents(); // the layout follows
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(text("lblMFE_7"), "9,8778 eV");
}

TEST_F(DiagrammbereichTest, SwitchesOverElementsAreRemembered)
{
    open();
    choose("cmbDiagramm_Typ", "PSE");
    choose("cmbDiagramm", "Fermienergie");
    click("chkKristallin");
    click("chkSymbole");
    click("cmdLuecken");
    const auto row =
        clipboard().find("At\tAstat\tflüssige Dichte unbekannt\r\nAt\tAstat\tkristalline Dichte unbekannt");
    EXPECT_NE(row, std::string::npos);
    EXPECT_TRUE(clipboard().starts_with("Symbol\tName\tFermienergie [eV]\r\n"));
    start();
    const auto isOn = [&](const char* name) { return find<QAbstractButton>(name).isChecked(); };
    EXPECT_TRUE(isOn("chkKristallin") && !isOn("chkSymbole"));
    EXPECT_EQ(find<Diagrammflaeche>("picDiagramm").pseAnsicht(), (PSEAnsicht{.kristallin = true, .symbole = false}));
    choose("cmbDiagramm_Typ", "PSE");
    choose("cmbDiagramm", "Masse");
    EXPECT_FALSE(find("chkKristallin").isEnabled()) << "the mass rests on no density";
    EXPECT_FALSE(find("cmdLuecken").isEnabled()) << "every element has one";
}

} // namespace zerna
