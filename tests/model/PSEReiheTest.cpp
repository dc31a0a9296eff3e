#include "model/PSEReihe.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

/// A: liquid 200, crystalline 300 atoms per nm³, valence 2. B is the same, but known as a solid only.
struct PSEReiheTest : FilesTest {
    PSEReiheTest()
    {
        ElementRecord record;
        record.Masse = 6.022136F;
        record.Schmelztemperatur = 11;
        record.Siedetemperatur = 12;
        record.Valenz = 2;
        record.Dichte_Kristallin = 3;
        record.Atomradius = 16;
        record.Ionisierungsenergie = 17;
        record.Elektronegativitaet = 18;
        struct Row {
            const char* symbol;
            std::int16_t oz;
            float fluessig;
        };
        for (const auto& [symbol, oz, fluessig] : {Row{"A", 7, 2}, {"B", 9, Unbekannt}}) {
            record.OZ = oz;
            record.Dichte_Fluessig = fluessig;
            elements.Add(std::make_shared<clsElement>(files, boxes), symbol);
            elements.Item(symbol)->setRecord(record);
        }
    }

    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 1;
    clsCalc calc{elements, count, parser};
};

TEST_F(PSEReiheTest, EachCodeHasItsTitleAndValues)
{
    struct Row {
        int code;
        const char* titel;
        double value; // of A, from the textbook formulas for 400 electrons per nm³
        bool hasB; // B has what needs no liquid density
    };
    for (const auto& [code, titel, value, hasB] : {
             Row{0, "Valenz", 2, false},
             {8, "Fermienergie [eV]", 19.796, false},
             {13, "flüssige Dichte [g/cm³]", 2, false},
             {14, "kristalline Dichte [g/cm³]", 3, true},
             {15, "Masse [amu]", 6.022136, true},
             {16, "Atomradius [pm]", 16, true},
             {17, "erste Ionisierungsenergie [eV]", 17, true},
             {18, "Elektrononegativität", 18, true}, // Intended: so
             {19, "Teilchenzahldichte (flüssig) [1/cm³]", 2e23, false},
             {20, "Teilchenzahldichte (kristallin) [1/cm³]", 3e23, true},
             {21, "Teilchenzahldichte (kristallin - flüssig) [%]", 50, false},
             {22, "flüssige Dichte (kristallin - flüssig) [%]", 50, false},
         }) {
        const PSEReihe reihe = pseReihe(elements, calc, code, "davor");
        EXPECT_EQ(reihe.titel, titel);
        EXPECT_NEAR(reihe.y.at(0) / value, 1, 1e-4) << titel;
        EXPECT_EQ(istUnbekannt(reihe.y.at(1)), !hasB) << titel;
    }
    // Intended: 6,022136e23, not the 6,022142e23 of the concentration series.
    EXPECT_FLOAT_EQ(pseReihe(elements, calc, 19).y.at(0), 2e23F);
}

TEST_F(PSEReiheTest, FileLeavesElementsWithoutAValueOut)
{
    calc.setTeilchenzahldichte(5e28F);
    elements.Item("A")->setMasse(0);
    EXPECT_EQ(psedatei(pseReihe(elements, calc, 20)), "OZ\tTeilchenzahldichte (kristallin) [1/cm³]\r\n9\t3E+23\r\n");
    EXPECT_EQ(psedatei(pseReihe(elements, calc, 8)), "OZ\tFermienergie [eV]\r\n");
    elements.Item("B")->setDichte_Fluessig(0);
    EXPECT_EQ(psedatei(pseReihe(elements, calc, 22)), "OZ\tflüssige Dichte (kristallin - flüssig) [%]\r\n7\t50\r\n");
    EXPECT_FLOAT_EQ(calc.Teilchenzahldichte(), 50) << "the calculator keeps the alloy";
}

TEST_F(PSEReiheTest, TheTableShowsEachValence)
{
    EXPECT_TRUE(istUnbekannt(pseReihe(elements, calc, 0).y.at(1))) << "B has no liquid density";
    EXPECT_EQ(tafelreihe(elements, calc, 0).y, std::vector({2.F, 2.F}));
    EXPECT_EQ(tafelreihe(elements, calc, 8).y, pseReihe(elements, calc, 8).y);
}

} // namespace zerna
