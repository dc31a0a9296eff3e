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

} // namespace zerna
