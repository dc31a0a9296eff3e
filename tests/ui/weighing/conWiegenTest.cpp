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

TEST_F(conWiegenTest, MassesStayWithTheirComponents)
{
    openAluminiumCopper();
    click("cmdKnopf1_1");
    type("Istmasse_0", "300");
    type("Istmasse_1", "700");
    const auto take = [this](const char* formula) {
        type("txtFormel", formula);
        QTest::keyClick(&find("txtFormel"), Qt::Key_Return);
    };
    take("Cu40Al60");
    EXPECT_EQ(texts({"Istmasse_0", "Istmasse_1", "lblAbgelegt"}), "700|300|");
    take("Pb40Al60");
    EXPECT_EQ(texts({"Istmasse_0", "Istmasse_1"}), "|300");
    EXPECT_EQ(text("lblAbgelegt"), "Gelöscht, da nicht mehr in der Legierung: Kupfer 700 mg");
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(texts({"Istmasse_0", "Istmasse_1", "lblAbgelegt"}), "700|300|") << "undone";
    take("Al60Pb40");
    take("Al60Cu40");
    EXPECT_EQ(texts({"Istmasse_0", "Istmasse_1"}), "300|") << "it may be other copper";
    EXPECT_EQ(text("lblAbgelegt"), "Gelöscht und wieder in der Legierung: Kupfer 700 mg");
    click("cmdZurueckholen");
    EXPECT_EQ(texts({"Istmasse_0", "Istmasse_1", "lblAbgelegt"}), "300|700|");
}

} // namespace zerna
