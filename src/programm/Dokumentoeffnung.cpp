#include "programm/Dokumentoeffnung.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/Datei.h"
#include "core/Zeichensatz.h"
#include "traeger/Dokumentfund.h"

namespace zerna {

Dokumentoeffnung oeffneDokument(const std::filesystem::path& file, const ElementCollection& elements)
{
    Dokumentoeffnung oeffnung;
    try {
        const Dokumentfund fund = dokumentAus(readFile(file));
        if (!fund.dokument) {
            oeffnung.grund = fund.grund;
            return oeffnung;
        }
        oeffnung.istBild = fund.art != Dateiart::Dokument;
        oeffnung.lesung = lies(*fund.dokument, elements);
        if (!oeffnung.lesung.dokument)
            oeffnung.grund = oeffnung.lesung.fehler.text();
    } catch (const Laufzeitfehler& error) {
        oeffnung.grund = std::string(error.what()) + ".";
    }
    return oeffnung;
}

bool istDokumentname(std::string_view name)
{
    constexpr std::array<std::string_view, 5> Endungen{".zerna", ".png", ".svg", ".svgz", ".pdf"};
    const std::string lower = lowerCase(name);
    return std::ranges::any_of(Endungen, [&](std::string_view endung) { return lower.ends_with(endung); });
}

} // namespace zerna
