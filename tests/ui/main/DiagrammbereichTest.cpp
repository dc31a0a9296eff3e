#include "ui/main/Diagrammbereich.h"

#include <QAbstractButton>
#include <QMenu>
#include <QTimer>

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

    std::string quantities() const
    {
        std::string codes;
        for (int i = 0; i < find<QComboBox>("cmbDiagramm").count(); ++i)
            codes += find<QComboBox>("cmbDiagramm").itemData(i).toString().toStdString() + ' ';
        return codes;
    }

    /// Presses keys in the menu that the right button opens on the area; the menu's texts are returned.
    QString menu(const std::vector<Qt::Key>& keys)
    {
        QString texts;
        QTimer::singleShot(0, [&] {
            auto* const popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (const QAction* const action : popup->actions())
                texts += action->text() + '|';
            for (const Qt::Key key : keys)
                QTest::keyClick(popup, key);
        });
        QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, QPoint(900, 300));
        return texts;
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

TEST_F(DiagrammbereichTest, WhatCannotBeComputedSaysWhyUntilTheNextGoodEdit)
{
    const QImage before = picture();
    choose("cmdDichte_1", "<andere>");
    EXPECT_FALSE(find("conDisplay1").isVisible()) << "density 0";
    const QImage isZero = picture();
    type("txtDichte_1", "");
    EXPECT_NE(picture(), isZero) << "another text";
    type("txtDichte_1", "8,96");
    EXPECT_EQ(picture(), before);
    type("txtProzent_0", "5x");
    EXPECT_TRUE(find("conDisplay1").isVisible()) << "stays while an at% is being typed";
    click("cmdKom_1");
    EXPECT_FALSE(find("conDisplay1").isVisible()) << "a single component";
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(DiagrammbereichTest, TypesHaveTheirListsAndSteps)
{
    EXPECT_EQ(quantities(), "0 1 3 4 5 6 7 8 9 10 2 ");
    auto& types = find<QComboBox>("cmbDiagramm_Typ");
    QTest::keyClick(&types, Qt::Key_End);
    EXPECT_EQ(quantities(), "0 19 20 21 13 14 22 2 15 16 4 11 12 17 18 5 6 7 8 9 10 ");
    QTest::keyClick(&find("picDiagramm"), Qt::Key_Right);
    EXPECT_EQ(text("LabelPos"), "H   OZ 1   1");
    QTest::keyClick(&types, Qt::Key_Up);
    EXPECT_EQ(types.currentIndex(), 0) << "ternary needs three rows";
    EXPECT_EQ(quantities(), "0 1 3 4 2 5 6 7 8 9 10 ");
    EXPECT_EQ(text("lblSteps"), "Schritte: 5");
    click("cmdKom_0");
    QTest::keyClick(&types, Qt::Key_Down);
    const QImage coarse = picture();
    std::string captions;
    for (const char* const button : {"1", "1", "1", "1", "1", "1", "0"}) {
        click(("cmdSteps_" + std::string(button)).c_str());
        captions += text("lblSteps") + '|';
    }
    EXPECT_EQ(
        captions, "Auflösung: 6|Auflösung: 7|Auflösung: 8|Auflösung: 9|Auflösung: 10|Auflösung: 1|Auflösung: 10|");
    EXPECT_NE(picture(), coarse);
}

TEST_F(DiagrammbereichTest, ValueLabelsStepTheirRow)
{
    type("txtProzent_0", "98,6");
    struct Row {
        const char* name;
        const char* label;
        const char* button;
        const char* shown;
    };
    for (const auto& [name, label, button, shown] : {
             Row{"to the whole number", "conLabel_0", "cmdStep_1", "100|0"},
             {"over the top", "conLabel_0", "cmdStep_1", "0|100"},
             {"the balance row takes the rest", "conLabel_1", "cmdStep_0", "0|100"},
         }) {
        QTest::mouseClick(find(label).findChild<QWidget*>(button), Qt::LeftButton);
        EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), shown) << name;
    }
    EXPECT_FLOAT_EQ(programm->Calc().Valenz(), 1) << "copper";
    EXPECT_FALSE(find("conLabel_2").isVisible());
}

TEST_F(DiagrammbereichTest, MenuCopiesAndSaves)
{
    EXPECT_EQ(menu({Qt::Key_Down, Qt::Key_Return}), "Bild kopieren|Werte kopieren||Bild speichern ...|Drucken ...|");
    EXPECT_EQ(QApplication::clipboard()->image(), picture());
    menu({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(clipboard().substr(0, 28), "Al [at%]\te/a\r\n0\t0.5\r\n1\t0.525");
    for (const auto& [type, name] : {std::pair(1, "a.png"), {2, "a.svg"}, {3, "a.pdf"}}) {
        saveDialog.answer = {(folder / "a").string(), type};
        menu({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
        EXPECT_GT(bytesOf(folder / name).size(), 1000U) << name;
    }
}

TEST_F(DiagrammbereichTest, RandomEditsLeaveNoTrace)
{
    constexpr std::array Typed{"", "0", "50", "-20", "120", "1e30", "1e-30", "abc", "33,3", "3/2", "z_Cu", "foo(1)"};
    constexpr std::array Keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End};
    std::mt19937 generator(1);
    const auto random = [&generator](
                            auto count) { return static_cast<int>(generator() % static_cast<unsigned>(count)); };
    const auto any = [&random](const auto& list) { return list.at(static_cast<std::size_t>(random(list.size()))); };
    const QImage before = picture();
    const int edits = qMax(2000, qEnvironmentVariableIntValue("ZERNA_EDITS"));
    for (int i = 0; i < edits; ++i) {
        std::vector<QWidget*> widgets;
        for (QWidget* const w : window->findChildren<QWidget*>()) {
            if (w->isVisible() && w->isEnabled() && w->focusPolicy() != Qt::NoFocus && w->objectName() != "cmdAbout")
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
    window->resize(1280, 800);
    click("optButton_1_0");
    while (text("lblAnzahl") != "2")
        click("cmdKom_1");
    for (const auto& [list, entry] : {std::pair("cmbElement_0", "Al"), {"cmbElement_1", "Cu"},
             {"cmdDichte_0", "kristallin"}, {"cmdDichte_1", "kristallin"}, {"cmbValenz_0", "Standard"},
             {"cmbValenz_1", "Standard"}, {"cmbDiagramm", "Valenz"}, {"cmbDiagramm_Element", "Al"}})
        choose(list, entry);
    type("txtProzent_0", "50");
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(text("lblMFE_7"), "9,8778 eV");
}

} // namespace zerna
