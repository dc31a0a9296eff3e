#include "bild/Messkurvenbild.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "bild/Kurvenfarben.h"

namespace zerna {

namespace {

constexpr Farbe Markenfarbe{176, 32, 32};

/// The points in nm or 1/nm.
std::vector<Punkt> punkteIn(const std::vector<Messpunkt>& punkte, double factor)
{
    std::vector<Punkt> result;
    result.reserve(punkte.size());
    for (const auto& [x, y] : punkte)
        result.push_back({x * factor, y});
    return result;
}

void widen(std::optional<Bereich>& range, double low, double high)
{
    range = range ? Bereich{std::min(range->min, low), std::max(range->max, high)} : Bereich{low, high};
}

/// A twentieth more on both sides.
Bereich withMargin(const Bereich& range)
{
    constexpr double Margin = 0.05;
    const double margin = Margin * (range.max > range.min ? range.max - range.min : 1);
    return {range.min - margin, range.max + margin};
}

Achse achse(std::string_view name, std::string_view unit, const Bereich& range)
{
    return {std::string(name) + (unit.empty() ? "" : " in " + std::string(unit)), range, std::string(unit), true};
}

} // namespace

Kurvenbild messkurvenbild(const Messauswertung& auswertung, Messart art)
{
    const bool isG = art == Messart::Paarverteilung;
    Kurvenbild bild;
    bild.titel = isG ? "Paarverteilung g(r) und Friedelminima r(n)" : "Strukturfaktor S(K) und 2 kF";
    std::optional<Bereich> x;
    std::optional<Bereich> y;
    for (std::size_t i = 0; i < auswertung.kurven().size(); ++i) {
        const Messkurve& measured = auswertung.kurven()[i];
        if (measured.art != art)
            continue;
        const Kurvenaussehen look = kurvenaussehen(bild.kurven.size() / 2); // each has its maxima beside it
        std::vector<Punkt> punkte = punkteIn(*measured.punkte, faktorNm(measured));
        const auto [low, high] = std::ranges::minmax(punkte, {}, &Punkt::y);
        widen(x, punkte.front().x, punkte.back().x);
        widen(y, low.y, high.y);
        bild.kurven.push_back({measured.name, std::move(punkte), look.farbe, look.linie});
        bild.kurven.push_back({{}, punkteIn(auswertung.maxima(i), 1), look.farbe, Linienart::Keine, look.zeichen});
    }
    bild.x = achse(messachse(art), einheitentext(art, Messeinheit::Nanometer), x.value_or(Bereich{0, 1}));
    bild.y = achse(messgroesse(art), {}, withMargin(y.value_or(Bereich{0, 1})));
    return bild;
}

std::string messkurvenwerte(const Kurvenbild& bild)
{
    const auto isMeasured = [](const Kurve& kurve) { return kurve.linie != Linienart::Keine; };
    const bool isOne = std::ranges::count_if(bild.kurven, isMeasured) == 1;
    std::string text;
    for (const Kurve& kurve : bild.kurven) {
        if (!isMeasured(kurve))
            continue;
        if (!isOne)
            text += (text.empty() ? "# " : "\r\n# ") + kurve.name + "\r\n";
        for (const auto& [x, y] : kurve.punkte)
            text += textOfDouble(x, Dezimaltrenner::Punkt) + '\t' + textOfDouble(y, Dezimaltrenner::Punkt) + "\r\n";
    }
    return text;
}

Messbeiwerk messbeiwerk(const clsCalc& calc, Messart art, const Bereich& x, std::string_view legierung)
{
    Messbeiwerk beiwerk;
    beiwerk.untertitel = legierung;
    if (art == Messart::Strukturfaktor) {
        if (const float kf = zweiKf(calc); istUnbekannt(kf))
            beiwerk.hinweise.emplace_back("2 kF der Legierung ist unbekannt.");
        else
            beiwerk.marken.push_back({kf, "2 kF", Markenfarbe});
        return beiwerk;
    }
    int n = 0; // counted from 1, as in the results
    for (const float r : friedelminimaBis(calc, x.max))
        beiwerk.marken.push_back({r, "r(" + std::to_string(++n) + ")", Markenfarbe});
    if (beiwerk.marken.empty())
        beiwerk.hinweise.emplace_back("Die Friedelminima der Legierung sind unbekannt oder liegen außerhalb.");
    return beiwerk;
}

} // namespace zerna
