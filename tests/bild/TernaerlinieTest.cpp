#include "bild/Ternaerlinie.h"

#include <cmath>

#include "bild/Ternaerangaben.h"
#include "core/Unbekannt.h"
#include "support/RechnerTest.h"

namespace zerna {

namespace {

/// Values of a function of the shares on a grid.
template <class Function>
Ternaergitter gitterOf(int n, Function&& value)
{
    Ternaergitter gitter{n, {"A", "B", "C"}, "eV", {}};
    for (int i = 0; i <= n; ++i) {
        for (int j = 0; i + j <= n; ++j)
            gitter.werte.push_back(static_cast<float>(value(1.0 * i / n, 1.0 * j / n)));
    }
    return gitter;
}

std::vector<Ternaerlinie> linesOf(const Ternaergitter& gitter, float value)
{
    return hoehenlinien(gitter, triangulate(gitter), value);
}

} // namespace

struct TernaerlinieTest : RechnerTest {
    TernaerlinieTest()
    {
        const struct {
            const char* symbol;
            float masse, dichte, valenz;
        } rows[] = {{"Al", 26.98F, 2.375F, 3}, {"Cu", 63.55F, 8.02F, 1}, {"Mg", 24.31F, 1.59F, 2}};
        for (const auto& row : rows) {
            ElementRecord record;
            record.symbol = row.symbol;
            record.Masse = row.masse;
            ++record.OZ;
            addElement(record);
            alloy.push_back({elements.Item(row.symbol), 100.0F / 3, row.dichte, row.valenz});
        }
    }

    std::vector<Legierungskomponente> alloy;
};

TEST_F(TernaerlinieTest, PointsHaveTheValueInTheModel)
{
    for (const int groesse : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}) {
        for (const int aufloesung : {1, 4}) {
            const Ternaerangaben angaben = ternaerangaben(calc, alloy, groesse, aufloesung);
            const Wertebereich range = wertebereich(angaben.gitter.werte);
            for (const float share : {0.05F, 0.37F, 0.5F, 0.92F}) {
                SCOPED_TRACE(angaben.titel + ", " + std::to_string(share));
                const float value = range.min + share * (range.max - range.min);
                const auto lines = hoehenlinien(angaben.gitter, triangulate(angaben.gitter), value, angaben.groesse);
                ASSERT_EQ(lines.size(), 1U);
                EXPECT_GE(lines[0].size(), 2U);
                // What 1e-4 at% change on the way over the triangle, and what rounding to single precision makes of it.
                const double tolerance = (range.max - range.min) * 1e-6 * 5 + std::abs(value) * 3e-7;
                for (const Anteile3& place : lines[0]) {
                    EXPECT_NEAR(angaben.groesse(place), value, tolerance);
                    EXPECT_NEAR(place[0] + place[1] + place[2], 1, 1e-12);
                }
            }
        }
    }
}

TEST_F(TernaerlinieTest, IsTitledWithUnitsAndWhatWasUsed)
{
    EXPECT_EQ(ternaerangaben(calc, alloy, 8, 1).titel, "Fermienergie [eV]");
    EXPECT_EQ(ternaerangaben(calc, alloy, 4, 1).titel, "Atomvolumen [nm³] (Zahl in m³)");
    alloy[2].valenz = -1.5F;
    EXPECT_EQ(ternaerangaben(calc, alloy, 0, 1).untertitel,
        "Al:\u00A02,375\u00A0g/cm³,\u00A0z\u00A0=\u00A03 · Cu:\u00A08,02\u00A0g/cm³,\u00A0z\u00A0=\u00A01 · "
        "Mg:\u00A01,59\u00A0g/cm³,\u00A0z\u00A0=\u00A0−1,5");
}

TEST(Ternaerlinien, AreJoinedAndFindTheirEnds)
{
    const auto peak = [](double a, double b) { return -std::hypot(a - 0.33, b - 0.34, 0.33 - (1 - a - b)); };
    const auto saddle = [](double a, double b) { return std::abs(a - b); };
    Ternaergitter holed = gitterOf(10, [](double a, double) { return a; });
    holed.werte.at(holed.position(5, 2)) = Unbekannt;
    const struct {
        const char* name;
        Ternaergitter gitter;
        float value;
        std::vector<bool> closed; ///< per line
    } rows[] = {
        {"around a peak", gitterOf(20, peak), -0.2F, {true}},
        {"on both sides", gitterOf(10, saddle), 0.55F, {false, false}},
        {"cut by a hole", holed, 0.55F, {false, false}},
        {"the largest value in a corner", gitterOf(10, [](double a, double) { return a; }), 1, {true}},
        {"the smallest value along an edge", gitterOf(10, [](double a, double) { return a; }), 0, {false}},
        {"above all", gitterOf(10, [](double a, double) { return a; }), 1.5F, {}},
        {"below all", gitterOf(10, [](double a, double) { return a; }), -1, {}},
        {"everywhere", gitterOf(10, [](double, double) { return 1; }), 1, {}},
    };
    for (const auto& row : rows) {
        std::vector<bool> closed;
        for (const Ternaerlinie& line : linesOf(row.gitter, row.value))
            closed.push_back(line.front() == line.back());
        EXPECT_EQ(closed, row.closed) << row.name;
    }
    const auto edge = linesOf(rows[4].gitter, 0).front();
    EXPECT_EQ(edge.size(), 11U);
    EXPECT_EQ(edge.front()[0], 0);
}

TEST(Ternaerlinien, AreATableToCopy)
{
    const Ternaergitter gitter = gitterOf(1, [](double a, double) { return a; });
    EXPECT_EQ(punktetext(gitter, linesOf(gitter, 0.25F)),
        "A [at%]\tB [at%]\tC [at%]\r\n25.0000\t0.0000\t75.0000\r\n25.0000\t75.0000\t0.0000\r\n");
    EXPECT_EQ(punktetext(gitter, linesOf(gitter, 2)), "");
}

} // namespace zerna
