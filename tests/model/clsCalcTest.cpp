#include "model/clsCalc.h"

#include <cmath>

#include <gtest/gtest.h>

#include "core/ElementCsv.h"
#include "core/Unbekannt.h"
#include "support/ErrorNumber.h"
#include "support/RecordingBoxes.h"
#include "support/TemporaryFolder.h"

namespace zerna {

namespace {

using Groesse = float (clsCalc::*)() const;

class clsCalcTest : public testing::Test {
protected:
    /// The shipped elements with their crystalline densities.
    clsCalcTest()
    {
        for (const ElementRecord& record : readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv"))) {
            auto element = std::make_shared<clsElement>(files, boxes);
            element->setRecord(record);
            element->setDichte(record.Dichte_Kristallin);
            element->setValenz_Temp("z_" + record.symbol);
            elements.Add(element, record.symbol);
        }
    }

    void compose(std::initializer_list<std::pair<const char*, float>> components)
    {
        count = static_cast<int>(components.size());
        for (int i = 0; const auto& [symbol, percent] : components)
            calc.Element_Add(i++, symbol, percent);
    }

    void expectNear(Groesse quantity, double expected, double relative) const
    {
        EXPECT_NEAR((calc.*quantity)(), expected, std::abs(expected) * relative);
    }

    Dateinummern files;
    RecordingBoxes boxes;
    ElementCollection elements;
    clsParser parser {elements, boxes};
    int count = 1;
    clsCalc calc {elements, count, parser};
};

} // namespace

TEST_F(clsCalcTest, FermiEnergiesOfSimpleMetals)
{
    for (const auto& [symbol, electronvolt] : {std::pair("Cu", 7.00), std::pair("Al", 11.7), std::pair("Mg", 7.08),
             std::pair("Zn", 9.47), std::pair("Pb", 9.47)}) {
        SCOPED_TRACE(symbol);
        compose({{symbol, 100}});
        expectNear(&clsCalc::Fermienergie, electronvolt, 0.03);
    }
}

TEST_F(clsCalcTest, QuantitiesOfAnAluminiumLikeMetal)
{
    const struct {
        const char* name;
        Groesse quantity;
        double expected;
    } rows[] = {
        {"Fermi energy, eV", &clsCalc::Fermienergie, 11.65},
        {"2kF, 1/nm", &clsCalc::Kf_2, 34.98},
        {"Friedel wavelength, nm", &clsCalc::Friedelwellenlaenge, 0.1796},
        {"plasmon energy, eV", &clsCalc::Plasmonenenergie, 15.78},
        {"Hall coefficient, m³/As", &clsCalc::HallKoeffizient, -3.456e-11},
        {"thermopower, twice the usual value, V/K²", &clsCalc::Thermokraft, -6.29e-9},
        {"electron density, e/nm³", &clsCalc::Elektrondichte, 180.6},
        {"density of states, 1/eV", &clsCalc::D_EF, 0.3862},
        {"Fermi temperature, K", &clsCalc::Fermitemperatur, 1.352e5},
        {"3/5 of the Fermi energy, eV", &clsCalc::Energie_Elektron, 6.99},
        {"2.023e11 J/m³, scaled by 1.602e-10", &clsCalc::Energie_El_System, 32.40},
        {"225 GPa, per nm³ instead of m³", &clsCalc::Kompressionsmodul, 2.247e-16},
        {"space filling", &clsCalc::Raumausfuellung, 0.357},
        {"atomic volume, m³", &clsCalc::Atomvolumen, 1.661e-29},
        {"particles, read in 1/nm³", &clsCalc::Teilchenzahldichte, 60.2},
    };
    calc.setValenz(3);
    calc.setTeilchenzahldichte(6.02e28F); // 1/m³
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        expectNear(row.quantity, row.expected, 1e-3);
    }
    EXPECT_NEAR(calc.Friedelminima(0), 0.2246, 1e-4);
    EXPECT_NEAR(calc.Friedelminima(-2), -0.1347, 1e-4);
    calc.setKf_2(1);
    EXPECT_EQ(calc.Friedelwellenlaenge(), 6.2831854F);
}

TEST_F(clsCalcTest, FactorsKeepTheirOddDigits)
{
    calc.setValenz(1);
    calc.setTeilchenzahldichte(1); // one electron per cubic metre shows the bare factors
    for (const auto& [quantity, factor] : {std::pair<Groesse, double>(&clsCalc::Plasmonenenergie, 3.7132173e-14),
             {&clsCalc::Kf_2, 6.1873355e-09}, {&clsCalc::Fermienergie, 3.6464497e-19},
             {&clsCalc::Thermokraft, -2.0099074e11}, {&clsCalc::HallKoeffizient, -6.2415097e18}})
        expectNear(quantity, factor, 1.2e-7);
}

