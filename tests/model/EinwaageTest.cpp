#include "model/Einwaage.h"

#include <gmock/gmock.h>

#include "support/FilesTest.h"

namespace zerna {

struct EinwaageTest : FilesTest {
    struct Component {
        const char* symbol;
        float mass; // g/mol
        float percent; // at%
    };
    using Alloy = std::vector<Component>;
    using Masses = std::vector<float>;

    void setAlloy(const Alloy& alloy)
    {
        elements.clear();
        count = static_cast<int>(alloy.size());
        for (int i = 0; const auto& [symbol, mass, percent] : alloy) {
            const auto element = std::make_shared<clsElement>(files, boxes);
            element->setsymbol(symbol);
            element->setMasse(mass);
            elements.Add(element, symbol);
            calc.Element_Add(i++, symbol, percent);
        }
    }

    static auto areNear(const Masses& expected) { return testing::Pointwise(testing::FloatEq(), expected); }

    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 0;
    clsCalc calc{elements, count, parser};
};

TEST_F(EinwaageTest, TargetMassesAndBack)
{
    struct Row {
        const char* name;
        Alloy alloy;
        float total;
        Masses masses, percents;
    };
    for (const auto& [name, alloy, total, masses, percents] : {
             Row{"halves", {{"Al", 26.98F, 50}, {"Cu", 63.55F, 50}}, 1000, {298.02275F, 701.97725F}, {50, 50}},
             {"pure, a trace", {{"A", 10, 100}, {"B", 20, 0}}, 1e-6F, {1e-6F, 0}, {100, 0}},
             {"while at% are being typed", {{"A", 10, 120}, {"B", 20, -20}}, 8, {12, -4}, {120, -20}},
             {"three", {{"A", 10, 50}, {"B", 20, 30}, {"C", 40, 20}}, 190, {50, 60, 80}, {50, 30, 20}},
         }) {
        SCOPED_TRACE(name);
        setAlloy(alloy);
        EXPECT_THAT(sollmassen(calc, count, total), areNear(masses));
        EXPECT_THAT(gewogeneAtomprozente(calc, masses), areNear(percents));
    }
    for (const auto& [reference, mass] : {std::pair(0, 10.0F), {1, 12.0F}, {2, 16.0F}})
        EXPECT_THAT(sollmassenZu(calc, count, reference, mass), areNear({10, 12, 16}));
}

TEST_F(EinwaageTest, FirstComponentIsDividedByThoughTheResultWouldNotNeedIt)
{
    setAlloy({{"A", 10, 0}, {"B", 20, 100}});
    EXPECT_EQ(errorNumber([this] { sollmassen(calc, count, 1000); }), 11);
    struct Row {
        const char* name;
        Masses masses;
        int atomicError, massError;
    };
    for (const auto& [name, masses, atomicError, massError] : {
             Row{"nothing of the first", {0, 5}, 11, 0},
             {"as many moles less", {5, -10}, 11, 0},
             {"nothing at all", {0, 0}, 11, 6},
             {"a sum beyond a single", {3e38F, 3e38F}, 0, 6},
             {"as many milligrams less", {3, -3}, 0, 11},
         }) {
        EXPECT_EQ(errorNumber([&, m = masses] { gewogeneAtomprozente(calc, m); }), atomicError) << name;
        EXPECT_EQ(errorNumber([&, m = masses] { massenprozente(m); }), massError) << name;
    }
}

TEST_F(EinwaageTest, WithoutAnAtomicMassNothingIsComputedAndTheComponentIsNamed)
{
    using Hindernis = std::optional<Wiegehindernis>;
    const Hindernis none;
    const auto noMass = [](int k) { return Hindernis({k, "hat keine bekannte Atommasse"}); };
    struct Row {
        const char* name;
        Alloy alloy;
        Masses weighed;
        Hindernis target, percent;
    };
    for (const auto& [name, alloy, weighed, target, percent] : {
             Row{"unknown", {{"A", 10, 50}, {"B", Unbekannt, 50}}, {5, 5}, noMass(1), noMass(1)},
             {"zero", {{"A", 10, 50}, {"B", 0, 50}}, {5, 5}, noMass(1), noMass(1)},
             {"the first", {{"A", Unbekannt, 50}, {"B", 20, 50}}, {5, 0}, noMass(0), noMass(0)},
             {"without a share", {{"A", 10, 100}, {"B", Unbekannt, 0}}, {5, 0}, none, none},
             {"not a number", {{"A", 10, 50}, {"B", 20, 50}}, {5, Unbekannt}, none,
                 Hindernis({1, "hat keine gültige Masse"})},
             {"the reference", {{"A", 10, 0}, {"B", 20, 100}}, {0, 5},
                 Hindernis({0, "hat 0 at% und ist der Bezug der Rechnung"}),
                 Hindernis({0, "hat 0 mg und ist der Bezug der Rechnung"})},
         }) {
        SCOPED_TRACE(name);
        setAlloy(alloy);
        EXPECT_EQ(sollmassenHindernis(calc, count), target);
        EXPECT_EQ(atomprozentHindernis(calc, weighed), percent);
        EXPECT_EQ(errorNumber([this] { sollmassen(calc, count, 1000); }) == 0, !target);
        const bool isReadable = std::ranges::none_of(weighed, istUnbekannt);
        EXPECT_EQ(errorNumber([&, m = weighed] { gewogeneAtomprozente(calc, m); }) == 0, !percent || !isReadable);
    }
}

TEST_F(EinwaageTest, MassesAsTexts)
{
    for (const auto& [mass, text] : {std::pair(2.980228e-7F, "2,98E-7"), {0.0123456F, "0,01235"}, {0.1F, "0,100"},
             {298.0228F, "298,023"}, {1e9F, "1000000000,000"}, {0.0F, "0,000"}, {-20.0F, "-20,000"}})
        EXPECT_EQ(massentext(mass), text);
}

} // namespace zerna
