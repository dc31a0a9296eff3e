#include "bild/Skalentexte.h"

#include <gtest/gtest.h>

namespace zerna {

TEST(SkalentexteTest, TellValuesApartAndShareAPowerOfTen)
{
    const struct {
        const char* name;
        std::vector<double> werte;
        std::vector<std::string> texte;
        const char* einheit;
    } rows[] = {
        {"plain", {9.5, 10, 10.5}, {"9,5", "10,0", "10,5"}, "eV"},
        {"whole", {-200, 0, 200}, {"−200", "0", "200"}, "eV"},
        {"tiny and negative", {-4e-11, -3.5e-11, -3e-11}, {"−4,0", "−3,5", "−3,0"}, "10⁻¹¹ eV"},
        {"around zero", {-2e-8, 0, 2e-8}, {"−2", "0", "2"}, "10⁻⁸ eV"},
        {"huge", {1e22, 1.25e22}, {"1,00", "1,25"}, "10²² eV"},
        {"close together", {12345.62, 12345.64}, {"12345,62", "12345,64"}, "eV"},
        {"small steps of small values", {0.0021, 0.0022}, {"2,1", "2,2"}, "10⁻³ eV"},
        {"a single one", {-0.012345678}, {"−0,012346"}, "eV"},
        {"none", {}, {}, "eV"},
    };
    for (const auto& row : rows) {
        const Skalentexte texte = skalentexte(row.werte, Dezimaltrenner::Komma);
        EXPECT_EQ(texte.texte, row.texte) << row.name;
        EXPECT_EQ(texte.einheit("eV"), row.einheit) << row.name;
    }
    EXPECT_EQ(skalentexte(std::vector{0.5, 1.0}, Dezimaltrenner::Punkt).texte.front(), "0.5");
    EXPECT_EQ(skalentexte(rows[2].werte, Dezimaltrenner::Komma).text(-3.123456e-11, Dezimaltrenner::Komma), "−3,1235");
}

} // namespace zerna
