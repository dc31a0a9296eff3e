#include "model/reihen/Ternaergitter.h"

#include <algorithm>

#include "core/Zahlentext.h"
#include "model/reihen/Ternaergroesse.h"

namespace zerna {

namespace {

constexpr int DivisionsPerResolution = 10;

/// Calls point(i, j, at% of the three) for all points in file order.
template <class Point>
void forEachPoint(int n, Point&& point)
{
    for (int i = 0; i <= n; ++i) {
        for (int j = 0; i + j <= n; ++j)
            point(i, j, std::array<double, 3>{100.0 * i / n, 100.0 * j / n, 100.0 * (n - i - j) / n});
    }
}

} // namespace

Ternaergitter ternaergitter(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, int groesse, int aufloesung)
{
    if (komponenten.size() != 3 || aufloesung < 1 || aufloesung > FeinsteAufloesung)
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    Ternaergitter gitter;
    gitter.n = DivisionsPerResolution * aufloesung;
    gitter.einheit = reiheneinheit(groesse);
    std::ranges::transform(
        komponenten, gitter.symbole.begin(), [](const Legierungskomponente& k) { return k.element->symbol(); });
    gitter.werte.reserve(static_cast<std::size_t>((gitter.n + 1) * (gitter.n + 2) / 2));
    Ternaergroesse quantity(calc, komponenten, groesse);
    forEachPoint(gitter.n, [&](int, int, const auto& prozente) { gitter.werte.push_back(quantity.wert(prozente)); });
    return gitter;
}

std::string ternaerdatei(const Ternaergitter& gitter)
{
    std::string text;
    for (const std::string& symbol : gitter.symbole)
        text += symbol + " [at%]\t";
    text += gitter.einheit + "\r\n";
    const auto number = [](double value) { return textOfSingle(static_cast<float>(value), Dezimaltrenner::Punkt); };
    forEachPoint(gitter.n, [&](int i, int j, const auto& prozente) {
        if (istUnbekannt(gitter.wert(i, j)))
            return;
        for (const double prozent : prozente)
            text += number(prozent) + "\t";
        text += number(gitter.wert(i, j)) + "\r\n";
    });
    return text;
}

} // namespace zerna
