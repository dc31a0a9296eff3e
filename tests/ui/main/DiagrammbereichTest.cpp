#include "ui/main/Diagrammbereich.h"

#include <QAbstractButton>
#include <QTimer>

#include <random>

#include "support/FakeDesk.h"
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

TEST_F(DiagrammbereichTest, MenuSavesThePicture)
{
    for (const auto& [type, name] : {std::pair(1, "a.png"), {2, "a.svg"}, {3, "a.pdf"}}) {
        saveDialog.answer = {(folder / "a").string(), type};
        QTimer::singleShot(0, [] {
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
                QTest::keyClick(QApplication::activePopupWidget(), key);
        });
        QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, QPoint(900, 300));
        EXPECT_GT(bytesOf(folder / name).size(), 1000U) << name;
    }
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

} // namespace zerna
