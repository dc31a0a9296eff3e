#include "model/Konzentrationsreihe.h"

#include <algorithm>
#include <cmath>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"

namespace zerna {

std::string_view reiheneinheit(int groesse)
{
    const Groesse* const found = findReihengroesse(groesse);
    return found != nullptr ? found->reiheneinheit : std::string_view();
}

const Groesse& gerechneteReihengroesse(int groesse)
{
    const Groesse* const found = findReihengroesse(groesse);
    if (found == nullptr || groesse == GroesseDichte)
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return *found;
}

Reihe konzentrationsreihe(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, int variable, int groesse)
{
    const int gerechnet = gerechneteReihengroesse(groesse).kennzahl;
    return Mischungsreihe(calc, komponenten, variable, gerechnet, Reihenart::Gegeben).reihe();
}

float dichtewert(std::span<const float> dichten, int variable, double x)
{
    if (variable < 0 || static_cast<std::size_t>(variable) >= dichten.size() || dichten.size() > MaxKomponenten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    if (std::ranges::any_of(dichten, istUnbekannt))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    const auto index = static_cast<std::size_t>(variable);
    double others = 0;
    for (std::size_t j = 0; j < dichten.size(); ++j)
        others += j == index ? 0 : dichten[j];
    const double share = quotient(100 - x, static_cast<double>(dichten.size()) - 1) / 100;
    return toSingle(dichten[index] * x / 100 + share * others);
}

Reihe dichtereihe(std::span<const float> dichten, int variable)
{
    Reihe reihe{};
    for (std::size_t i = 0; i < reihe.size(); ++i)
        reihe.at(i) = dichtewert(dichten, variable, static_cast<double>(i));
    return reihe;
}

std::string reihendatei(std::string_view symbol, std::string_view einheit, const Reihe& reihe, int schritt)
{
    std::string text = std::string(symbol) + " [at%]\t" + std::string(einheit) + "\r\n";
    for (int i = 0; schritt > 0 && i <= 100; i += schritt) {
        const float value = reihe.at(static_cast<std::size_t>(i));
        if (!istUnbekannt(value))
            text += std::to_string(i) + "\t" + textOfSingle(value, Dezimaltrenner::Punkt) + "\r\n";
        if (schritt > 100 - i) // also keeps a huge step from overflowing
            break;
    }
    return text;
}

int schrittweite(std::string_view text)
{
    try {
        const double rounded = std::nearbyint(doubleFromText(text));
        return std::abs(rounded) < std::numeric_limits<int>::max() ? static_cast<int>(rounded) : 1;
    } catch (const Laufzeitfehler&) {
        return 1;
    }
}

} // namespace zerna
