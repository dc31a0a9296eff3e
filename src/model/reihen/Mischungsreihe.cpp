#include "model/reihen/Mischungsreihe.h"

#include <algorithm>

#include "core/CheckedArithmetic.h"
#include "model/reihen/Konzentrationsreihe.h"

namespace zerna {

namespace {

std::size_t checkedIndex(int index, std::size_t count)
{
    if (index < 0 || static_cast<std::size_t>(index) >= count || count > MaxKomponenten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    return static_cast<std::size_t>(index);
}

} // namespace

Mischungsreihe::Mischungsreihe(const clsCalc& calc, // NOLINT(modernize-pass-by-value): callers lend theirs
    std::span<const Legierungskomponente> komponenten, int variable, int groesse, Reihenart art)
    : m_calc(calc)
    , m_groesse(&reihengroesse(groesse))
    , m_anzahl(komponenten.size())
    , m_variable(checkedIndex(variable, komponenten.size()))
    , m_art(art)
{
    double rest = 0; // at% of the others
    for (std::size_t j = 0; j < m_anzahl; ++j) {
        const Legierungskomponente& k = komponenten[j];
        rest += j == m_variable ? 0 : static_cast<double>(k.prozent);
        m_dichten.at(j) = k.dichte;
        m_massen.at(j) = k.element->Masse();
    }
    for (std::size_t j = 0; j < m_anzahl; ++j) {
        if (j == m_variable)
            continue;
        if (art == Reihenart::Gegeben)
            m_faktoren.at(j) = komponenten[j].prozent;
        else
            m_faktoren.at(j) =
                rest == 0 ? 100.0 / static_cast<double>(m_anzahl - 1) : quotient(100.0 * komponenten[j].prozent, rest);
    }
    if (groesse != GroesseDichte)
        m_anteile = anteile(komponenten);
    else
        berechnet(0); // says what is missing
}

std::array<double, MaxKomponenten> Mischungsreihe::prozente(double x) const
{
    std::array<double, MaxKomponenten> result{};
    for (std::size_t j = 0; j < m_anzahl; ++j)
        result.at(j) = j == m_variable ? x : m_faktoren.at(j) * (100 - x) / 100;
    return result;
}

float Mischungsreihe::wert(double x) const
{
    return orUnbekannt([&] { return berechnet(x); });
}

Reihe Mischungsreihe::reihe() const
{
    Reihe reihe{};
    for (std::size_t i = 0; i < reihe.size(); ++i)
        reihe.at(i) = berechnet(static_cast<double>(i));
    return reihe;
}

float Mischungsreihe::berechnet(double x) const
{
    if (m_groesse->kennzahl == GroesseDichte)
        return dichte(x);
    setComposition(m_calc, std::span(m_anteile).first(m_anzahl), prozente(x));
    return zerna::wert(*m_groesse, m_calc);
}

float Mischungsreihe::dichte(double x) const
{
    const auto dichten = std::span(m_dichten).first(m_anzahl);
    if (m_art == Reihenart::Gegeben)
        return dichtewert(dichten, static_cast<int>(m_variable), x);
    const auto prozent = prozente(x);
    double masse = 0;
    double volumen = 0;
    for (std::size_t j = 0; j < m_anzahl; ++j) {
        if (istUnbekannt(dichten[j]) || istUnbekannt(static_cast<float>(m_massen.at(j))))
            throw Laufzeitfehler(Fehler::UngueltigesArgument);
        masse += prozent.at(j) * m_massen.at(j);
        volumen += prozent.at(j) * quotient(m_massen.at(j), dichten[j]);
    }
    return toSingle(quotient(masse, volumen));
}

} // namespace zerna
