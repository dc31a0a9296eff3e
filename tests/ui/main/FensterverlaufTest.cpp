#include <QAbstractButton>
#include <QMenu>
#include <QUndoStack>

#include <cstring>
#include <functional>
#include <map>
#include <random>

#include "support/FakeDesk.h"

namespace zerna {

/// Undo and redo in the window.
struct FensterverlaufTest : FakeDesk {
    /// With all panels there, so that every view is one of all of them.
    void open()
    {
        FakeDesk::open();
        click("optButton_1_2");
        click("optButton_1_0");
    }

    QUndoStack& stapel() const { return window->verlauf().stapel(); }
    QAction& action(const char* name) const { return find<QAction>(name); }

    /// Presses keys where the focus is.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    /// What the user reads of the document in fields, lists and labels. Not what belongs to the last action alone.
    using Anblick = std::map<std::string, std::string>;
    Anblick anblick() const
    {
        static const QStringList passing{QStringLiteral("lblSteps"), QStringLiteral("lblDrei"),
            QStringLiteral("lblDichteart"), QStringLiteral("lblAbgelegt"), QStringLiteral("cmdZurueckholen"),
            QStringLiteral("LabelPos"), QStringLiteral("lblMeldung")};
        Anblick all;
        for (const QWidget* const widget : window->findChildren<QWidget*>()) {
            const bool isNamed = !widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_");
            if (!isNamed || widget->isHidden() || passing.contains(widget->objectName()))
                continue;
            QString text;
            if (const auto* const field = qobject_cast<const QLineEdit*>(widget))
                text = field->text() + QLatin1Char('|') + field->toolTip();
            else if (const auto* const list = qobject_cast<const QComboBox*>(widget))
                text = list->currentText();
            else if (qobject_cast<const QAbstractButton*>(widget) == nullptr)
                text = widget->property("text").toString();
            all[(widget->parentWidget()->objectName() + '/' + widget->objectName()).toStdString()] = text.toStdString();
        }
        return all;
    }

    /// What is seen and was not seen then.
    std::string anders(const Anblick& then) const
    {
        Anblick now = anblick();
        std::string lines;
        for (const auto& [name, was] : then) {
            if (now[name] != was)
                lines += name + ": " + was + " -> " + now[name] + '\n';
        }
        for (const auto& [name, is] : now) {
            if (!is.empty() && !then.contains(name))
                lines += name + ": " + is + '\n';
        }
        return lines;
    }
};

TEST_F(FensterverlaufTest, TypingInOneFieldIsOneNamedStep)
{
    openAluminiumCopper();
    window->verlauf().beginne();
    EXPECT_FALSE(action("mnuRueckgaengig").isEnabled());
    const Anblick before = anblick();
    type("txtProzent_0", "62,5");
    EXPECT_EQ(stapel().count(), 1);
    EXPECT_EQ(action("mnuRueckgaengig").text(), QStringLiteral("&Rückgängig: at% von Al"));
    const Anblick after = anblick();
    press(Qt::Key_Z);
    EXPECT_EQ(anders(before), "");
    EXPECT_EQ(find<QLineEdit>("txtProzent_0").selectedText(), QStringLiteral("50"));
    EXPECT_EQ(action("mnuWiederholen").text(), QStringLiteral("&Wiederholen: at% von Al"));
    press(Qt::Key_Z); // nothing is left, and the field must not go on by itself
    EXPECT_EQ(anders(before), "");
    press(Qt::Key_Y);
    EXPECT_EQ(anders(after), "");
    press(Qt::Key_Z);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(anders(after), "");
    QTest::keyClicks(QApplication::focusWidget(), "7"); // in place of what has come back
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "7|93");
    EXPECT_EQ(stapel().count(), 2);
    find("cmdDichte_0").setFocus();
    find("txtProzent_0").setFocus();
    QTest::keyClicks(&find("txtProzent_0"), "1");
    EXPECT_EQ(stapel().count(), 3);
}

TEST_F(FensterverlaufTest, AnElementChosenByMistakeComesBackWithWhatWasTypedForIt)
{
    openAluminiumCopper();
    click("cmdKnopf1_1");
    choose("cmdDichte_0", "<andere>");
    type("txtDichte_0", "2,5");
    choose("cmbValenz_0", "<andere>");
    type("txtValenz_0", "5/2");
    type("Istmasse_0", "100");
    choose("cmbDiagramm", "Fermienergie");
    choose("cmbDiagramm_Element", "Cu");
    const Anblick before = anblick();
    choose("cmbElement_0", "Zn");
    EXPECT_EQ(texts({"txtDichte_0", "txtValenz_0", "Istmasse_0", "cmbDiagramm_Element"}), "6,559|2||Zn");
    EXPECT_TRUE(find("cmdZurueckholen").isVisible());
    action("mnuRueckgaengig").trigger();
    EXPECT_EQ(anders(before), "");
    EXPECT_FALSE(find("cmdZurueckholen").isVisible());
    EXPECT_EQ(settings["Element_0"], "Al");
    action("mnuWiederholen").trigger();
    click("cmdZurueckholen");
    EXPECT_EQ(action("mnuRueckgaengig").text(), QStringLiteral("&Rückgängig: Istmassen zurückholen"));
    EXPECT_EQ(text("Istmasse_0"), "100");
}

