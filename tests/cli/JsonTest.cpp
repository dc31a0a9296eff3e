#include <cstdlib>

#include "support/Kommandozeile.h"

namespace zerna {

using JsonTest = Kommandozeile;

TEST_F(JsonTest, EveryTableIsAsTheSchemaSays)
{
    const char* const calls[] = {
        "groessen --json Al60Cu40",
        "groessen --json --lehrbuch Al=50:valenz=0-3 2>/dev/null", // unknown values
        "groessen --stapel --jsonzeilen Liste 2>/dev/null | sed '1s/^/[/;$!s/$/,/;$s/$/]/'",
        "reihe --json --groesse hall-koeffizient --variabel Al --schritt 10 Al=100:valenz=0 2>/dev/null",
        "suche --json --groesse 9 --ziel 30 --variabel Mg --mischungsreihe Al=50 Cu=30 Mg=20",
        "suche --json --groesse 8 --ziel 9,5 --dritte 10 Al60Cu40 2>/dev/null",
        "suche --json --groesse 0 --ziel 1 --variabel Ag --mischungsreihe Ag50Cu50 2>/dev/null", // empty
        "pse --json --groesse dichte-fluessige",
        "pse --json --groesse elektronegativitaet",
        "ternaer --json --groesse 8 --aufloesung 1 AlCuMg 2>/dev/null",
        "wiegen --json --masse 250 Fe=40 Co=30 Ni=20 B=10",
        "friedel --json Al60Cu40",
        "kennzahlen --json",
        "elemente auflisten --json",
    };
    run("formel 1 >/dev/null; mkdir json; printf 'Al60Cu40\\nAl=50:valenz=0-3\\n' >Liste");
    int number = 0;
    for (const char* const call : calls) {
        const Answer answer = run(call);
        EXPECT_EQ(answer.status, 0) << call << answer.text;
        writeBytes(folder / "json" / std::to_string(number++), answer.text);
    }
    const std::string check = ZERNA_SCHEMA_CHECK " '" + (folder / "json").string() + "'";
    EXPECT_EQ(std::system(check.c_str()), 0);
    const Answer commands = run("formel 1 >/dev/null; for c in $(zerna-cli --hilfe | sed -n '/^Befehle:/,/^$/s/^  "
                                "\\([a-z]*\\).*/\\1/p'); do zerna-cli $c --hilfe | grep -q -- --json && echo $c; done");
    for (const char* const name : {"groessen", "reihe", "suche", "pse", "ternaer", "wiegen", "friedel", "kennzahlen"})
        EXPECT_NE(commands.text.find(std::string(name) + "\n"), std::string::npos) << name;
}

TEST_F(JsonTest, HasTheNumbersOfTheTablesAndTheirRealUnits)
{
    const std::pair<const char*, const char*> rows[] = {
        {"reihe --groesse atomvolumen --variabel Al --schritt 50 Al60Cu40",
            R"({"name": "mittleres Atomvolumen", "Al": 100, "wert": 1.8848923E-29, "einheit": "m³"})"},
        {"pse --groesse masse", R"({"name": "Masse", "element": "H", "oz": 1, "wert": 1.00794, "einheit": "amu"})"},
        {"pse --groesse atomradius",
            R"({"name": "Atomradius", "element": "Fr", "oz": 87, "wert": null, "einheit": "pm"})"},
        {"ternaer --groesse 8 --aufloesung 1 Al=40 Cu=35 Mg=25",
            R"({"name": "Fermienergie", "Al": 0, "Cu": 10, "Mg": 90, "wert": 6.676566, "einheit": "eV"})"},
        {"friedel Al60Cu40", R"({"name": "Friedelminimum", "n": 0, "wert": 0.24890737, "einheit": "nm"})"},
        {"groessen Al=100:valenz=0 2>/dev/null", R"({"name": "Thermokraft", "wert": null, "einheit": "V/K²"})"},
    };
    for (const auto& [call, line] : rows) {
        const std::string text = run(std::string(call) + " --json").text;
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
    }
}

} // namespace zerna
