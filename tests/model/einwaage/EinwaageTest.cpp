#include "model/einwaage/Einwaage.h"

#include <gmock/gmock.h>

#include "model/einwaage/Wiegeauskunft.h"
#include "support/RechnerTest.h"

namespace zerna {

struct EinwaageTest : RechnerTest {
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
            ElementRecord record;
            record.symbol = symbol;
            record.Masse = mass;
            addElement(record);
            calc.Element_Add(i++, symbol, percent);
        }
    }

    static auto areNear(const Masses& expected) { return testing::Pointwise(testing::FloatEq(), expected); }
};

TEST_F(EinwaageTest, TargetMassesAndBack)
{
    for (const auto& [name, alloy, total, masses, percents] : {
             std::tuple("halves", Alloy{{"Al", 26.98F, 50}, {"Cu", 63.55F, 50}}, 1000.0F,
                 Masses{298.02275F, 701.97725F}, Masses{50, 50}),
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
    for (const auto& [name, masses, atomicError, massError] : {
             std::tuple("nothing of the first", Masses{0, 5}, 11, 0),
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
    for (const auto& [name, alloy, weighed, target, percent] : {
             std::tuple("unknown", Alloy{{"A", 10, 50}, {"B", Unbekannt, 50}}, Masses{5, 5}, noMass(1), noMass(1)),
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

/// All other lines are recorded in stunde.txt.
TEST_F(EinwaageTest, LossListSaysWhichLineCannotBeComputed)
{
    setAlloy({{"A", 10, 50}, {"B", 20, 50}});
    EXPECT_THAT(verlustliste(calc, Masses{10, 20}, 10),
        testing::ElementsAre("abgewogene Gesamtmasse: 30 mg", "Masseverlust = 10 mg", "",
            "Masseverlust komplett bei A: ", "nicht berechenbar: A hat 0 mg und ist der Bezug der Rechnung", "",
            "Masseverlust komplett bei B: ", "A: 66,667 at% B: 33,333 at% "));
}

/// More of them are recorded in stunde.txt.
TEST_F(EinwaageTest, TheStateOfTheWeighingInWords)
{
    setAlloy({{"A", 10, 50}, {"B", 20, 30}, {"C", 40, 20}}); // 10 : 12 : 16
    const std::optional<float> none;
    for (const auto& [name, masses, reference, text] : {
             std::tuple("none", std::vector<Wiegung>{{10, none}, {12.5F, none}, {0.0123F, none}},
                 std::optional<Wiegebezug>(), "Noch 10 mg A, 12,5 mg B, 0,0123 mg C"),
             {"a part", {{10, 10.0F}, {12, 11.5F}, {16, none}}, {}, "Noch 0,5 mg B, 16 mg C"},
             {"all", {{10, 10.0F}, {12, 12.0F}, {16, 16.02F}}, {}, "Alles eingewogen, größte Abweichung 0,02 at%"},
             {"too much", {{10, 11.0F}, {12, none}, {16, 16.0F}}, {},
                 "Noch 12 mg B; 1 mg A zu viel (Eingabetaste: die übrigen darauf beziehen)"},
             {"matched", {{10, 11.0F}, {13.2F, 13.3F}, {17.6F, none}}, Wiegebezug{0, 11},
                 "Noch 17,6 mg C; 0,1 mg B zu viel"},
             {"changed since", {{10, 12.0F}, {13.2F, none}, {17.6F, none}}, Wiegebezug{0, 11},
                 "Die Sollmassen beziehen sich noch auf 11 mg A (Eingabetaste: neu beziehen)"},
             {"no targets", {{Unbekannt, 12.0F}, {1, none}, {1, none}}, {}, ""},
         })
        EXPECT_EQ(wiegestand(calc, masses, reference), text) << name;
    setAlloy({{"A", 10, 120}, {"B", 20, -20}});
    const std::vector<Wiegung> masses{{12, none}, {-2, none}};
    EXPECT_EQ(wiegestand(calc, masses), "B hat weniger als 0 at%, das lässt sich nicht einwiegen.");
}

TEST_F(EinwaageTest, MassesAsTexts)
{
    for (const auto& [mass, text] : {std::pair(2.980228e-7F, "2,98E-7"), {0.0123456F, "0,01235"}, {0.1F, "0,100"},
             {298.0228F, "298,023"}, {1e9F, "1000000000,000"}, {0.0F, "0,000"}, {-20.0F, "-20,000"}})
        EXPECT_EQ(massentext(mass), text);
}

} // namespace zerna
