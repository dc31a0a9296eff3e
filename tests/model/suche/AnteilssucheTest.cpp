#include "model/suche/Anteilssuche.h"

#include <cmath>
#include <random>
#include <tuple>

#include "model/eingabe/Komposition.h"
#include "support/RechnerTest.h"

namespace zerna {

/// Random alloys of the shipped table: one to five components, also negative parts and typed densities.
struct AnteilssucheTest : RechnerTest {
    AnteilssucheTest() { addElements(); }

    std::size_t random(std::size_t below) { return std::uniform_int_distribution<std::size_t>(0, below - 1)(m_random); }
    double between(double low, double high) { return std::uniform_real_distribution(low, high)(m_random); }

    std::vector<Legierungskomponente> alloy()
    {
        std::vector<Legierungskomponente> result;
        for (std::size_t size = 2 + random(4); result.size() < size;) {
            const auto& element = elements.Item(static_cast<int>(1 + random(92)));
            const auto prozent = static_cast<float>(random(10) == 0 ? between(-50, 0) : between(0, 100));
            const auto dichte = static_cast<float>(between(0.5, 20));
            result.push_back({element, prozent, dichte, static_cast<float>(random(6)) / 2});
        }
        return result;
    }

    /// How many roots a scan brackets: values on both sides of the wanted one, by more than rounding, without a jump.
    static std::vector<double> bracketed(const Mischungsreihe& reihe, double ziel, int steps)
    {
        std::vector<double> places;
        const double noise = 1e-6 * std::abs(ziel);
        for (int i = 0; i < steps; ++i) {
            const double x = 100.0 * i / steps;
            const double width = 100.0 / steps;
            const float left = reihe.wert(x);
            const float right = reihe.wert(x + width);
            if (istUnbekannt(left) || istUnbekannt(right) || (left - ziel) * (right - ziel) >= 0)
                continue;
            const bool isClear = std::min(std::abs(left - ziel), std::abs(right - ziel)) > noise;
            const float middle = reihe.wert(x + width / 2);
            const bool isBetween = (middle - left) * (right - middle) >= 0 && !istUnbekannt(middle);
            if (isClear && isBetween)
                places.push_back(x + width / 2);
        }
        return places;
    }

    std::mt19937 m_random{11};
};

TEST_F(AnteilssucheTest, AgreesWithAScanOfRandomAlloys)
{
    constexpr int Steps = 200;
    constexpr double Width = 100.0 / Steps;
    std::size_t found = 0;
    for (int round = 0; round < 1000; ++round) {
        const std::vector<Legierungskomponente> komponenten = alloy();
        Anteilsfrage frage{.groesse = round % 11, .komponente = static_cast<int>(random(komponenten.size()))};
        frage.art = round % 2 == 0 ? Reihenart::Gegeben : Reihenart::Summe100;
        const Mischungsreihe reihe(calc, komponenten, frage.komponente, frage.groesse, frage.art);
        frage.ziel = static_cast<float>(reihe.wert(between(0, 100)) * (round % 7 == 0 ? between(0.5, 2) : 1));
        if (istUnbekannt(frage.ziel) || !std::isfinite(frage.ziel))
            continue;
        SCOPED_TRACE(round);
        const Zielantwort antwort = sucheAnteil(calc, komponenten, frage);
        found += antwort.loesungen.size();
        for (const Loesung& loesung : antwort.loesungen) {
            EXPECT_NEAR(loesung.wert, frage.ziel, 1e-6 * std::abs(frage.ziel));
            EXPECT_EQ(loesung.wert, reihe.wert(loesung.prozent));
        }
        for (const double place : bracketed(reihe, frage.ziel, Steps)) {
            const auto isThere = [&](const Loesung& l) { return std::abs(l.prozent - place) <= Width / 2 + 1e-4; };
            EXPECT_TRUE(antwort.ueberall || std::ranges::any_of(antwort.loesungen, isThere)) << place;
        }
        EXPECT_NE(antwort.loesungen.empty() && !antwort.ueberall, !antwort.naechste.has_value());
    }
    EXPECT_GT(found, 700U);
}

TEST_F(AnteilssucheTest, SaysWhyThereIsNothingToList)
{
    const Anteilsfrage frage{.groesse = 8, .ziel = 12};
    EXPECT_EQ(antwortsatz({{}, true, {}}, frage, "Al"), "Jede Zusammensetzung hat 12 eV.");
    EXPECT_EQ(antwortsatz({{}, false, Loesung{100 / 3.0, 10.709274F}}, frage, "Al"),
        "Keine Zusammensetzung hat 12 eV. Am nächsten kommt 10,70927 eV bei 33,33333 at% Al.");
    EXPECT_EQ(antwortsatz({}, frage, "Al"), "Die Größe hat bei keiner Zusammensetzung einen Wert.");
    EXPECT_EQ(antwortsatz({{{50, 12}}, false, {}}, frage, "Al"), "");
}

TEST_F(AnteilssucheTest, TheEndIsTheNearestThoughRoundingFavoursAPlaceBesideIt)
{
    std::vector<Legierungskomponente> alloy;
    for (const auto& [symbol, prozent] : {std::pair("Al", 40.0F), {"Cu", 35}, {"Mg", 25}}) {
        const auto& element = elements.Item(symbol);
        alloy.push_back({element, prozent, dichteFor(*element, dichteauswahl(*element).front()), element->Valenz()});
    }
    alloy.front().dichte = 2.7F;
    const Zielantwort antwort = sucheAnteil(calc, alloy, {5, -2e-10F, 0, Reihenart::Summe100});
    EXPECT_EQ(antwort.naechste.value().prozent, 0);
}

TEST_F(AnteilssucheTest, AnAnswerMeansTheCompositionThatHasTheValue)
{
    std::vector<Legierungskomponente> alloy;
    for (const auto& [symbol, prozent, dichte] : {std::tuple("Al", 50.0F, 2.7F), {"Cu", 30, 9}, {"Mg", 20, 1.7F}})
        alloy.push_back({elements.Item(symbol), prozent, dichte, 2});
    const auto parts = [&](int groesse, Reihenart art) {
        return zusammensetzung(calc, alloy, {groesse, 0, 0, art}, 10);
    };
    EXPECT_EQ(parts(8, Reihenart::Gegeben), (std::array{10.0, 27.0, 18.0, 0.0, 0.0}));
    EXPECT_EQ(parts(8, Reihenart::Summe100), (std::array{10.0, 54.0, 36.0, 0.0, 0.0}));
    // Intended: the density of the given series is that of the others in equal parts.
    EXPECT_EQ(parts(GroesseDichte, Reihenart::Gegeben), (std::array{10.0, 45.0, 45.0, 0.0, 0.0}));
}

} // namespace zerna
