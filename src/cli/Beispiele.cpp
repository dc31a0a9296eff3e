#include "cli/Beispiele.h"

#include <algorithm>
#include <array>

namespace zerna {

namespace {

struct Beispiel {
    std::string_view befehl;
    std::string_view aufrufe; ///< a line each
};

constexpr std::array Alle{
    Beispiel{"",
        "zerna-cli groessen Al60Cu40\n"
        "zerna-cli suche --hilfe\n"},
    Beispiel{"formel",
        "zerna-cli formel \"3-0,5*z_Cu\"\n"
        "zerna-cli formel \"sqrt(2)*pow(10;3)\"\n"},
    Beispiel{"groessen",
        "zerna-cli groessen Al60Cu40\n"
        "zerna-cli groessen --lehrbuch Al=60:dichte=2,7:valenz=5/2 Cu=40:dichte=kristallin\n"
        "zerna-cli groessen --json \"Al-4Cu-1Mg wt%\"\n"
        "printf 'Al60Cu40\\nAl2Cu\\n' | zerna-cli groessen --stapel --groessen 2kf,fermienergie\n"},
    Beispiel{"text",
        "zerna-cli text Al60Cu40\n"
        "zerna-cli text --massenprozent --ausgabe duralumin.dat Al=95 Cu=4 Mg=1\n"},
    Beispiel{"reihe",
        "zerna-cli reihe --groesse fermienergie --variabel Al --schritt 10 Al60Cu40\n"
        "zerna-cli reihe --groesse 9 --variabel Cu --ausgabe reihe.dat Al60Cu40\n"},
    Beispiel{"suche",
        "zerna-cli suche --groesse 2kf --ziel 31 --variabel Al --mischungsreihe Al60Cu40\n"
        "zerna-cli suche --groesse fermienergie --ziel 9,5 --dritte 10 Al60Cu40\n"},
    Beispiel{"pse",
        "zerna-cli pse --groesse atomradius\n"
        "zerna-cli pse --groesse schmelztemperatur --json\n"},
    Beispiel{"ternaer",
        "zerna-cli ternaer --groesse 2kf --aufloesung 1 AlCuMg\n"
        "zerna-cli ternaer --groesse 8 --aufloesung 5 --ausgabe almgcu.3dd AlCuMg\n"},
    Beispiel{"wiegen",
        "zerna-cli wiegen --masse 1000 Al60Cu40\n"
        "zerna-cli wiegen --masse 2500 --json Fe 18Cr 8Ni wt%\n"},
    Beispiel{"friedel",
        "zerna-cli friedel Al60Cu40\n"
        "zerna-cli friedel --ausgabe legierung.fri Al60Cu40\n"},
    Beispiel{"kennzahlen",
        "zerna-cli kennzahlen\n"
        "zerna-cli kennzahlen --json\n"},
    Beispiel{"bild",
        "zerna-cli bild --ziel bild.pdf --groesse fermienergie --variabel Cu Al60Cu40\n"
        "zerna-cli bild --ziel bild.svg --art ternaer --flach --groesse 2kf AlCuMg\n"
        "zerna-cli bild --ziel bild.png --art elemente --groesse atomradius --grau\n"},
    Beispiel{"elemente",
        "zerna-cli elemente auflisten\n"
        "zerna-cli elemente exportieren --hilfe\n"},
    Beispiel{"auflisten",
        "zerna-cli elemente auflisten\n"
        "zerna-cli elemente auflisten --json\n"},
    Beispiel{"exportieren", "zerna-cli elemente exportieren meine.csv\n"},
    Beispiel{"importieren",
        "zerna-cli elemente exportieren meine.csv\n"
        "zerna-cli elemente importieren meine.csv meine.dat\n"
        "zerna-cli --daten meine.dat groessen Al60Cu40\n"},
};

} // namespace

std::string beispiele(std::string_view befehl)
{
    const auto* const found = std::ranges::find(Alle, befehl, &Beispiel::befehl);
    if (found == Alle.end())
        return {};
    std::string text = "Beispiele:";
    for (std::string_view rest = found->aufrufe; !rest.empty(); rest.remove_prefix(rest.find('\n') + 1))
        text.append("\n    ").append(rest.substr(0, rest.find('\n')));
    return text;
}

} // namespace zerna