/// The field keeps the focus, and its row the typing, whatever was looked up in the state that comes back.
TEST_F(FensterverlaufTest, TypingGoesOnInTheRowOfTheField)
{
    openAluminiumCopper();
    choose("cmdDichte_1", "<andere>");
    choose("cmbValenz_0", "<andere>");
    type("txtDichte_1", "5");
    press(Qt::Key_Z);
    QTest::keyClicks(QApplication::focusWidget(), "6");
    const std::string dichte = text("lblMFE_2");
    type("txtDichte_1", "6");
    EXPECT_EQ(text("lblMFE_2"), dichte);
    EXPECT_NE(dichte, "");
}

TEST_F(FensterverlaufTest, AnElementTypedLetterByLetterIsOneStep)
{
    openAluminiumCopper();
    window->verlauf().beginne();
    find("cmbElement_0").setFocus();
    QTest::keyClicks(&find("cmbElement_0"), "zn");
    EXPECT_EQ(text("lblElement_0"), "Zink");
    EXPECT_EQ(stapel().undoText(), QStringLiteral("Element Zn"));
    press(Qt::Key_Z);
    EXPECT_EQ(texts({"cmbElement_0", "lblElement_0"}), "Al|Aluminium");
}

TEST_F(FensterverlaufTest, TheBalanceRowLeavesNoStepAndOneButtonMakesOne)
{
    openAluminiumCopper();
    window->verlauf().beginne();
    type("txtProzent_1", "12");
    EXPECT_EQ(stapel().count(), 1);
    click("txtProzent_0");
    EXPECT_EQ(stapel().count(), 0);
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1"}), "50|50");
    choose("cmbDiagramm_Typ", "3 D - ternär"); // not with two
    EXPECT_EQ(stapel().count(), 0);
    click("lblDrei");
    EXPECT_EQ(texts({"lblAnzahl", "cmbDiagramm_Typ"}), "3|3 D - ternär");
    EXPECT_EQ(stapel().undoText(), QStringLiteral("Drei Komponenten"));
    EXPECT_EQ(stapel().count(), 1);
    stapel().undo();
    EXPECT_EQ(texts({"lblAnzahl", "cmbDiagramm_Typ"}), "2|2 D");
}

TEST_F(FensterverlaufTest, AViewIsTurnedInOneStepPerMovement)
{
    settings["Komponenten"] = "2";
    open();
    choose("cmbDiagramm_Typ", "3 D - ternär");
    window->verlauf().beginne();
    const Ansicht first = programm->Dokument().diagramm.ansicht;
    auto& area = find("picDiagramm");
    for (int drag = 0; drag < 2; ++drag) {
        QTest::mousePress(&area, Qt::LeftButton, {}, {100, 100});
        for (int way = 1; way < 5; ++way)
            QTest::mouseMove(&area, {100 + 5 * way, 100});
        QTest::mouseRelease(&area, Qt::LeftButton, {}, {120, 100});
    }
    area.setFocus();
    QTest::keyClicks(&area, "++");
    EXPECT_EQ(stapel().count(), 3);
    while (stapel().canUndo())
        stapel().undo();
    EXPECT_EQ(programm->Dokument().diagramm.ansicht, first);
}

TEST_F(FensterverlaufTest, WhatComesBackIsSeen)
{
    openAluminiumCopper();
    click("cmdKnopf1_1");
    type("txtSollMasse", "500");
    click("cmdKnopf1_0");
    choose("cmbDiagramm", "Fermienergie");
    click("optButton_1_1");
    press(Qt::Key_Z);
    EXPECT_TRUE(find("cmbDiagramm").isVisible());
    press(Qt::Key_Z);
    EXPECT_TRUE(find("txtSollMasse").isVisible());
    EXPECT_EQ(text("txtSollMasse"), "1000");
    click("optButton_1_0");
    type("txtFormel", "Al6"); // belongs to the document once it has been taken
    press(Qt::Key_Z);
    EXPECT_EQ(text("txtFormel") + '|' + std::to_string(stapel().index()), "|2");
    type("txtMFE_0", "12"); // exploring is no part of the document
    EXPECT_EQ(stapel().index(), 2);
}

TEST_F(FensterverlaufTest, AFieldOffersTheStepsOfTheDocumentInItsMenu)
{
    openAluminiumCopper();
    for (const auto& [name, isOwn] : {std::pair("txtProzent_0", false), {"txtMFE_0", true}}) {
        auto& field = find<QLineEdit>(name);
        type(name, "9");
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, field.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&field, &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(menu->actions().contains(&action("mnuRueckgaengig")), !isOwn);
        EXPECT_TRUE(menu->actions().at(0)->isEnabled() && !menu->actions().at(1)->isEnabled());
        menu->close();
    }
    press(Qt::Key_Z); // takes back what was typed there
    EXPECT_NE(text("txtMFE_0"), "9");
    EXPECT_EQ(text("txtProzent_0"), "9");
}

