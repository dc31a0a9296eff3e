#include "model/rechnung/Herkunft.h"

#include "core/Unbekannt.h"
#include "model/eingabe/Komposition.h"
#include "model/rechnung/PSEAuskunft.h"
#include "support/RechnerTest.h"

namespace zerna {

struct HerkunftTest : RechnerTest {
    HerkunftTest() { addElements(); }
};

TEST_F(HerkunftTest, EachCellOfTheShippedTableHasASourceOrAReason)
{
    for (const auto& element : elements) {
        const std::vector<std::string> lines = elementauskunft(*element);
        const std::vector<std::string> sources = auskunftsherkunft(*element);
        ASSERT_EQ(sources.size(), lines.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const bool isKnown = !lines[i].ends_with(": ?");
            EXPECT_TRUE(sources[i].starts_with(isKnown ? "Quelle: " : "unbekannt: ")) << lines[i] << sources[i];
            EXPECT_GT(sources[i].size(), std::size_t{12}) << lines[i];
        }
    }
}

TEST_F(HerkunftTest, DefaultsExceptionsAndOwnValues)
{
    clsElement& copper = *elements.Item("Cu");
    copper.setDichte_Kristallin(8.92F);
    copper.setDichte_Amorph(8);
    copper.setDichte_Fluessig(Unbekannt);
    ElementRecord unheard;
    unheard.symbol = "Xx";
    addElement(unheard);
    for (const auto& [symbol, spalte, text] : {
             std::tuple("Cu", "Masse", "Quelle: IUPAC-Standardwert (über mendeleev), auf 7 Stellen gerundet"),
             {"C", "Schmelztemperatur",
                 "Quelle: CRC Handbook, 95. Ausgabe (über mendeleev), sonst Wikipedia u. a.\n"
                 "Zustand: Tripelpunkt, 10,3 MPa"},
             {"Th", "Dichte_Fluessig",
                 "Quelle: Flüssigmetall-Literatur (Iida & Guthrie)\nZustand: am Schmelzpunkt\n"
                 "Bemerkung: zweifelhaft: nicht an einer zweiten Stelle geprüft"},
             {"Fm", "Dichte_Kristallin", "unbekannt: nur Vorhersagen"},
             {"Cu", "Dichte_Kristallin", "eigener Wert (Quelle nennt 8,96 g/cm³)"},
             {"Cu", "Dichte_Amorph", "eigener Wert"},
             {"Cu", "Dichte_Fluessig", "unbekannt: fehlt in der Elementtabelle (Quelle nennt 7,997 g/cm³)"},
             {"Cu", "Schuhgröße", ""},
             {"Xx", "Masse", "eigener Wert"},
         })
        EXPECT_EQ(herkunft(*elements.Item(symbol), spalte), text) << symbol << ' ' << spalte;
}

TEST_F(HerkunftTest, ChoicesOfTheCompositionHaveTheSourceOfWhatTheyTake)
{
    const clsElement& carbon = *elements.Item("C");
    EXPECT_EQ(dichteherkunft(carbon, "amorph"), herkunft(carbon, "Dichte_Amorph"));
    EXPECT_EQ(dichteherkunft(carbon, AndereWahl), "eigener Wert");
    EXPECT_EQ(valenzherkunft(carbon, ValenzStandard), herkunft(carbon, "Valenz"));
    EXPECT_EQ(valenzherkunft(carbon, ValenzAndere), "eigener Wert");
    EXPECT_EQ(valenzherkunft(carbon, 1),
        "Zahl der p-Elektronen in [He] (2)s2p2\nQuelle: Festgelegter Satz der eingebauten Tabelle");
}

} // namespace zerna
