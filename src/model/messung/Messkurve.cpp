#include "model/messung/Messkurve.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace zerna {

double faktorNm(const Messkurve& kurve)
{
    constexpr double AngstroemJeNm = 10;
    if (kurve.einheit == Messeinheit::Nanometer)
        return 1;
    return kurve.art == Messart::Paarverteilung ? 1 / AngstroemJeNm : AngstroemJeNm;
}

std::string_view messgroesse(Messart art) { return art == Messart::Paarverteilung ? "g(r)" : "S(K)"; }

std::string_view messachse(Messart art) { return art == Messart::Paarverteilung ? "r" : "K"; }

std::string_view einheitentext(Messart art, Messeinheit einheit)
{
    if (art == Messart::Paarverteilung)
        return einheit == Messeinheit::Nanometer ? "nm" : "Å";
    return einheit == Messeinheit::Nanometer ? "1/nm" : "1/Å";
}

std::size_t messpunktzahl(const std::vector<Messkurve>& kurven)
{
    return std::transform_reduce(kurven.begin(), kurven.end(), std::size_t{0}, std::plus{},
        [](const Messkurve& kurve) { return kurve.punkte->size(); });
}

bool istAufsteigend(const std::vector<Messpunkt>& punkte)
{
    return std::ranges::adjacent_find(punkte, std::greater_equal{}, &Messpunkt::x) == punkte.end();
}

} // namespace zerna
