#include "model/reihen/Konzentrationsreihe.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

/// The part (of 1) that each of so many others has at 0, 1, … 100 at% of one component, the same in every alloy.
constexpr auto Restanteile = [] {
    std::array<std::array<double, std::tuple_size_v<Reihe>>, MaxKomponenten> anteile{};
    for (std::size_t others = 1; others < anteile.size(); ++others) {
        for (std::size_t i = 0; i < anteile[others].size(); ++i)
            anteile[others][i] = (100.0 - static_cast<double>(i)) / static_cast<double>(others) / 100;
    }
    return anteile;
}();

struct Dichtesummen {
    double own = 0;
    double others = 0;

    float wert(std::size_t dichten, double x) const
    {
        return toSingle(own * x / 100 + quotient(100 - x, static_cast<double>(dichten) - 1) / 100 * others);
    }
};

/// The density of the variable component and the sum of the others'. Error 9 for a row outside, error 5 for an unknown
/// density.
Dichtesummen dichtesummen(std::span<const float> dichten, int variable)
{
    if (variable < 0 || static_cast<std::size_t>(variable) >= dichten.size() || dichten.size() > MaxKomponenten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    if (std::ranges::any_of(dichten, istUnbekannt))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    const auto index = static_cast<std::size_t>(variable);
    Dichtesummen summen{dichten[index]};
    for (std::size_t j = 0; j < dichten.size(); ++j)
        summen.others += j == index ? 0 : dichten[j];
    return summen;
}

} // namespace

std::string_view reiheneinheit(int groesse)
{
    const Groesse* const found = findReihengroesse(groesse);
    return found != nullptr ? found->reiheneinheit : std::string_view();
}

const Groesse& gerechneteReihengroesse(int groesse)
{
    if (groesse == GroesseDichte)
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return reihengroesse(groesse);
}

Reihe konzentrationsreihe(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, int variable, int groesse)
{
    const int gerechnet = gerechneteReihengroesse(groesse).kennzahl;
    return Mischungsreihe(calc, komponenten, variable, gerechnet, Reihenart::Gegeben).reihe();
}

float dichtewert(std::span<const float> dichten, int variable, double x)
{
    return dichtesummen(dichten, variable).wert(dichten.size(), x);
}

Reihe dichtereihe(std::span<const float> dichten, int variable)
{
    const Dichtesummen summen = dichtesummen(dichten, variable);
    Reihe reihe{};
    reihe.front() = summen.wert(dichten.size(), 0);
    reihe.back() = summen.wert(dichten.size(), 100);
    // All others lie between the two, so a single holds them, too.
    const auto& anteile = Restanteile.at(dichten.size() - 1);
    for (int i = 1; i < 100; ++i) {
        const auto step = static_cast<std::size_t>(i);
        reihe[step] = static_cast<float>(summen.own * i / 100 + anteile[step] * summen.others);
    }
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