TEST_F(clsCalcTest, WeightsByAtomicPercentWithoutNormalising)
{
    elements.Item("Al")->setValenz_Temp("5/2");
    compose({{"Al", 50}, {"Cu", 50}});
    EXPECT_EQ(calc.Valenz(), 1.75F);
    EXPECT_FLOAT_EQ(calc.Dichte(), (elements.Item("Al")->Dichte() + elements.Item("Cu")->Dichte()) / 2);
    EXPECT_NEAR(calc.Atomvolumen(), (16.60e-30 + 11.81e-30) / 2, 2e-32); // from the lattice constants 405 and 361.5 pm
    const float volume = calc.Atomvolumen();
    const float density = calc.Dichte();
    compose({{"Al", 45}, {"Cu", 45}, {"Zn", 0}});
    EXPECT_FLOAT_EQ(calc.Valenz(), 0.9F * 1.75F);
    EXPECT_FLOAT_EQ(calc.Dichte(), 0.9F * density);
    EXPECT_FLOAT_EQ(calc.Atomvolumen(), 0.9F * volume);
    EXPECT_EQ(calc.Element_Name(1) + calc.Element_Symbol(1), "KupferCu");
    EXPECT_EQ(calc.Element_Prozente(1), 45);
    EXPECT_EQ(calc.Element_Masse(3) + calc.Element_Masse(5) + calc.Element_Prozente(-1), 0);
    EXPECT_EQ(calc.Element_Name(4) + calc.Element_Symbol(5), "");
}

TEST_F(clsCalcTest, ValencesFollowTheirTextAndTheElementsItNames)
{
    elements.Item("Al")->setValenz_Temp("z_Cu");
    compose({{"Al", 100}});
    EXPECT_EQ(calc.Valenz(), 1);
    elements.Item("Cu")->setValenz(2);
    compose({{"Al", 100}});
    EXPECT_EQ(calc.Valenz(), 2);
    elements.Item("Al")->setValenz_Temp("1,5");
    compose({{"Al", 100}});
    EXPECT_EQ(calc.Valenz(), 1.5F);
    compose({{"Mg", 100}});
    EXPECT_EQ(calc.Valenz(), 2);
}

TEST_F(clsCalcTest, AFailedRecalculationMakesAllUnknownButKf2)
{
    for (const char* const text : {"", "1/0", "1+foo(1)", "abc", "hex(3)", "1e39", "density", "slot", "count"}) {
        SCOPED_TRACE(text);
        elements.Item("Al")->setValenz_Temp("3");
        elements.Item("Al")->setDichte(2.7F);
        compose({{"Al", 100}});
        const float before = calc.Kf_2();
        const bool valid = std::string_view(text).empty();
        if (text == std::string_view("density"))
            elements.Item("Al")->setDichte(0);
        else if (text == std::string_view("slot"))
            count = 2;
        else if (text == std::string_view("count"))
            count = 6;
        else
            elements.Item("Al")->setValenz_Temp(text);
        calc.Element_Add(0, "Al", valid ? 100 : 0);
        EXPECT_EQ(calc.Valenz(), valid ? 0 : Unbekannt); // an empty text is the formula 0
        EXPECT_EQ(calc.Kf_2(), valid ? 0 : before);
        if (valid)
            continue;
        EXPECT_EQ(calc.Dichte(), Unbekannt);
        EXPECT_NEAR(calc.Fermienergie(), 7.3e32, 1e31); // Intended: (−3e38)² is positive
        for (const Groesse guarded : {&clsCalc::Atomvolumen, &clsCalc::Elektrondichte, &clsCalc::Friedelwellenlaenge})
            EXPECT_EQ((calc.*guarded)(), Unbekannt);
    }
    EXPECT_EQ(errorNumber([&] { calc.Element_Add(9, "Qq", 1); }), 5);
    EXPECT_EQ(errorNumber([&] { calc.Element_Add(5, "Al", 1); }), 9);
}

TEST_F(clsCalcTest, QuantitiesWithoutAValue)
{
    count = 0;
    calc.Element_Add(0, "Al", 100);
    EXPECT_EQ(calc.Valenz(), 0);
    EXPECT_EQ(calc.Dichte(), 0);
    calc.setValenz(3); // particle number density unknown, so the electron density is negative
    EXPECT_EQ(calc.Fermienergie(), Unbekannt);
    EXPECT_EQ(calc.Kf_2(), Unbekannt);
    EXPECT_NEAR(calc.D_EF(), -1.5e-38, 1e-43);
    EXPECT_EQ(errorNumber([&] { calc.Fermitemperatur(); }), 6);
    EXPECT_EQ(calc.Friedelminima(0), Unbekannt);
    EXPECT_EQ(calc.Raumausfuellung(), 0);

    calc.setTeilchenzahldichte(6e28F);
    EXPECT_EQ(calc.Teilchenzahldichte(), 60);
    calc.setValenz(0);
    EXPECT_EQ(calc.Fermienergie(), 0);
    EXPECT_EQ(calc.D_EF(), 0);
    EXPECT_EQ(calc.HallKoeffizient(), Unbekannt);
    EXPECT_EQ(calc.Kf_2(), 0);
    EXPECT_EQ(calc.Friedelwellenlaenge(), Unbekannt);
}

} // namespace zerna
