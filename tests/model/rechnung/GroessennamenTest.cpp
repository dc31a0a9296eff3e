#include "model/rechnung/Groessennamen.h"

#include <gtest/gtest.h>

#include <set>

namespace zerna {

TEST(GroessennamenTest, FindsQuantitiesByWhatIsTyped)
{
    const std::tuple<const char*, Groessenart, int> rows[] = {
        // -1: none
        {"8", Groessenart::Legierung, 8},
        {"fermienergie", Groessenart::Legierung, 8},
        {"FERMIENERGIE", Groessenart::Element, 8},
        {"2kf", Groessenart::Legierung, 9},
        {"2 kF", Groessenart::Ergebnis, 9},
        {"friedelwellenlaenge", Groessenart::Legierung, 10},
        {"FRIEDEL-WELLENLÄNGE", Groessenart::Legierung, 10},
        {"mittlere dichte", Groessenart::Legierung, 3},
        {"Dichte", Groessenart::Element, -1},
        {"flüssige Dichte", Groessenart::Element, 13},
        {"dichte-kristallin-fluessig", Groessenart::Element, 22},
        {"schmelztemperatur", Groessenart::Legierung, -1},
        {"raumausfüllung", Groessenart::Legierung, -1},
        {"-1", Groessenart::Ergebnis, -1},
        {"", Groessenart::Element, -1},
        {"-", Groessenart::Element, -1},
    };
    for (const auto& [text, art, kennzahl] : rows) {
        const Groesse* const found = findeGroesse(text, art);
        EXPECT_EQ(found == nullptr ? -1 : found->kennzahl, kennzahl) << text;
    }
}

TEST(GroessennamenTest, TypedNamesMeanOneQuantityEachAndNeedNoQuotationMarks)
{
    for (const Groessenart art : {Groessenart::Ergebnis, Groessenart::Legierung, Groessenart::Element}) {
        const std::vector<std::string> namen = eingabenamen(art);
        EXPECT_EQ(std::set(namen.begin(), namen.end()).size(), namen.size());
        for (const std::string& name : namen) {
            const Groesse* const groesse = findeGroesse(name, art);
            ASSERT_NE(groesse, nullptr) << name;
            EXPECT_EQ(eingabename(*groesse), name);
            EXPECT_EQ(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"), std::string::npos) << name;
        }
    }
}

TEST(GroessennamenTest, TellsTheUnitOfWhatIsReallyPrinted)
{
    for (const auto& [name, einheit] : {std::pair("atomvolumen", "m³"), {"masse", "amu"}, {"elektronegativitaet", ""},
             {"dichte-kristallin-fluessig", "%"}, {"teilchenzahldichte-fluessig", "1/cm³"}})
        EXPECT_EQ(einheitVon(*findeGroesse(name, Groessenart::Element)), einheit) << name;
}

} // namespace zerna
