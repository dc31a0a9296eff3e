#include "model/reihen/Ternaergroesse.h"

#include <algorithm>
#include <utility>

#include "core/CheckedArithmetic.h"

namespace zerna {

Ternaergroesse::Ternaergroesse(clsCalc calc, std::span<const Legierungskomponente> komponenten, int groesse)
    : m_calc(std::move(calc))
{
    const auto teile = anteile(komponenten);
    std::copy_n(teile.begin(), m_anteile.size(), m_anteile.begin());
    std::ranges::transform(komponenten, m_dichten.begin(), &Legierungskomponente::dichte);
    if (groesse != GroesseDichte)
        m_groesse = &gerechneteReihengroesse(groesse);
}

float Ternaergroesse::wert(const std::array<double, 3>& prozente)
{
    return orUnbekannt([&] {
        if (m_groesse == nullptr)
            return meanDensity(prozente);
        setComposition(m_calc, m_anteile, prozente);
        return zerna::wert(*m_groesse, m_calc);
    });
}

float Ternaergroesse::meanDensity(const std::array<double, 3>& prozente) const
{
    double sum = 0;
    for (std::size_t k = 0; k < prozente.size(); ++k)
        sum += prozente.at(k) * m_dichten.at(k);
    return toSingle(sum / 100);
}

} // namespace zerna
