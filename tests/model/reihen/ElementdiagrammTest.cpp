#include "model/reihen/Elementdiagramm.h"

#include "core/Unbekannt.h"
#include "model/reihen/Elementluecken.h"
#include "support/RechnerTest.h"

namespace zerna {

struct ElementdiagrammTest : RechnerTest {
    /// A complete element that lacks what the record does not know.
    static ElementRecord bare()
    {
        ElementRecord record;
        record.symbol = "Xx";
        record.Name = "Probe";
        record.Masse = record.Schmelztemperatur = record.Dichte_Fluessig = record.Dichte_Kristallin = Unbekannt;
        record.Valenz = Unbekannt;
        return record;
    }

    /// A with a liquid density, B with a crystalline one.
    void addTwo()
    {
        ElementRecord record;
        record.Masse = 6.022136F;
        record.Valenz = 1;
        for (const char* const symbol : {"A", "B"}) {
            record.symbol = symbol;
            record.Name = std::string(symbol) + "-Stoff";
            ++record.OZ;
            record.Dichte_Fluessig = record.OZ == 2 ? Unbekannt : 1;
            record.Dichte_Kristallin = record.OZ == 2 ? 0.5F : Unbekannt;
            addElement(record);
        }
    }
};

TEST_F(ElementdiagrammTest, GapsNameWhatIsMissing)
{
    const auto with = [](auto change) {
        ElementRecord record = bare();
        change(record);
        return record;
    };
    const auto all = [](ElementRecord& r) { r.Masse = r.Dichte_Fluessig = r.Dichte_Kristallin = r.Valenz = 1; };
    const struct {
        ElementRecord record;
        const char* grund;
        int groesse;
        Elementdichte dichte = Elementdichte::Fluessig;
    } rows[] = {
        {with([&](auto& r) { all(r), r.Dichte_Fluessig = Unbekannt; }), "flüssige Dichte unbekannt", 8},
        {with([&](auto& r) { all(r), r.Dichte_Kristallin = Unbekannt; }), "kristalline Dichte unbekannt", 8,
            Elementdichte::Kristallin},
        {bare(), "flüssige Dichte, Masse und Valenz unbekannt", 8},
        {bare(), "flüssige Dichte und Masse unbekannt", 4}, // the volume needs no valence
        {with([&](auto& r) { all(r), r.Valenz = 0; }), "bei Valenz 0 nicht berechenbar", 5},
        {with([&](auto& r) { all(r), r.Dichte_Fluessig = 0; }), "nicht berechenbar", 4},
        {bare(), "Schmelztemperatur unbekannt", 11},
        {with([](auto& r) { r.Dichte_Fluessig = 1; }), "kristalline Dichte unbekannt", 22},
        {bare(), "", 99},
    };
    for (const auto& row : rows) {
        clsElement element(files, boxes);
        element.setRecord(row.record);
        EXPECT_EQ(elementluecke(row.groesse, element, row.dichte), row.grund) << row.groesse;
    }
}

TEST_F(ElementdiagrammTest, EveryGapOfTheTableHasAReason)
{
    addElements();
    for (const int groesse : psegroessen()) {
        const Elementdiagramm diagramm = elementdiagramm(elements, calc, groesse);
        SCOPED_TRACE(diagramm.titel);
        const bool both = findGroesse(groesse)->formel != nullptr;
        ASSERT_EQ(diagramm.hatKristallin(), both);
        for (std::size_t i = 0; i < diagramm.elemente.size(); ++i) {
            const Diagrammelement& element = diagramm.elemente[i];
            const std::pair told(!element.luecke.empty(), !element.kristallineLuecke.empty());
            EXPECT_EQ(
                told, std::pair(istUnbekannt(diagramm.reihe.y[i]), both && istUnbekannt(diagramm.kristallin.y[i])))
                << element.symbol << ' ' << element.luecke;
            EXPECT_NE(element.luecke, "nicht berechenbar") << element.symbol;
        }
    }
}

TEST_F(ElementdiagrammTest, TextsBesideTheCurve)
{
    const std::pair<int, const char*> rows[] = {{8, "Fermienergie [eV] der Elemente|eV"},
        {0, "Valenz der Elemente|e/a"}, {4, "Atomvolumen [nm³] der Elemente (Zahl in m³)|m³"},
        {16, "Atomradius [pm] der Elemente|pm"}, {18, "Elektronegativität der Elemente|"}, {1, "|"}};
    for (const auto& [groesse, text] : rows) {
        const Elementdiagramm diagramm = elementdiagramm(elements, calc, groesse);
        EXPECT_EQ(diagramm.titel + '|' + diagramm.einheit, text);
    }
}

TEST_F(ElementdiagrammTest, TablesForTheClipboard)
{
    addTwo();
    const Elementdiagramm diagramm = elementdiagramm(elements, calc, 0, {"B"});
    EXPECT_TRUE(!diagramm.elemente.at(0).inLegierung && diagramm.elemente.at(1).inLegierung);
    const std::string title = diagramm.reihe.titel;
    EXPECT_EQ(elementtabelle(diagramm, false), psedatei(diagramm.reihe));
    EXPECT_EQ(elementtabelle(diagramm, true), "OZ\t" + title + "\tkristallin\r\n1\t1\t\r\n2\t\t1\r\n");
    const std::string first = "Symbol\tName\t" + title + "\r\n";
    EXPECT_EQ(lueckentabelle(diagramm, false), first + "B\tB-Stoff\tflüssige Dichte unbekannt\r\n");
    EXPECT_EQ(lueckentabelle(diagramm, true),
        first + "A\tA-Stoff\tkristalline Dichte unbekannt\r\nB\tB-Stoff\tflüssige Dichte unbekannt\r\n");
    EXPECT_EQ(lueckentabelle(elementdiagramm(elements, calc, 15), true), "");
}

} // namespace zerna