TEST_F(FensterverlaufTest, AnAmpersandInANameMarksNoKey)
{
    open();
    programm->Dokument().titel = "x";
    window->verlauf().geschehen({QStringLiteral("„A&B“ laden")});
    EXPECT_EQ(action("mnuRueckgaengig").text(), QStringLiteral("&Rückgängig: „A&&B“ laden"));
}

/// Every state on the way back and forth is one that was seen, in the document and on the screen.
TEST_F(FensterverlaufTest, FiveThousandRandomCommandsLeadBackAndForth)
{
    std::mt19937 dice(4711); // NOLINT(cert-msc51-cpp): the same commands every time
    const auto below = [&](int count) { return static_cast<int>(dice() % static_cast<unsigned>(count)); };
    const auto name = [](const char* what, int row) { return what + std::to_string(row); };
    // What is typed into the balance row lasts as long as the focus stays there, which undo may end.
    const auto isBalance = [&](const std::string& field) {
        return field == name("txtProzent_", programm->Eingabe().anzahl() - 1);
    };
    const auto key = [&](const std::string& field, const char* keys) {
        auto& widget = find(field.c_str());
        if (!widget.isVisible() || !widget.isEnabled() || isBalance(field))
            return;
        widget.setFocus();
        QTest::keyClick(&widget, keys[static_cast<std::size_t>(below(static_cast<int>(std::strlen(keys))))]);
    };
    const auto pick = [&](const std::string& list) {
        auto& box = find<QComboBox>(list.c_str());
        if (!box.isVisible() || box.count() < 2)
            return;
        const int target = below(box.count());
        box.setFocus();
        box.setCurrentIndex(target > 0 ? target - 1 : 1);
        QTest::keyClick(&box, target > 0 ? Qt::Key_Down : Qt::Key_Up);
    };
    const std::function<void()> commands[] = {
        [&] { key(name("txtProzent_", below(5)), "0123456789,-x\b"); },
        [&] { key(name("txtDichte_", below(5)), "0123456789,x\b"); },
        [&] { key(name("txtValenz_", below(5)), "0123456789+*\b"); },
        [&] { pick(name("cmbElement_", below(5))); },
        [&] { pick(name("cmdDichte_", below(5))); },
        [&] { pick(name("cmbValenz_", below(5))); },
        [&] { pick("cmbDichteart"); },
        [&] { action(below(2) == 0 ? "mnuKom_0" : "mnuKom_1").trigger(); },
        [&] { action("mnuMasse").trigger(); },
        [&] { action("mnuVergleich_Merken").trigger(); },
        [&] { type("txtFormel", below(2) == 0 ? "Al60Cu40\r" : "Fe 18Cr 8,5Ni wt%\r"); },
        [&] { key(name("Istmasse_", below(5)), "0123456789,x\b\r"); },
        [&] { key(below(2) == 0 ? "txtSollMasse" : "txtVerlust", "0123456789,x\b"); },
        [&] { action("mnuZurueckholen").trigger(); },
        [&] { pick("cmbDiagramm_Typ"); },
        [&] { pick("cmbDiagramm"); },
        [&] { pick("cmbDiagramm_Element"); },
        [&] { action("mnuSteps_1").trigger(); },
        [&] { key("picDiagramm", "+-"); },
        [&] { action(below(3) == 0 ? "mnuArea_0" : "mnuArea_1").trigger(); },
        [&] { stapel().undo(); },
    };
    settings["Komponenten"] = "2";
    open();
    for (int round = 0; round < 5; ++round) {
        struct Stand {
            Dokument dokument;
            Anblick anblick;
        };
        std::vector<Stand> seen;
        const auto look = [&] { return Stand{programm->Dokument(), anblick()}; };
        window->verlauf().beginne();
        seen.push_back(look());
        for (int command = 0; command < Verlauf::Grenze; ++command) {
            commands[below(std::size(commands))]();
            seen.resize(static_cast<std::size_t>(stapel().count()) + 1, seen.front());
            seen[static_cast<std::size_t>(stapel().index())] = look();
        }
        const auto check = [&](const char* way) {
            const Stand& expected = seen.at(static_cast<std::size_t>(stapel().index()));
            ASSERT_EQ(programm->Dokument() == expected.dokument, true) << way << stapel().index();
            ASSERT_EQ(anders(expected.anblick), "") << way << stapel().index();
        };
        EXPECT_GT(stapel().count(), 200);
        for (; stapel().canUndo() && !HasFailure(); check("back to "))
            stapel().undo();
        for (; stapel().canRedo() && !HasFailure(); check("forth to "))
            stapel().redo();
    }
}

} // namespace zerna
