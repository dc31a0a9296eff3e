#include "programm/Rechenkern.h"

#include "support/FilesTest.h"

namespace zerna {

struct RechenkernTest : FilesTest {
    /// What is wrong, "" if nothing is; a "!" in front tells faulty arguments from faulty data.
    template <std::invocable Action>
    static std::string fault(Action&& action)
    {
        try {
            action();
            return "";
        } catch (const Aufruffehler& error) {
            return std::string("! ") + error.what();
        } catch (const Datenfehler& error) {
            return error.what();
        }
    }

    std::vector<Komponentenzeile> alloy(const std::vector<std::string>& texts)
    {
        std::vector<Komponentenangabe> angaben;
        for (const std::string& text : texts)
            angaben.push_back(komponentenangabe(text));
        kern.loadBuiltIn();
        kern.setAlloy(angaben);
        return kern.eingabe().komponentenzeilen();
    }

    Rechenkern kern{boxes};
};

TEST_F(RechenkernTest, RowsAsTheResultsTextNamesThem)
{
    for (const auto& [text, expected] : {
             std::pair("B=100", "B 100 amorph 2,35 Standard 3"),
             {"li=1e2", "Li 100 flüssig 0,512 Standard 1"}, // found without regard to case
             {"Li=100:valenz=3/2:dichte=fluessig", "Li 100 flüssig 0,512 <andere> 3/2"},
             {"H=50.50:dichte=1,5", "H 50,5 <andere> 1,5 Standard 1"},
             {"H=-20:dichte=kristallin:valenz=z_C", "H -20 kristallin 0,076 <andere> z_C"},
         }) {
        const Komponentenzeile zeile = alloy({text}).at(0);
        EXPECT_EQ(zeile.symbol + ' ' + zeile.prozent + ' ' + zeile.dichtewahl + ' ' + zeile.dichte + ' '
                + zeile.valenzwahl + ' ' + zeile.valenz,
            expected);
    }
    alloy({"Li=50", "Be=50:valenz=4"});
    EXPECT_EQ(kern.calc().Valenz(), 2.5F);
    EXPECT_EQ(kern.komponenten()[1].element->symbol(), "Be");
}

TEST_F(RechenkernTest, BadComponentsAreNamed)
{
    const std::string form = "erwartet wird SYMBOL=ATPROZENT[:dichte=ZAHL|amorph|fluessig|kristallin][:valenz=TEXT]";
    const std::pair<const char*, std::string> rows[] = {
        {"", "! Komponente \"\": " + form},
        {"=50", "! Komponente \"=50\": " + form},
        {"Li=50:dichte", "! Komponente \"Li=50:dichte\": " + form},
        {"Li=50%", "! Komponente \"Li=50%\": at% \"50%\" ist keine gültige Zahl"},
        {"Li=50:masse=7", "! Komponente \"Li=50:masse=7\": unbekannte Angabe \"masse\""},
        {"Qq=50", "Komponente \"Qq=50\": Element \"Qq\" ist nicht bekannt"},
        {"Li=50:dichte=amorph", "Komponente \"Li=50:dichte=amorph\": Dichte \"amorph\" ist nicht bekannt"},
        {"Li=50:dichte=<andere>", "Komponente \"Li=50:dichte=<andere>\": Dichte \"<andere>\" ist nicht bekannt"},
        {"Li=50:dichte=0", "Die Legierung lässt sich mit diesen Dichten und Valenzen nicht berechnen"},
        {"Li=50:valenz=2+1/0", "Komponente \"Li=50:valenz=2+1/0\": Valenz \"2+1/0\": Division durch Null (Zeichen 4)"},
    };
    for (const auto& [text, message] : rows)
        EXPECT_EQ(fault([&, text = text] { alloy({text}); }), message);
    EXPECT_EQ(fault([&] { alloy(std::vector<std::string>(6, "Li=10")); }),
        "! Eine Legierung hat eine bis fünf Komponenten, angegeben sind 6");
    EXPECT_NE(fault([&] { alloy({}); }), "");
}

TEST_F(RechenkernTest, BadDataFilesAreNamed)
{
    const std::string name = (folder / "e.dat").string();
    EXPECT_EQ(fault([&] { kern.loadFile(name); }), "Datei \"" + name + "\": Datei nicht gefunden");
    writeBytes(name, "abc");
    EXPECT_EQ(fault([&] { kern.loadFile(name); }), "Datei \"" + name + "\": Eingabe hinter Dateiende");
    writeBytes(name, std::string(4, '\0'));
    EXPECT_EQ(fault([&] { kern.loadFile(name); }), "Datei \"" + name + "\" enthält keine Elemente");
}

} // namespace zerna
