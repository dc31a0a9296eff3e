#include "support/RechnerTest.h"
#include "support/Textkaesten.h"
#include "ui/diagram/PSEDiagramm.h"

namespace zerna {

struct PSEtexteTest : RechnerTest {
    PSEtexteTest() { addElements(); }
};

TEST_F(PSEtexteTest, NoTextIsCutOffOrTouchesAnother)
{
    PSEDiagramm diagramm;
    diagramm.setAnsicht({.kristallin = true});
    for (const int groesse : psegroessen()) {
        diagramm.setElemente(elementdiagramm(elements, calc, groesse, {"Al", "Cu", "Mg"}));
        for (const QSize size :
            {QSize(240, 200), QSize(384, 510), QSize(640, 610), QSize(690, 225), QSize(1920, 1400)}) {
            for (const bool round : {false, true}) {
                SCOPED_TRACE(testing::Message() << groesse << ", " << size.width() << " x " << size.height());
                Leinwand leinwand{size, {}};
                leinwand.stil.rundeTeilung = round;
                const auto texts = textkaesten(diagramm.maler(), leinwand);
                EXPECT_EQ(schlechteTexte(texts, size), "");
                EXPECT_GT(texts.size(), 12U);
                for (const Textkasten& text : texts)
                    EXPECT_GE(text.size, 8) << text.text.toStdString();
            }
        }
    }
}

} // namespace zerna
