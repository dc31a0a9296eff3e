#include "ui/picker/Tafelfaerbung.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"
#include "ui/picker/Elementzelle.h"
#include "ui/platform/Farben.h"

namespace zerna {

using TafelfaerbungTest = FilesTest;

TEST_F(TafelfaerbungTest, ValuesSpreadOverTheWholeScale)
{
    const Farbe lowest{68, 1, 84};
    const Farbe middle{33, 145, 140};
    const Farbe highest{253, 231, 37};
    struct Row {
        const char* name;
        std::vector<float> werte;
        std::vector<std::optional<Farbe>> expected; // none: hatched
        float kleinster;
        float groesster;
    };
    const Row rows[]{
        {"gap first", {Unbekannt, 2, -6, -2}, {{}, highest, lowest, middle}, -6, 2},
        {"all equal", {7, Unbekannt, 7}, {middle, {}, middle}, 7, 7},
        {"none known", {Unbekannt}, {{}}, 0, 0},
    };
    clsElement hydrogen(files, boxes);
    hydrogen.setEGK("H");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Tafelfaerbung faerbung({"Masse [amu]", {}, row.werte});
        for (std::size_t i = 0; i < row.werte.size(); ++i) {
            const Zellfuellung expected{row.expected.at(i), std::nullopt, !row.expected.at(i)};
            EXPECT_EQ(faerbung.fuellung(hydrogen, i, false), expected) << "no sign of the group, value " << i;
        }
        EXPECT_EQ(faerbung.skala().kleinster(), row.kleinster);
        EXPECT_EQ(faerbung.skala().groesster(), row.groesster);
    }
    EXPECT_TRUE(Tafelfaerbung(PSEReihe()).nachGruppe()) << "a series without values";
    clsElement element(files, boxes);
    const Tafelfaerbung masse({"Masse [amu]", {}, {63.546F, Unbekannt}});
    EXPECT_EQ(masse.beschreibung(element, 0), "Masse [amu]: 63,546");
    EXPECT_EQ(masse.beschreibung(element, 1), "Masse [amu]: unbekannt");
    element.setEGK("N");
    EXPECT_EQ(Tafelfaerbung().beschreibung(element, 0), "Nebengruppen");
    EXPECT_EQ(Tafelfaerbung().wert(0), std::nullopt);
}

} // namespace zerna
