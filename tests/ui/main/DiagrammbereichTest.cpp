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

    Diagrammflaeche& area() const { return find<Diagrammflaeche>("picDiagramm"); }

    /// What the area shows, as it is copied.
    QImage picture()
    {
        click("cmdDiagramm_Kopieren");
        return QApplication::clipboard()->image();
    }

    /// The picture that has a text only.
    QImage message(const char* reason)
    {
        Diagrammflaeche other(*programm, Dialoge{saveDialog, inputBox});
        other.setFont(area().font());
        other.resize(area().size());
        other.showFehler(QString::fromUtf8(reason));
        other.copyPicture();
        return QApplication::clipboard()->image();
    }

    std::string entries(const char* list) const
    {
        std::string all;
        for (int i = 0; i < find<QComboBox>(list).count(); ++i)
            all += std::to_string(find<QComboBox>(list).itemData(i).toInt()) + ' ';
        return all;
    }

    void stepLabel(const char* label, const char* button)
    {
        QTest::mouseClick(find(label).findChild<QWidget*>(button), Qt::LeftButton);
    }

    /// Opens the menu with the right button and chooses an entry; its texts are returned.
    QString chooseFromMenu(int entry)
    {
        QString texts;
        QTimer::singleShot(0, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (const QAction* const action : menu->actions())
                texts += action->text() + '|';
            for (int i = 0; i <= entry; ++i)
                QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, area().mapTo(window.get(), QPoint(200, 200)));
        return texts;
    }
};

TEST_F(DiagrammbereichTest, EveryEditRedrawsAndCalcKeepsTheAlloy)
{
    choose("cmbDiagramm", "Fermienergie");
    std::string values = area().display().values(1);
    QImage image = picture();
    const std::pair<const char*, const char*> edits[] = {{"txtProzent_0", "60"}, {"cmdDichte_0", "flüssig"},
        {"cmbValenz_0", "p-Elektronen"}, {"cmbElement_0", "Zn"}, {"cmbDiagramm_Element", "Cu"},
        {"cmbDiagramm", "2 Kf"}};
    for (const auto& [control, entry] : edits) {
        SCOPED_TRACE(control);
        if (qobject_cast<QLineEdit*>(&find(control)) != nullptr)
            type(control, entry);
        else
            choose(control, entry);
        EXPECT_NE(std::exchange(values, area().display().values(1)), values);
        EXPECT_NE(std::exchange(image, picture()), image);
    }
    EXPECT_EQ(values.substr(0, 15), "Cu [at%]\t1/nm\r\n");
    EXPECT_EQ(picture(), image) << "copying leaves it as it is";
    EXPECT_FLOAT_EQ(programm->Calc().Valenz(), 1.6F); // 60 at% zinc with 2, copper with 1
    EXPECT_EQ(text("txtMFE_0"), "1,6");
}

TEST_F(DiagrammbereichTest, WhatCannotBeComputedSaysWhy)
{
    const QImage before = picture();
    choose("cmdDichte_1", "<andere>");
    EXPECT_EQ(picture(), message("Dichte für Kupfer ist Null!"));
    type("txtDichte_1", "");
    EXPECT_EQ(picture(), message("Dichte für Kupfer ist unbekannt!"));
    type("txtDichte_1", "8,96");
    EXPECT_EQ(picture(), before);
    choose("cmbValenz_0", "<andere>");
    type("txtValenz_0", "1/0");
    EXPECT_EQ(picture(), message("Valenz für Aluminium ist ungültig!"));
    type("txtValenz_0", "3");
    EXPECT_EQ(picture(), before);
    type("txtProzent_0", "5x");
    EXPECT_TRUE(find("conDisplay1").isVisible()) << "stays while an at% is being typed";
    type("txtProzent_0", "50");
    EXPECT_EQ(picture(), before);
    click("cmdKom_1");
    EXPECT_FALSE(find("conDisplay1").isVisible()) << "one component";
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(DiagrammbereichTest, TypesHaveTheirListsAndSteps)
{
    EXPECT_EQ(entries("cmbDiagramm"), "0 1 3 4 5 6 7 8 9 10 2 ");
    QTest::keyClick(&find("cmbDiagramm_Typ"), Qt::Key_End);
    EXPECT_EQ(entries("cmbDiagramm"), "0 19 20 21 13 14 22 2 15 16 4 11 12 17 18 5 6 7 8 9 10 ");
    auto& types = find<QComboBox>("cmbDiagramm_Typ");
    QTest::keyClick(&types, Qt::Key_Up);
    EXPECT_EQ(types.currentIndex(), 0) << "ternary needs three rows";
    EXPECT_EQ(entries("cmbDiagramm"), "0 1 3 4 2 5 6 7 8 9 10 ");
    EXPECT_FALSE(find("lblSteps").isVisible());
    EXPECT_EQ(text("lblSteps"), "Schritte: 5");
    click("cmdKom_0");
    choose("cmbDiagramm_Typ", "3 D - ternär");
    const QImage coarse = picture();
    click("cmdSteps_1");
    EXPECT_EQ(text("lblSteps"), "Auflösung: 6");
    EXPECT_NE(picture(), coarse);
    for (int i = 0; i < 5; ++i)
        click("cmdSteps_1");
    EXPECT_EQ(text("lblSteps"), "Auflösung: 1");
    click("cmdSteps_0");
    EXPECT_EQ(text("lblSteps"), "Auflösung: 10");
    EXPECT_TRUE(find("lblSteps").isVisible());
}

TEST_F(DiagrammbereichTest, ValueLabelsStepTheirRow)
{
    type("txtProzent_0", "99,6");
    stepLabel("conLabel_0", "cmdStep_1"); // 100, and so on to 0
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "0|100");
    stepLabel("conLabel_0", "cmdStep_0");
    stepLabel("conLabel_0", "cmdStep_0");
    stepLabel("conLabel_1", "cmdStep_0"); // the balance row's cannot
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "99|1");
    EXPECT_FLOAT_EQ(programm->Calc().Valenz(), 2.98F);
    EXPECT_FALSE(find("conLabel_2").isVisible());
}

