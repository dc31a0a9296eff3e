#include <random>

#include "core/Zahlentext.h"
#include "model/EingabeFixture.h"
#include "model/rechnung/Befund.h"

namespace zerna {

using enum Anteilseinheit;

struct AnteilseinheitTest : EingabeFixture {
    static Schritt einheit(Anteilseinheit e)
    {
        return [=](Eingabe& eingabe) { return eingabe.setEinheit(e), Aenderung(); };
    }

    std::string texte(Anteilseinheit e) const
    {
        std::string all;
        for (const Eingabefeld& feld : eingabe.anteile(e))
            all += feld.text + '|';
        return all;
    }

    /// The at% that are computed with, four digits.
    std::string inKraft() const
    {
        std::string all;
        for (int row = 0; row < eingabe.anzahl(); ++row) {
            const Eingabefeld& prozent = eingabe.prozentInKraft(row);
            all += prozent.fehler ? "?|" : textWithDigits(prozent.wert, 4) + '|';
        }
        return all;
    }

    static std::vector<float> inKraftGenau(const Eingabe& eingabe)
    {
        std::vector<float> all;
        for (int row = 0; row < eingabe.anzahl(); ++row)
            all.push_back(eingabe.prozentInKraft(row).wert);
        return all;
    }

    void einElementOhneMasse()
    {
        ElementRecord record = elements.Item("Al")->record();
        record.symbol = "Xx";
        record.Name = "Ohnemasse";
        record.Masse = Unbekannt;
        addElement(record);
    }
};

TEST_F(AnteilseinheitTest, MassPercentAreTypedBalancedAndComputedWithAsAtPercent)
{
    einElementOhneMasse();
    for (const auto& [name, schritt, typed, expected, changes] : {
             std::tuple("at% first", prozent(0, "60,0"), "60,0|40|", "60|40|", true),
             {"the other unit changes nothing", einheit(Masse), "38,90883|61,09117|", "60|40|", false},
             {"nor does the way back", einheit(Atom), "60,0|40|", "60|40|", false},
             {"and again", einheit(Masse), "38,90883|61,09117|", "60|40|", false},
             {"4 mass % copper", prozent(0, "96.0"), "96.0|4|", "98,26|1,738|", true},
             {"the balance row itself", prozent(1, "7"), "96.0|7|", "98,26|1,738|", false},
             {"a row more, without an element", anzahl(3), "96.0|7|-3|", "?|?|?|", true},
             {"its element", element(2, "Mg"), "96.0|7|-3|", "100,4|3,108|-3,482|", true},
             {"the row before it", prozent(1, "3,5"), "96.0|3,5|0,5|", "97,92|1,516|0,5662|", true},
             {"another element", element(1, "Ni"), "96.0|3,5|0,5|", "97,8|1,639|0,5654|", true},
             {"not a number", prozent(0, "96x"), "96x|3,5|0,5|", "?|?|?|", false},
             {"one without a mass", element(1, "Xx"), "96x|3,5|0,5|", "?|?|?|", true},
             {"though all are typed", prozent(0, "95"), "95|3,5|1,5|", "?|?|?|", true},
             {"known again", element(1, "Cu"), "95|3,5|1,5|", "96,79|1,514|1,697|", true},
             {"less than nothing", prozent(1, "1e6"), "95|1e6|-999995|", "?|?|?|", true},
             {"a single one", anzahl(1), "100|", "100|", true},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(schritt(eingabe).anteil, changes);
        EXPECT_EQ(texte(eingabe.einheit()), typed);
        EXPECT_EQ(inKraft(), expected);
        EXPECT_EQ(eingabe.istVollstaendig(), inKraft().find('?') == std::string::npos);
    }
}

TEST_F(AnteilseinheitTest, ShownPartsBecomeTheTypedOnesWhenTheAlloyBecomesAnother)
{
    const Eingabe atoms = eingabe;
    for (const auto& [name, schritt, masse, quelle] : {
             std::tuple("an element", element(1, "Ni"), "29,80479|70,19521|", Masse),
             {"a row", anzahl(3), "29,80479|70,19521|0|", Masse},
             {"the balance row is left", [](Eingabe& e) { return e.gleicheAus(), Aenderung(); }, "29,80479|70,19521|",
                 Atom},
             {"a density", dichte(0, "3"), "29,80479|70,19521|", Atom},
         }) {
        SCOPED_TRACE(name);
        eingabe = atoms;
        eingabe.setEinheit(Masse);
        schritt(eingabe);
        EXPECT_EQ(texte(Masse), masse);
        EXPECT_EQ(eingabe.quelle(), quelle);
    }
    eingabe = atoms;
    eingabe.setEinheit(Masse);
    eingabe.setEinheit(Atom);
    EXPECT_EQ(eingabe, atoms);
}

TEST_F(AnteilseinheitTest, ElementWithoutMassIsSaidAndGivesNoNumber)
{
    einElementOhneMasse();
    eingabe.waehleElement(1, "Xx");
    EXPECT_EQ(texte(Masse), "||");
    EXPECT_EQ(eingabe.anteile(Masse)[0].fehler->text(), "Die Masse von Ohnemasse ist nicht bekannt");
    eingabe.setEinheit(Masse);
    eingabe.waehleElement(1, "Cu"); // there were no mass % to keep
    EXPECT_EQ(inKraft(), "50|50|");
    eingabe.waehleElement(1, "Xx");
    eingabe.setProzent(0, "30");
    const std::vector<Befund> alle = befunde(eingabe);
    ASSERT_EQ(alle.size(), 2U);
    EXPECT_EQ(befundtext(eingabe, alle[1]),
        "Komponente 2 (Xx): Masse % und at% hängen über die Masse des Elements zusammen, die nicht bekannt ist. at% "
        "eintragen oder ein anderes Element wählen.");
    EXPECT_TRUE(istUnbekannt(eingabe.prozentInKraft(0).wert));
}

TEST_F(AnteilseinheitTest, FaultsNameTheUnitThatIsTyped)
{
    eingabe.setEinheit(Masse);
    for (const auto& [text, expected] : {
             std::pair("", "Masse % fehlt. Eine Zahl eintragen."),
             {"120", "Mehr als 100 Masse %. Ohne die letzte Komponente ergeben sie zusammen 120 Masse %."},
             {"-3E9", "Zusammen ergeben die Anteile keine Legierung. Masse % ändern."},
         }) {
        eingabe.setProzent(0, text);
        EXPECT_EQ(wichtigster(befunde(eingabe))->text, expected);
    }
}

/// From at% to mass % and back, and once more after mass % were typed.
TEST_F(AnteilseinheitTest, GoingBackAndForthNeverDrifts)
{
    std::mt19937 random(4711); // NOLINT(*-msc51-cpp): the same alloys each time
    const auto number = [&](int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); };
    for (int alloy = 0; alloy < 10'000; ++alloy) {
        eingabe.setAnzahl(number(1, MaxKomponenten));
        for (int row = 0; row < eingabe.anzahl(); ++row) {
            eingabe.waehleElement(row, elements.Item(number(1, elements.Count()))->symbol());
            eingabe.setProzent(row, textWithDigits(number(0, 30'000) / 1000.0, number(1, 7)));
        }
        const Anteilseinheit typed = eingabe.einheit();
        const Eingabe before = eingabe;
        const std::string texts = texte(typed);
        for (int times = 0; times < 3; ++times) {
            eingabe.setEinheit(andere(typed));
            ASSERT_EQ(inKraftGenau(eingabe), inKraftGenau(before));
            eingabe.setEinheit(typed);
        }
        ASSERT_EQ(texte(typed), texts);
        ASSERT_EQ(eingabe, before);
        eingabe.setEinheit(andere(typed)); // the next alloy is typed in the other unit
    }
}

} // namespace zerna
