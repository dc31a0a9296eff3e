#include "model/PSEAuskunft.h"

#include <gmock/gmock.h>

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

using PSEAuskunftTest = FilesTest;

TEST_F(PSEAuskunftTest, FourteenLinesWithUnitsOrAQuestionMark)
{
    clsElement element(files, boxes);
    element.setRecord({13, 3, "Al", "Aluminium", 13, 26.98154F, 933.473F, 2792, 3, 2.377F, 2.7F, Unbekannt, 143,
        5.9858F, Unbekannt, "[Ne] (3)s2p1", {}, "H"});
    EXPECT_THAT(elementauskunft(element),
        testing::ElementsAre("Symbol: Al", "Name: Aluminium", "Masse: 26,98154 amu", "Ordnungszahl: 13", "Valenz: 3 ",
            "Schmelztemperatur: 933,473 K", "Siedetemperatur: 2792 K", "Dichte (flüssig): 2,377 g/cm³",
            "Dichte (kristallin): 2,7 g/cm³", "Dichte (amorph): ?", "Atomradius: 143 pm", "Elektronegativität: ?",
            "Ionisierungsenergie: 5,9858 eV", "Elektronenkonfiguration: [Ne] (3)s2p1"));
}

} // namespace zerna
