#include <algorithm>

#include "support/RechnerTest.h"
#include "support/Textkaesten.h"
#include "ui/diagram/PSEDiagramm.h"

namespace zerna {

struct PSEtexteTest : RechnerTest {
    PSEtexteTest() { addElements(); }

    static void checkTexts(const PSEDiagramm& diagramm, const Leinwand& leinwand)
    {
        SCOPED_TRACE(testing::Message() << leinwand.size.width() << " x " << leinwand.size.height());
        const auto texts = textkaesten(diagramm.maler(), leinwand);
        EXPECT_EQ(schlechteTexte(texts, leinwand.size), "");
        EXPECT_GT(texts.size(), 12U);
        EXPECT_GE(std::ranges::min(texts, {}, &Textkasten::size).size, 8) << "pixels";
    }
};

TEST_F(PSEtexteTest, NoTextIsCutOffOrTouchesAnother)
{
    PSEDiagramm diagramm;
    diagramm.setAnsicht({.kristallin = true});
    Leinwand leinwand;
    for (const int groesse : psegroessen()) {
        SCOPED_TRACE(groesse);
        diagramm.setElemente(elementdiagramm(elements, calc, groesse, {"Al", "Cu", "Mg"}));
        for (const auto& [width, height] : {std::pair(240, 200), {384, 510}, {640, 610}, {690, 225}, {1920, 1400}}) {
            leinwand.size = {width, height};
            leinwand.stil.rundeTeilung = !leinwand.stil.rundeTeilung;
            checkTexts(diagramm, leinwand);
        }
    }
}

} // namespace zerna
