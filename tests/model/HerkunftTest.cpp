#include "model/Herkunft.h"

#include "core/Datei.h"
#include "core/ElementCsv.h"
#include "core/Elementspalten.h"
#include "core/Unbekannt.h"
#include "model/Komposition.h"
#include "model/PSEAuskunft.h"
#include "support/FilesTest.h"

namespace zerna {

/// The shipped table.
struct HerkunftTest : FilesTest {
    HerkunftTest()
    {
        for (const ElementRecord& record : readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv"))) {
            elements.Add(std::make_shared<clsElement>(files, boxes), record.symbol);
            elements.Item(record.symbol)->setRecord(record);
        }
    }

    ElementCollection elements;
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
    struct Row {
        const char* symbol;
        const char* spalte;
        std::optional<float> own; // written over the shipped value
        const char* text;
    };
    const float none = Unbekannt;
    const Row rows[]{
        {"Cu", "Masse", {}, "Quelle: IUPAC-Standardwert (über mendeleev), auf 7 Stellen gerundet"},
        {"C", "Schmelztemperatur", {},
            "Quelle: CRC Handbook, 95. Ausgabe (über mendeleev), sonst Wikipedia u. a.\n"
            "Zustand: Tripelpunkt, 10,3 MPa"},
        {"Th", "Dichte_Fluessig", {},
            "Quelle: Flüssigmetall-Literatur (Iida & Guthrie)\nZustand: am Schmelzpunkt\n"
            "Bemerkung: zweifelhaft: nicht an einer zweiten Stelle geprüft"},
        {"Fm", "Dichte_Kristallin", {}, "unbekannt: nur Vorhersagen"},
        {"Cu", "Dichte_Kristallin", 8.92F, "eigener Wert (Quelle nennt 8,96 g/cm³)"},
        {"Cu", "Valenz", 2.0F, "eigener Wert (Quelle nennt 1)"},
        {"Cu", "Dichte_Amorph", 8.0F, "eigener Wert"},
        {"Cu", "Dichte_Fluessig", none, "unbekannt: fehlt in der Elementtabelle (Quelle nennt 7,997 g/cm³)"},
        {"Cu", "Schuhgröße", {}, ""},
    };
    for (const Row& row : rows) {
        clsElement element = *elements.Item(row.symbol);
        ElementRecord record = element.record();
        forEachSpalte([&]<class Field>(const Elementspalte& spalte, Field ElementRecord::*field) {
            if constexpr (std::is_same_v<Field, float>) {
                if (row.own && spalte.name == row.spalte)
                    record.*field = *row.own;
            }
        });
        element.setRecord(record);
        EXPECT_EQ(herkunft(element, row.spalte), row.text) << row.symbol << ' ' << row.spalte;
    }
    clsElement unheard(files, boxes);
    unheard.setsymbol("Xx");
    unheard.setMasse(3);
    EXPECT_EQ(herkunft(unheard, "Masse"), "eigener Wert");
}

TEST_F(HerkunftTest, ChoicesOfTheCompositionHaveTheSourceOfWhatTheyTake)
{
    const clsElement& carbon = *elements.Item("C");
    EXPECT_EQ(dichteherkunft(carbon, "amorph"), herkunft(carbon, "Dichte_Amorph"));
    EXPECT_EQ(dichteherkunft(carbon, "flüssig"), herkunft(carbon, "Dichte_Fluessig"));
    EXPECT_EQ(dichteherkunft(carbon, "kristallin"), herkunft(carbon, "Dichte_Kristallin"));
    EXPECT_EQ(dichteherkunft(carbon, AndereWahl), "eigener Wert");
    EXPECT_EQ(valenzherkunft(carbon, ValenzStandard), herkunft(carbon, "Valenz"));
    EXPECT_EQ(valenzherkunft(carbon, ValenzAndere), "eigener Wert");
    EXPECT_EQ(valenzherkunft(carbon, 1),
        "Zahl der p-Elektronen in [He] (2)s2p2\nQuelle: Festgelegter Satz der eingebauten Tabelle");
}

} // namespace zerna
