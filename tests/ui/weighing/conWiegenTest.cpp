#include "ui/weighing/conWiegen.h"

#include "support/FakeDesk.h"

namespace zerna {

// Masses, deviations, loss, protocol and messages are recorded in stunde.txt.
using conWiegenTest = FakeDesk;

TEST_F(conWiegenTest, NothingMovesWhileMassesCome)
{
    openAluminiumCopper();
    click("cmdKnopf1_1");
    const auto places = [this] {
        QList<QRect> all;
        for (const char* const name : {"Label_1", "Istmasse_1", "MassProzent_1", "lblHinweis", "txtVerlust"})
            all += QRect(find(name).mapTo(window.get(), QPoint(0, 0)), find(name).size());
        return all;
    };
    const QList<QRect> before = places();
    type("Istmasse_1", "305,048");
    EXPECT_EQ(find<QLineEdit>("Istmasse_0").placeholderText(), "fehlt");
    EXPECT_EQ(find("lblGesamtmasse").toolTip(), "305,048 mg");
    EXPECT_EQ(find("Istmasse_0").toolTip().toStdString(), text("lblHinweis"));
    type("Istmasse_0", "300,2");
    QTest::keyClick(&find("Istmasse_0"), Qt::Key_Return);
    EXPECT_EQ(find("Bezug_0").toolTip(), "Die übrigen Sollmassen beziehen sich auf 300,2 mg");
    choose("cmbElement_1", "Pb");
    QCoreApplication::processEvents();
    EXPECT_EQ(places(), before);
}

TEST_F(conWiegenTest, AMassThatWasTakenAwayGoesBackToItsOwnComponent)
{
    openAluminiumCopper();
    click("cmdKnopf1_1");
    type("Istmasse_0", "300");
    type("Istmasse_1", "700");
    choose("cmbElement_0", "Pb");
    choose("cmbElement_1", "Al");
    click("cmdZurueckholen");
    EXPECT_EQ(text("Istmasse_1"), "300") << "of aluminium";
    EXPECT_EQ(text("Istmasse_0"), "") << "copper is gone, and the place of aluminium is not its";
}

} // namespace zerna
