#include "model/einwaage/Wiegeprotokoll.h"

#include <algorithm>
#include <string_view>

#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr std::string_view Zeilenende = "\r\n";

/// A line with several numbers, their decimal commas made points.
std::string withPoints(std::string line)
{
    const auto isDigit = [&line](std::size_t i) { return i < line.size() && line[i] >= '0' && line[i] <= '9'; };
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] == ',' && isDigit(i - 1) && isDigit(i + 1))
            line[i] = '.';
    }
    return line;
}

} // namespace

bool istEineMasseBekannt(std::span<const Einwaagezeile> zeilen)
{
    return std::ranges::any_of(zeilen, [](const auto& z) { return !z.sollmasse.empty() || !z.istmasse.empty(); });
}

std::string wiegeprotokoll(const Wiegeprotokoll& protokoll)
{
    std::string text = "Einwaage vom " + protokoll.datum;
    text.append(Zeilenende);
    text.append("Element\tSoll [at%]\tSollmasse [mg]\tIstmasse [mg]\tIst [at%]\tMassenprozent [%]").append(Zeilenende);
    for (const Einwaagezeile& z : protokoll.zeilen) {
        const std::string& share = z.istanteil.empty() ? z.sollanteil : z.istanteil;
        text += z.symbol;
        for (const std::string& cell : {z.prozent, z.sollmasse, z.istmasse, z.istprozent, share})
            text += "\t" + CommaToPoint(cell);
        text.append(Zeilenende);
    }
    if (!protokoll.verlust.empty())
        text.append(Zeilenende);
    for (const std::string& line : protokoll.verlust)
        text.append(withPoints(line)).append(Zeilenende);
    return text;
}

} // namespace zerna
