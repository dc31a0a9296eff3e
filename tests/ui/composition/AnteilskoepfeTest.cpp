#include "support/FakeDesk.h"
#include "ui/button/StyledButton.h"

namespace zerna {

struct AnteilskoepfeTest : FakeDesk {
    std::string hint(const char* name) { return find(name).toolTip().toStdString(); }
};

TEST_F(AnteilskoepfeTest, MassPercentAreShownTypedAndLeftAgain)
{
    openAluminiumCopper();
    type("txtProzent_0", "60,0");
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1", "txtMasse_0", "txtMasse_1"}), "60,0|40|38,91|61,09");
    EXPECT_EQ(hint("txtMasse_0"), "38,90883 Masse %");
    EXPECT_EQ(find("txtMasse_0").focusPolicy(), Qt::NoFocus);
    const std::string fermi = text("lblMFE_7");

    click("lblMasse");
    EXPECT_TRUE(find("txtMasse_0").hasFocus()) << "the focus stays in its row";
    EXPECT_EQ(texts({"txtProzent_0", "txtMasse_0"}), "60|38,90883");
    EXPECT_FALSE(find("conLabel_0").isEnabled() && find("conLabel_0").findChild<StyledButton*>()->isEnabled());
    EXPECT_EQ(text("lblMFE_7"), fermi);
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(texts({"txtProzent_0", "txtMasse_0"}), "60,0|38,91") << "undone";
    QTest::keyClick(window.get(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(texts({"txtProzent_0", "txtMasse_0"}), "60|38,90883");
    click("Label2");
    EXPECT_EQ(texts({"txtProzent_0", "txtMasse_0"}), "60,0|38,91");

    find("Label2").setFocus();
    QTest::keyClick(&find("Label2"), Qt::Key_Right);
    type("txtMasse_0", "96");
    EXPECT_EQ(texts({"txtProzent_0", "txtProzent_1", "txtMasse_0", "txtMasse_1"}), "98,26|1,738|96|4");
    EXPECT_EQ(hint("txtMasse_1"), "Rest auf 100 Masse %");
    EXPECT_NE(text("lblMFE_7"), fermi);
    EXPECT_EQ(text("lblSumme"), "Σ 100 %");
    type("txtMasse_0", "120");
    EXPECT_EQ(text("lblSumme"), "Σ 100 %: Mehr als 100 Masse %");
    EXPECT_EQ(hint("lblSumme"), hint("txtMasse_0"));
    type("txtMasse_0", "");
    EXPECT_EQ(texts({"lblSumme", "txtProzent_0", "txtProzent_1"}), "Σ ?||");
    EXPECT_EQ(hint("txtProzent_1"), "Es sind nicht alle Anteile eingetragen");
}

} // namespace zerna
