#include "model/rechnung/clsCalc.h"

#include "core/Unbekannt.h"
#include "support/RechnerTest.h"

namespace zerna {

/// The values themselves are guarded by ModellTest and the transcripts.
struct clsCalcTest : RechnerTest {
    using C = clsCalc; // keeps the tables short

    struct Expected {
        float (C::*quantity)() const;
        float value;
    };

    clsCalcTest()
    {
        for (const auto& [symbol, name, masse, dichte] :
            {std::tuple("Al", "Aluminium", 27.0F, 2.7F), {"Cu", "Kupfer", 64.0F, 8.0F}}) {
            ElementRecord record;
            record.symbol = symbol;
            record.Name = name;
            record.Masse = masse;
            clsElement& element = addElement(record);
            element.setDichte(dichte);
            element.setValenz_Temp("3");
        }
    }

    void expect(std::initializer_list<Expected> rows) const
    {
        for (const Expected& row : rows)
            EXPECT_FLOAT_EQ((calc.*row.quantity)(), row.value) << &row - rows.begin();
    }
};

TEST_F(clsCalcTest, WeightsByAtomicPercentWithoutNormalising)
{
    elements.Item("Al")->setValenz_Temp("5/2");
    count = 5;
    for (int i = 0; const auto& [symbol, percent] : {std::pair("Al", 45), {"Cu", 45}, {"Cu", 0}, {"Cu", 0}, {"Cu", 0}})
        calc.Element_Add(i++, symbol, static_cast<float>(percent));
    // Volumes of 10 and 8 cm³/mol.
    expect({{&C::Valenz, 0.9F * 2.75F}, {&C::Dichte, 0.9F * 5.35F}, {&C::Atomvolumen, 0.9F * 9e-6F / 6.022142e23F}});
    EXPECT_EQ(calc.Element_Name(1) + calc.Element_Symbol(-1), "Kupfer");
    EXPECT_EQ(calc.Element_Masse(5) + calc.Element_Prozente(-1), 0);
    count = 6;
    calc.Element_Add(0, "Al", 45);
    EXPECT_EQ(calc.Valenz(), Unbekannt);
}

TEST_F(clsCalcTest, AFailedRecalculationMakesAllUnknownButKf2)
{
    calc.setBasis(6e28F, 3);
    const float before = calc.Kf_2();
    for (const auto& [name, valence, density, components] :
        {std::tuple("no density", "3", 0.0F, 1), {"empty slot", "3", 2.7F, 2}, {"no formula", "1/0", 2.7F, 1},
            {"hexadecimal", "hex(3)", 2.7F, 1}, {"too large", "1e39", 2.7F, 1}}) {
        SCOPED_TRACE(name);
        elements.Item("Al")->setDichte(density);
        elements.Item("Al")->setValenz_Temp(valence);
        count = components;
        calc.setBasis(6e28F, 3); // nobody has read its Kf_2 yet
        calc.Element_Add(0, "Al", 0);
        expect({{&C::Elektrondichte, Unbekannt}, {&C::Friedelwellenlaenge, Unbekannt}, {&C::Valenz, Unbekannt},
            {&C::Dichte, Unbekannt}, {&C::Atomvolumen, Unbekannt}, {&C::Kf_2, before}});
        EXPECT_NEAR(calc.Fermienergie(), 7.3e32, 1e31) << "two markers multiply to a positive number of electrons";
    }
    elements.Item("Al")->setValenz_Temp("3");
    calc.Element_Add(0, "Al", 3e38F);
    expect({{&C::Valenz, Unbekannt}, {&C::Dichte, Unbekannt}});
    EXPECT_EQ(errorNumber([&] { calc.Element_Add(9, "Qq", 1); }), 5);
    EXPECT_EQ(errorNumber([&] { calc.Element_Add(5, "Al", 1); }), 9);
}

TEST_F(clsCalcTest, AFormulaFollowsTheElementsThatItNames)
{
    count = 1;
    elements.Item("Al")->setValenz_Temp("z_cu/2");
    for (const float valence : {2.0F, 3.0F, Unbekannt, 4.0F}) {
        elements.Item("Cu")->setValenz(valence);
        calc.Element_Add(0, "Al", 100);
        EXPECT_EQ(calc.Valenz(), istUnbekannt(valence) ? Unbekannt : valence / 2);
    }
    auto nearer = std::make_shared<clsElement>(files, boxes);
    nearer->setValenz(5);
    elements.Add(nearer, "cu");
    calc.Element_Add(0, "Al", 100);
    EXPECT_EQ(calc.Valenz(), 2.5F) << "another element goes by that name now";
}

TEST_F(clsCalcTest, QuantitiesWithoutAValue)
{
    count = 0;
    calc.Element_Add(0, "Al", 100);
    EXPECT_EQ(calc.Valenz() + calc.Dichte(), 0);
    calc.setValenz(3); // the particle number density is unknown, so there is a negative number of electrons
    expect({{&C::Fermienergie, Unbekannt}, {&C::Kf_2, Unbekannt}, {&C::Raumausfuellung, 0}, {&C::D_EF, -1.5e-38F}});
    EXPECT_EQ(errorNumber([&] { calc.Fermitemperatur(); }), 6);
    EXPECT_EQ(calc.Friedelminima(0), Unbekannt);
    calc.setTeilchenzahldichte(6e28F); // 1/m³, read in 1/nm³
    calc.setValenz(0);
    expect({{&C::Teilchenzahldichte, 60}, {&C::Fermienergie, 0}, {&C::D_EF, 0}, {&C::Kf_2, 0},
        {&C::HallKoeffizient, Unbekannt}, {&C::Friedelwellenlaenge, Unbekannt}});
}

} // namespace zerna
