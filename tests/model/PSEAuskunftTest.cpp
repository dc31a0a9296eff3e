#include "model/PSEAuskunft.h"

#include <algorithm>

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

using PSEAuskunftTest = FilesTest;

TEST_F(PSEAuskunftTest, LinesInTheirOrderWithUnitsOrAQuestionMark)
{
    clsElement element(files, boxes);
    element.setRecord({.X = 13,
        .symbol = "Al",
        .Name = "Aluminium",
        .OZ = 13,
        .Masse = 26.98154F,
        .Schmelztemperatur = 933.473F,
        .Siedetemperatur = 2792,
        .Valenz = 3,
        .Dichte_Fluessig = 2.377F,
        .Dichte_Kristallin = 2.7F,
        .Dichte_Amorph = Unbekannt,
        .Atomradius = 143,
        .Ionisierungsenergie = 5.9858F,
        .Elektronegativitaet = Unbekannt,
        .Elektronenkonfiguration = "[Ne] (3)s2p1",
        .EGK = "H"});
    const std::vector<std::string> lines = elementauskunft(element);
    auto next = lines.begin();
    for (const char* line : {"Symbol: Al", "Name: Aluminium", "Masse: 26,98154 amu", "Ordnungszahl: 13", "Valenz: 3 ",
             "Schmelztemperatur: 933,473 K", "Siedetemperatur: 2792 K", "Dichte (flüssig): 2,377 g/cm³",
             "Dichte (kristallin): 2,7 g/cm³", "Dichte (amorph): ?", "Atomradius: 143 pm", "Elektronegativität: ?",
             "Ionisierungsenergie: 5,9858 eV", "Elektronenkonfiguration: [Ne] (3)s2p1"}) {
        next = std::find(next, lines.end(), line);
        ASSERT_NE(next, lines.end()) << line << " is missing or stands too early";
    }
}

} // namespace zerna
