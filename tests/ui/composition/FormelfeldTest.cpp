#include <QMenu>

#include "support/FakeDesk.h"

namespace zerna {

struct FormelfeldTest : FakeDesk {
    void enter(const char* formula) const
    {
        type("txtFormel", formula);
        QTest::keyClick(&find("txtFormel"), Qt::Key_Return);
    }

    std::string zeile() const
    {
        const QWidget& line = find("lblFormel");
        return line.isVisible() ? line.accessibleName().toStdString() : "";
    }

    /// Number of rows, then elements and at% of the first ones.
    std::string zusammensetzung() const
    {
        return texts({"lblAnzahl", "cmbElement_0", "txtProzent_0", "cmbElement_1", "txtProzent_1"});
    }
};

TEST_F(FormelfeldTest, EnterTakesTheWholeAlloy)
{
    openAluminiumCopper();
    enter("Zr55 Cu30 Al10 Ni5");
    EXPECT_EQ(zusammensetzung(), "4|Zr|55|Cu|30");
    EXPECT_EQ(texts({"txtFormel", "cmdDichte_1", "txtProzent_3"}), "|kristallin|5"); // copper keeps its density
    EXPECT_EQ(zeile(), "");
    enter("Cu2MgAl");
    EXPECT_EQ(zusammensetzung(), "3|Cu|50|Mg|25");
    EXPECT_EQ(zeile(), "Mengen auf 100 % umgerechnet");
    find<QAction>("mnuRueckgaengig").trigger();
    EXPECT_EQ(zusammensetzung() + zeile(), "4|Zr|55|Cu|30"); // one step
    enter("Cu2MgAl");
    QTest::keyClicks(&find("txtFormel"), QStringLiteral("Al"));
    QTest::keyClick(&find("txtFormel"), Qt::Key_Z, Qt::ControlModifier); // takes the typing back, not the alloy
    EXPECT_EQ(text("txtFormel") + zusammensetzung(), "3|Cu|50|Mg|25");
    type("txtProzent_0", "40");
    EXPECT_EQ(zeile(), "");
    start(); // begins with the elements that were taken
    EXPECT_EQ(texts({"lblAnzahl", "cmbElement_0", "cmbElement_1", "cmbElement_2"}), "3|Cu|Mg|Al");
}

TEST_F(FormelfeldTest, WhatIsNoAlloyIsToldAndChangesNothing)
{
    openAluminiumCopper();
    enter("Al60Xx");
    EXPECT_EQ(zusammensetzung(), "2|Al|50|Cu|50");
    EXPECT_EQ(text("txtFormel"), "Al60Xx");
    EXPECT_EQ(zeile(), "Element \"Xx\" ist nicht bekannt (Zeichen 5). Meinten Sie Xe?");
    QTest::keyClick(&find("txtFormel"), Qt::Key_Backspace);
    EXPECT_EQ(zeile(), "Element \"X\" ist nicht bekannt (Zeichen 5)");
    QTest::keyClick(&find("txtFormel"), Qt::Key_Escape);
    EXPECT_EQ(texts({"txtFormel"}) + zeile(), "");
}

TEST_F(FormelfeldTest, FormulaInAnAtPercentFieldIsOffered)
{
    openAluminiumCopper();
    QTest::keyClick(&find("txtProzent_0"), Qt::Key_Return);
    for (const char* const field : {"txtProzent_0", "txtProzent_1"}) {
        type(field, "50");
        EXPECT_EQ(zeile(), "");
        QApplication::clipboard()->setText(QStringLiteral("Al₆₀Mg₄₀"));
        find<QLineEdit>(field).selectAll();
        QTest::keyClick(&find(field), Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(zeile(), "„Al₆₀Mg₄₀“ als ganze Legierung übernehmen (Eingabetaste)");
    }
    click("lblFormel");
    EXPECT_EQ(zusammensetzung() + zeile(), "2|Al|60|Mg|40");
    type("txtProzent_0", "Cu60Mg40");
    QTest::keyClick(&find("txtProzent_0"), Qt::Key_Return);
    EXPECT_EQ(zusammensetzung() + zeile(), "2|Cu|60|Mg|40");
}

TEST_F(FormelfeldTest, AlloyIsCopiedAsFormula)
{
    openAluminiumCopper();
    type("txtProzent_0", "60.50");
    const std::array expected{"Al60,5Cu39,5", "Al₆₀,₅Cu₃₉,₅", "Al$_{60{,}5}$Cu$_{39{,}5}$"};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        auto* const action = window->findChild<QAction*>(QStringLiteral("mnuFormel_%1").arg(i));
        action->trigger();
        EXPECT_EQ(clipboard(), expected.at(i));
    }
}

} // namespace zerna
