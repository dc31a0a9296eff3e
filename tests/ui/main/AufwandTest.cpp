#include <QAbstractItemView>

#include "support/FakeDesk.h"
#include "support/Zaehlwerk.h"

namespace zerna {

/// What one action costs, counted.
struct AufwandTest : FakeDesk {
    template <class Action>
    Zaehlwerk cost(Action&& action)
    {
        const Zaehlwerk before = zaehlwerk();
        action();
        return zaehlwerk() - before;
    }
};

TEST_F(AufwandTest, TheStartAndEveryKeyCalculateOnce)
{
    settings["Komponenten"] = "4";
    for (int row = 0; const char* const symbol : {"Al", "Cu", "Zn", "Mg", "Ni"})
        settings["Element_" + std::to_string(row++)] = symbol;
    const Zaehlwerk start = cost([this] { open(); });
    EXPECT_LE(start.rechnungen, 2);
    EXPECT_LE(start.diagramme, 1);
    choose("cmbDiagramm", "Fermienergie");
    type("Istmasse_0", "100");
    type("Istmasse_1", "300");
    for (const char* const list : {"cmdDichte_1", "cmbValenz_1"})
        choose(list, "<andere>");
    for (const char* const field : {"txtDichte_1", "txtProzent_0", "txtValenz_1"}) {
        SCOPED_TRACE(field);
        type(field, "2");
        const Zaehlwerk key = cost([&] { QTest::keyClick(&find(field), Qt::Key_5); });
        EXPECT_GE(key.zahlen, 1);
        EXPECT_LE(key.zahlen, 6);
        EXPECT_EQ(key.rechnungen, 1);
        EXPECT_EQ(key.diagramme, 1);
    }
}

TEST_F(AufwandTest, TheStartLeavesWhatIsNotSeen)
{
    open();
    for (const char* const panel : {"Pic_1_1", "Pic_1_2"})
        EXPECT_FALSE(find(panel).testAttribute(Qt::WA_Resized)) << panel << " is laid out when it is shown";
    EXPECT_EQ(find("cmbElement_0").findChild<QAbstractItemView*>(), nullptr) << "made when it is opened";
    EXPECT_EQ(find<QComboBox>("cmbElement_0").model(), find<QComboBox>("cmbElement_4").model());
    click("optButton_1_2");
    EXPECT_TRUE(find("Pic_1_2").testAttribute(Qt::WA_Resized));
}

/// Counts what is painted anew.
struct Malzaehler : QObject {
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::Paint && watched->objectName().startsWith(QLatin1String("cmdStep_")) ? 1 : 0;
        return false;
    }
    int count = 0;
};

TEST_F(AufwandTest, AnotherElementRepaintsTheStepperOfItsRowAlone)
{
    settings["Komponenten"] = "4";
    open();
    QTest::qWait(10);
    Malzaehler painted;
    qApp->installEventFilter(&painted);
    QTest::keyClick(&find("cmbElement_0"), Qt::Key_Down);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(&painted);
    EXPECT_EQ(painted.count, 2);
}

} // namespace zerna
