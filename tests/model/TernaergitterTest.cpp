#include "model/Ternaergitter.h"

#include "core/ElementCsv.h"
#include "core/Unbekannt.h"
#include "model/Wertebereich.h"
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

TEST_F(TernaergitterTest, EdgesAreTheSeriesOfTwoComponentsAndTheInsideIsTheMean)
{
    const auto& [al, cu, mg] = alloy;
    EXPECT_NEAR(grid(GroesseDichte).wert(2, 5), 5.5414, 1e-4) << "2,7, 8,96 and 1,738 g/cm³ as 20, 50 and 30 at%";
    EXPECT_NEAR(grid(8).wert(2, 5), 8.122, 8e-3) << "0,36465 eV·nm² times the electron density to the power of 2/3";
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
    EXPECT_LT(wertebereich(grid(5).werte).max, 0);
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
