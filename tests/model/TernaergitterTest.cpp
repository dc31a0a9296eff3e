#include "model/Ternaergitter.h"

#include "core/ElementCsv.h"
#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

/// Aluminium, copper and magnesium, all crystalline.
struct TernaergitterTest : FilesTest {
    TernaergitterTest()
    {
        for (const ElementRecord& record : readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv"))) {
            elements.Add(std::make_shared<clsElement>(files, boxes), record.symbol);
            elements.Item(record.symbol)->setRecord(record);
        }
        for (const auto& [symbol, density, valence] :
            {std::tuple("Al", 2.7F, "3"), {"Cu", 8.96F, "4/4"}, {"Mg", 1.738F, "2"}}) {
            elements.Item(symbol)->setDichte(density);
            elements.Item(symbol)->setValenz_Temp(valence);
            komponenten.push_back({elements.Item(symbol), 100});
        }
    }

    Ternaergitter grid(int groesse, int aufloesung = 1)
    {
        return ternaergitter(calc, parser, komponenten, groesse, aufloesung);
    }

    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 0;
    clsCalc calc{elements, count, parser};
    std::vector<Reihenkomponente> komponenten;
};

TEST_F(TernaergitterTest, CornersArePureElementsAndTheMiddleIsTheirMean)
{
    const std::tuple<int, const char*, std::array<double, 4>> rows[] = {// pure elements, then 20, 50, 30 at%
        {0, "e/a", {3, 1, 2, 1.7}},
        {1, "1/nm³", {60.26, 84.91, 43.06, 61.83}}, // volumes per atom: 16.594, 11.777, 23.222 cubic angstroms
        {3, "g/cm³", {2.7, 8.96, 1.738, 5.5414}},
        {8, "eV", {11.66, 7.045, 7.112, 8.122}}}; // 0.36465 eV·nm² times the electron density to the power of 2/3
    for (const auto& [groesse, einheit, values] : rows) {
        const Ternaergitter gitter = grid(groesse);
        EXPECT_EQ(gitter.einheit, einheit);
        for (std::size_t i = 0; const auto& [a, b] : {std::pair(10, 0), {0, 10}, {0, 0}, {2, 5}}) {
            EXPECT_NEAR(gitter.wert(a, b), values.at(i), values.at(i) * 1e-3) << groesse << ' ' << i;
            ++i;
        }
    }
}

TEST_F(TernaergitterTest, EdgesAreTheSeriesOfTwoComponents)
{
    for (const int groesse : {0, 1, 2, 4, 5, 6, 7, 8, 9, 10}) {
        const Ternaergitter gitter = grid(groesse, 10);
        ASSERT_EQ(gitter.werte.size(), 5151U);
        for (const auto& [a, b] : {std::pair<std::size_t, std::size_t>(0, 1), {0, 2}, {1, 2}}) {
            const Reihe reihe =
                konzentrationsreihe(calc, parser, std::array{komponenten[a], komponenten[b]}, 0, groesse);
            for (int i = 0; i <= 100; ++i) {
                std::array<int, 3> percent{};
                percent.at(a) = i;
                percent.at(b) = 100 - i;
                EXPECT_FLOAT_EQ(gitter.wert(percent[0], percent[1]), reihe.at(static_cast<std::size_t>(i)))
                    << groesse << a << b;
            }
        }
    }
}

TEST_F(TernaergitterTest, PointsThatCannotBeComputedAreMissing)
{
    elements.Item("Mg")->setValenz_Temp("0");
    const Ternaergitter hall = grid(5);
    for (std::size_t i = 0; i < hall.werte.size(); ++i)
        EXPECT_EQ(istUnbekannt(hall.werte[i]), i == 0) << i;
    EXPECT_LT(wertebereich(hall).max, 0);
    EXPECT_EQ(ternaerdatei({2, {"A", "B", "C"}, "eV", {-1.5F, Unbekannt, 2e-7F, 3, 1e20F, Unbekannt}}),
        "A [at%]\tB [at%]\tC [at%]\teV\r\n0\t0\t100\t-1.5\r\n0\t100\t0\t2E-7\r\n50\t0\t50\t3\r\n50\t50\t0\t1E+20\r\n");
    EXPECT_NE(ternaerdatei(grid(0, 3)).find("\r\n3.3333333\t0\t96.666664\t0.1\r\n"), std::string::npos);
}

TEST_F(TernaergitterTest, ErrorsOfComponentsReachTheCaller)
{
    calc.setValenz(7);
    for (const auto& [groesse, aufloesung] : {std::pair(0, 0), {0, 11}, {-1, 1}, {11, 1}})
        EXPECT_EQ(errorNumber([&, q = groesse, r = aufloesung] { grid(q, r); }), 5) << groesse << ' ' << aufloesung;
    for (const auto& [density, valence, error] : {std::tuple(0.0F, "3", 11), {Unbekannt, "3", 5}, {2.7F, "1/0", 11}}) {
        elements.Item("Al")->setDichte(density);
        elements.Item("Al")->setValenz_Temp(valence);
        EXPECT_EQ(errorNumber([this] { grid(0); }) + errorNumber([this] { grid(GroesseDichte); }), 2 * error);
    }
    komponenten.pop_back();
    EXPECT_EQ(errorNumber([this] { grid(0); }), 5);
    EXPECT_EQ(calc.Valenz(), 7) << "the current alloy stays";
}

} // namespace zerna
