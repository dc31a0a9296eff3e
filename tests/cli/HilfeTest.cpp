#include <sstream>

#include "support/Kommandozeile.h"

namespace zerna {

struct HilfeTest : Kommandozeile {
    /// The first words of the lines of a section of a command's help.
    std::vector<std::string> section(const std::string& befehl, const std::string& titel) const
    {
        std::istringstream lines(run(befehl + " --hilfe").text);
        std::vector<std::string> found;
        bool isInside = false;
        for (std::string line; std::getline(lines, line);) {
            if (isInside && line.starts_with("  "))
                found.push_back(line.substr(2));
            isInside = line == titel + ":" || (isInside && !line.empty());
        }
        return found;
    }

    std::vector<std::string> commands(const std::string& befehl = {}) const
    {
        std::vector<std::string> names = section(befehl, "Befehle");
        for (std::string& name : names)
            name = (befehl.empty() ? "" : befehl + " ") + name.substr(0, name.find(' '));
        return names;
    }
};

TEST_F(HilfeTest, EveryExampleCanBeTypedAsItStands)
{
    const bool canPaint = std::filesystem::exists(ZERNA_BIN_DIR "/zerna-bild");
    std::vector<std::string> all = commands();
    all.emplace_back();
    for (const std::string& name : commands("elemente"))
        all.push_back(name);
    EXPECT_EQ(all.size(), 16U);
    for (const std::string& befehl : all) {
        const std::vector<std::string> examples = section(befehl, "Beispiele");
        EXPECT_FALSE(examples.empty()) << befehl;
        for (const std::string& example : examples) {
            if (befehl == "bild" && !canPaint)
                continue;
            const Answer answer = run("formel 1 >/dev/null; " + example);
            EXPECT_EQ(answer.status, 0) << example << '\n' << answer.text;
            const bool writes = example.find("--ausgabe") + 1 + example.find("--ziel") + 1 != 0
                || befehl == "elemente exportieren" || befehl == "elemente importieren";
            EXPECT_TRUE(writes || !answer.text.empty()) << example;
        }
    }
}

TEST_F(HilfeTest, CompletionOffersWhatCanStandThere)
{
    const std::pair<const char*, const char*> rows[] = {
        {"zerna-cli gr", "groessen "},
        {"zerna-cli elemente ", "auflisten exportieren importieren "},
        {"zerna-cli pse --", "--ausgabe --groesse --json --hilfe --help "},
        {"zerna-cli groessen Z", "Zn= Zr= "},
        {"zerna-cli groessen Al=60 Cu=40:d", "dichte= "},
        {"zerna-cli groessen Al=60:dichte=", "amorph fluessig kristallin "},
        {"zerna-cli groessen Al=60:valenz=3/2:dichte=k", "kristallin "},
        {"zerna-cli reihe --groesse f", "fermienergie friedel-wellenlaenge "},
        {"zerna-cli reihe --json --variabel Z", "Zn Zr "}, // a flag takes no value
        {"zerna-cli pse --groesse schm", "schmelztemperatur "},
        {"zerna-cli groessen --stapel --groessen 2kf,fermie", "2kf,fermienergie "},
        {"zerna-cli pse --groesse=schm", "schmelztemperatur "},
        {"zerna-cli groessen --json=", ""},
        {"zerna-cli groessen leg", "legierung.zerna "},
        {"zerna-cli groessen --ausgabe ta", "tabelle.txt "},
        {"zerna-cli --daten eigene.dat groessen H", "H= "},
        {"zerna-cli --daten=eigene.dat groessen H", "H= "},
        {"zerna-cli formel 1", ""},
        {"zerna-cli nichts ", ""},
    };
    run("formel 1 >/dev/null; touch legierung.zerna legende.txt tabelle.txt; "
        "zerna-cli elemente exportieren e.csv; head -2 e.csv >h.csv; zerna-cli elemente importieren h.csv eigene.dat");
    std::string script = "source '" ZERNA_COMPLETION "'\n";
    std::string expected;
    for (const auto& [line, offers] : rows) {
        script += std::string("COMP_LINE='") + line + "' COMP_POINT=${#COMP_LINE}\n_zerna_cli_complete zerna-cli\n"
            + "printf '%s -> ' \"$COMP_LINE\"; printf '%s ' \"${COMPREPLY[@]}\"; echo\n";
        expected += std::string(line) + " -> " + (offers[0] == '\0' ? " " : offers) + "\n";
    }
    writeBytes(folder / "script", script);
    EXPECT_EQ(run("formel 1 >/dev/null; bash script").text, expected);
}

} // namespace zerna
