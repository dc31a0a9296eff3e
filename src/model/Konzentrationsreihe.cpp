#include "model/Konzentrationsreihe.h"

#include <algorithm>
#include <cmath>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

std::size_t checkedIndex(int index, std::size_t count)
{
    if (index < 0 || static_cast<std::size_t>(index) >= count || count > MaxKomponenten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    return static_cast<std::size_t>(index);
}

} // namespace

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
    const Groesse& gerechnet = gerechneteReihengroesse(groesse);
    const std::size_t index = checkedIndex(variable, komponenten.size());
    const auto teile = anteile(komponenten);
    const auto used = std::span(teile).first(komponenten.size());
    std::array<double, MaxKomponenten> prozente{};
    clsCalc scratch = calc;
    Reihe reihe{};
    for (int i = 0; i <= 100; ++i) {
        for (std::size_t j = 0; j < used.size(); ++j)
            prozente.at(j) = j == index ? i : static_cast<double>(komponenten[j].prozent) * (100 - i) / 100;
        setComposition(scratch, used, prozente);
        reihe.at(static_cast<std::size_t>(i)) = wert(gerechnet, scratch);
    }
    return reihe;
}

Reihe dichtereihe(std::span<const float> dichten, int variable)
{
    const std::size_t index = checkedIndex(variable, dichten.size());
    if (std::ranges::any_of(dichten, istUnbekannt))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    double others = 0;
    for (std::size_t j = 0; j < dichten.size(); ++j)
        others += j == index ? 0 : dichten[j];
    Reihe reihe{};
    for (int i = 0; i <= 100; ++i) {
        const double share = quotient(100 - i, static_cast<double>(dichten.size()) - 1) / 100;
        reihe.at(static_cast<std::size_t>(i)) =
            toSingle(dichten[index] * static_cast<double>(i) / 100 + share * others);
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