TEST_F(DiagrammbereichTest, MenuCopiesAndSaves)
{
    EXPECT_EQ(chooseFromMenu(0), "Bild kopieren|Werte kopieren||Bild speichern ...|Drucken ...|");
    EXPECT_EQ(QApplication::clipboard()->image(), picture());
    chooseFromMenu(1);
    EXPECT_EQ(clipboard().substr(0, 28), "Al [at%]\te/a\r\n0\t0.5\r\n1\t0.525");
    QTest::keyClick(&find("cmbDiagramm_Typ"), Qt::Key_End);
    QTest::keyClick(&area(), Qt::Key_Right);
    EXPECT_EQ(text("LabelPos"), "H   OZ 1   1");
    QFont font = area().font();
    font.setPointSizeF(40);
    area().setFont(font);
    for (const auto& [name, type, start] :
        {std::tuple("a.png", 1, "\x89PNG"), {"a.svg", 2, "<?xml"}, {"a.pdf", 3, "%PDF"}}) {
        saveDialog.answer = {(folder / name).string(), type};
        chooseFromMenu(2);
        EXPECT_EQ(bytesOf(folder / name).substr(0, 4), std::string(start).substr(0, 4));
    }
    const std::string svg = bytesOf(folder / "a.svg");
    const std::size_t caption = svg.rfind(" y=\"", svg.find(">OZ</text>"));
    EXPECT_LT(std::stoi(svg.substr(caption + 4)), area().height()) << "no label is cut off";
}

TEST_F(DiagrammbereichTest, RandomEditsLeaveNoTrace)
{
    constexpr std::array Typed{"", "0", "50", "-20", "120", "1e30", "1e-30", "abc", "33,3", "3/2", "z_Cu", "foo(1)"};
    constexpr std::array Keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End};
    std::mt19937 generator(1);
    const auto random = [&generator](
                            auto count) { return static_cast<int>(generator() % static_cast<unsigned>(count)); };
    const int edits = qEnvironmentVariableIsSet("ZERNA_EDITS") ? qEnvironmentVariableIntValue("ZERNA_EDITS") : 2000;
    const QImage before = picture();
    for (int i = 0; i < edits; ++i) {
        QList<QWidget*> widgets = window->findChildren<QWidget*>();
        erase_if(widgets, [](auto* w) { return !w->isVisible() || !w->isEnabled() || w->objectName() == "cmdAbout"; });
        QWidget* const widget = widgets.at(random(widgets.size()));
        if (auto* const field = qobject_cast<QLineEdit*>(widget)) {
            field->setFocus();
            field->selectAll();
            QTest::keyClick(field, Qt::Key_Delete);
            QTest::keyClicks(field, Typed.at(static_cast<std::size_t>(random(Typed.size()))));
        } else if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
            QTest::mouseClick(widget, Qt::LeftButton);
        } else {
            QTest::keyClick(widget, Keys.at(static_cast<std::size_t>(random(Keys.size()))));
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
    for (const auto& [control, entry] : {std::pair("cmbElement_0", "Al"), {"cmbElement_1", "Cu"},
             {"cmdDichte_0", "kristallin"}, {"cmdDichte_1", "kristallin"}, {"cmbValenz_0", "Standard"},
             {"cmbValenz_1", "Standard"}, {"cmbDiagramm", "Valenz"}, {"cmbDiagramm_Element", "Al"}})
        choose(control, entry);
    type("txtProzent_0", "50");
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(text("lblMFE_7"), "9,8778 eV");
}

} // namespace zerna
