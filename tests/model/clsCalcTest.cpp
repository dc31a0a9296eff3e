#include "model/clsCalc.h"

#include <cmath>

#include "core/ElementCsv.h"
#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

struct clsCalcTest : FilesTest {
    using C = clsCalc; // keeps the tables short

    struct Expected {
        float (C::*quantity)() const;
        double value;
    };

    /// The shipped elements with their crystalline densities.
    clsCalcTest()
    {
        for (const ElementRecord& record : readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv"))) {
            const auto element = std::make_shared<clsElement>(files, boxes);
            element->setRecord(record);
            element->setDichte(record.Dichte_Kristallin);
            element->setValenz_Temp("z_" + record.symbol);
            elements.Add(element, record.symbol);
        }
    }

    /// Each quantity has its value but for a relative deviation.
    void expect(double relative, std::initializer_list<Expected> rows) const
    {
        for (const Expected& row : rows)
            EXPECT_NEAR((calc.*row.quantity)(), row.value, std::abs(row.value) * relative) << &row - rows.begin();
    }

    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 1;
    clsCalc calc{elements, count, parser};
};

TEST_F(clsCalcTest, FermiEnergiesOfSimpleMetals)
{
    for (const auto& [symbol, eV] : {std::pair("Cu", 7.00), {"Al", 11.7}, {"Mg", 7.08}, {"Zn", 9.47}, {"Pb", 9.47}}) {
        calc.Element_Add(0, symbol, 100);
        expect(0.03, {{&C::Fermienergie, eV}});
    }
}

TEST_F(clsCalcTest, QuantitiesOfAnAluminiumLikeMetal)
{
    calc.setValenz(3);
    calc.setTeilchenzahldichte(6.02e28F); // 1/m³, read in 1/nm³
    // Compressibility 225 GPa, shown as 1e-27 of it; energy 2.023e11 J/m³, shown as 1.602e-10 of it; thermopower twice
    // the usual value.
    expect(1e-3,
        {{&C::Fermienergie, 11.65}, {&C::Kf_2, 34.98}, {&C::Friedelwellenlaenge, 0.1796}, {&C::Plasmonenenergie, 15.78},
            {&C::HallKoeffizient, -3.456e-11}, {&C::Thermokraft, -6.29e-9}, {&C::Elektrondichte, 180.6},
            {&C::D_EF, 0.3862}, {&C::Fermitemperatur, 1.352e5}, {&C::Energie_Elektron, 6.99},
            {&C::Energie_El_System, 32.40}, {&C::Kompressionsmodul, 2.247e-16}, {&C::Raumausfuellung, 0.357},
            {&C::Atomvolumen, 1.661e-29}, {&C::Teilchenzahldichte, 60.2}});
    EXPECT_NEAR(calc.Friedelminima(0), 0.2246, 1e-4);

    calc.setValenz(1);
    calc.setTeilchenzahldichte(1); // one electron per cubic metre shows the bare factors with their odd digits
    expect(1.2e-7,
        {{&C::Plasmonenenergie, 3.7132173e-14}, {&C::Kf_2, 6.1873355e-09}, {&C::Fermienergie, 3.6464497e-19},
            {&C::Thermokraft, -2.0099074e11}, {&C::HallKoeffizient, -6.2415097e18}});
}

TEST_F(clsCalcTest, WeightsByAtomicPercentWithoutNormalising)
{
    elements.Item("Al")->setValenz_Temp("5/2");
    count = 5;
    for (int i = 0; const auto& [symbol, percent] : {std::pair("Al", 45), {"Cu", 45}, {"Zn", 0}, {"Zn", 0}, {"Zn", 0}})
        calc.Element_Add(i++, symbol, static_cast<float>(percent));
    // Volumes per atom from the lattice constants 405 and 361.5 pm; densities 2.70 and 8.96 g/cm³.
    expect(2e-3,
        {{&C::Valenz, 0.9 * 1.75}, {&C::Dichte, 0.9 * 5.83}, {&C::Atomvolumen, 0.9 * (16.61e-30 + 11.81e-30) / 2}});
    EXPECT_EQ(calc.Element_Name(1) + calc.Element_Symbol(-1), "Kupfer");
    EXPECT_EQ(calc.Element_Masse(5) + calc.Element_Prozente(-1), 0);
    count = 6;
    calc.Element_Add(0, "Al", 45);
    EXPECT_EQ(calc.Valenz(), Unbekannt);
}

TEST_F(clsCalcTest, AValenceThatIsNoNumberIsUnknown)
{
    for (const char* const text : {"1/0", "abc", "hex(3)", "1e39"}) {
        elements.Item("Al")->setValenz_Temp(text);
        calc.Element_Add(0, "Al", 100);
        EXPECT_EQ(calc.Valenz(), Unbekannt) << text;
    }
}

TEST_F(clsCalcTest, AFailedRecalculationMakesAllUnknownButKf2)
{
    calc.Element_Add(0, "Al", 100);
    const float before = calc.Kf_2();
    struct Row {
        const char* name;
        float density;
        int components;
    };
    for (const auto& [name, density, components] : {Row{"no density", 0, 1}, {"empty slot", 2.7F, 2}}) {
        SCOPED_TRACE(name);
        elements.Item("Al")->setDichte(density);
        count = components;
        calc.Element_Add(0, "Al", 0);
        // Two markers multiply to a positive number of electrons.
        expect(
            0.01, {{&C::Elektrondichte, Unbekannt}, {&C::Friedelwellenlaenge, Unbekannt}, {&C::Fermienergie, 7.3e32}});
        expect(0, {{&C::Valenz, Unbekannt}, {&C::Dichte, Unbekannt}, {&C::Atomvolumen, Unbekannt}, {&C::Kf_2, before}});
    }
    EXPECT_EQ(errorNumber([&] { calc.Element_Add(9, "Qq", 1); }), 5);
    EXPECT_EQ(errorNumber([&] { calc.Element_Add(5, "Al", 1); }), 9);
}

TEST_F(clsCalcTest, QuantitiesWithoutAValue)
{
    count = 0;
    calc.Element_Add(0, "Al", 100);
    EXPECT_EQ(calc.Valenz() + calc.Dichte(), 0);
    calc.setValenz(3); // the particle number density is unknown, so there is a negative number of electrons
    expect(0, {{&C::Fermienergie, Unbekannt}, {&C::Kf_2, Unbekannt}, {&C::Raumausfuellung, 0}});
    EXPECT_FLOAT_EQ(calc.D_EF(), -1.5e-38F);
    EXPECT_EQ(errorNumber([&] { calc.Fermitemperatur(); }), 6);
    EXPECT_EQ(calc.Friedelminima(0), Unbekannt);
    calc.setTeilchenzahldichte(6e28F);
    calc.setValenz(0);
    expect(0, {{&C::Teilchenzahldichte, 60}, {&C::Fermienergie, 0}, {&C::D_EF, 0}, {&C::Kf_2, 0}});
    expect(0, {{&C::HallKoeffizient, Unbekannt}, {&C::Friedelwellenlaenge, Unbekannt}});
}

} // namespace zerna
