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
            const auto element = std::make_shared<clsElement>(files, boxes);
            element->setRecord(record);
            elements.Add(element, record.symbol);
        }
        for (std::size_t i = 0; const char* const symbol : {"Al", "Cu", "Mg"}) {
            const auto& element = elements.Item(symbol);
            alloy.at(i++) = {element, 100, element->Dichte_Kristallin(), element->Valenz()};
        }
    }

    Ternaergitter grid(int groesse, int aufloesung = 1) { return ternaergitter(calc, alloy, groesse, aufloesung); }

    std::array<Legierungskomponente, 3> alloy;
    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 0;
    clsCalc calc{elements, count, parser};
};

TEST_F(TernaergitterTest, CornersArePureElementsAndTheMiddleIsTheirMean)
{
    struct Row {
        const char* name;
        int groesse;
        double al, cu, mg, mixed;
    };
    for (const auto& [name, groesse, al, cu, mg, mixed] : {
             Row{"valence", 0, 3, 1, 2, 1.7},
             {"density in g/cm³", 3, 2.7, 8.96, 1.738, 5.5414},
             {"particles per nm³, from 16.594, 11.777 and 23.222 Å³ per atom", 1, 60.26, 84.91, 43.06, 61.83},
             {"Fermi energy: 0.36465 eV·nm² times electron density to the 2/3", 8, 11.66, 7.045, 7.112, 8.122},
         }) {
        SCOPED_TRACE(name);
        const Ternaergitter gitter = grid(groesse);
        EXPECT_NEAR(gitter.wert(10, 0), al, al * 1e-3);
        EXPECT_NEAR(gitter.wert(0, 10), cu, cu * 1e-3);
        EXPECT_NEAR(gitter.wert(0, 0), mg, mg * 1e-3);
        EXPECT_NEAR(gitter.wert(2, 5), mixed, mixed * 1e-3);
    }
}

TEST_F(TernaergitterTest, EdgesAreTheSeriesOfTwoComponents)
{
    const auto& [al, cu, mg] = alloy;
    for (const int groesse : {0, 1, 2, 4, 5, 6, 7, 8, 9, 10}) {
        const Ternaergitter gitter = grid(groesse, 10);
        const Reihe alCu = konzentrationsreihe(calc, std::array{al, cu}, 0, groesse);
        const Reihe alMg = konzentrationsreihe(calc, std::array{al, mg}, 0, groesse);
        const Reihe cuMg = konzentrationsreihe(calc, std::array{cu, mg}, 0, groesse);
        for (int i = 0; i <= 100; ++i) {
            EXPECT_FLOAT_EQ(gitter.wert(i, 100 - i), alCu.at(static_cast<std::size_t>(i))) << groesse;
            EXPECT_FLOAT_EQ(gitter.wert(i, 0), alMg.at(static_cast<std::size_t>(i))) << groesse;
            EXPECT_FLOAT_EQ(gitter.wert(0, i), cuMg.at(static_cast<std::size_t>(i))) << groesse;
        }
    }
}

TEST_F(TernaergitterTest, PointsThatCannotBeComputedAreMissing)
{
    alloy[2].valenz = 0;
    const std::vector<float> hall = grid(5).werte;
    EXPECT_TRUE(istUnbekannt(hall[0]));
    EXPECT_EQ(std::count(hall.begin(), hall.end(), Unbekannt), 1);
    EXPECT_LT(wertebereich(grid(5)).max, 0);
    EXPECT_EQ(ternaerdatei({2, {"A", "B", "C"}, "eV", {-1.5F, Unbekannt, 2e-7F, 3, 1e20F, Unbekannt}}),
        "A [at%]\tB [at%]\tC [at%]\teV\r\n0\t0\t100\t-1.5\r\n0\t100\t0\t2E-7\r\n50\t0\t50\t3\r\n50\t50\t0\t1E+20\r\n");
}

TEST_F(TernaergitterTest, ErrorsOfComponentsReachTheCaller)
{
    for (const auto& [groesse, aufloesung] : {std::pair(0, 0), {0, 11}, {-1, 1}, {11, 1}})
        EXPECT_EQ(errorNumber([&, q = groesse, r = aufloesung] { grid(q, r); }), 5) << groesse << ' ' << aufloesung;
    EXPECT_EQ(errorNumber([this] { ternaergitter(calc, std::array<Legierungskomponente, 2>{}, 0, 1); }), 5);
    struct Row {
        float dichte, valenz;
        int error;
    };
    for (const auto& [dichte, valenz, error] : {Row{0, 3, 11}, {Unbekannt, 3, 5}, {2.7F, Unbekannt, 5}}) {
        alloy[0].dichte = dichte;
        alloy[0].valenz = valenz;
        EXPECT_EQ(errorNumber([this] { grid(0); }) + errorNumber([this] { grid(GroesseDichte); }), 2 * error);
    }
}

} // namespace zerna
