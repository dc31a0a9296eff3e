#include "model/messung/Messvergleich.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/CheckedArithmetic.h"
#include "model/messung/Messmaxima.h"
#include "model/rechnung/Groessen.h"

namespace zerna {

namespace {

constexpr double Versatz = 0.25; // wavelengths: r(n) = (n + 1/4)·λ

float wellenlaenge(const clsCalc& calc) { return wert(ergebniszeile(Wellenlaengenzeile), calc); }

/// Intended: the calculator counts the minima from 0, whoever shows them from 1.
float friedelminimum(const clsCalc& calc, int n)
{
    return orUnbekannt([&] { return calc.Friedelminima(n - 1); });
}

void vergleicheMitMinimum(Messbefund& befund, const clsCalc& calc, float lambda)
{
    constexpr double Farthest = 1e6; // wavelengths
    const double place = befund.maximum.x / lambda - Versatz;
    if (istUnbekannt(lambda) || !(lambda > 0) || !(place < Farthest))
        return;
    befund.n = std::max(1, static_cast<int>(std::lround(place)));
    befund.modell = friedelminimum(calc, befund.n);
}

std::string mitVorzeichen(double value, int decimals, Dezimaltrenner trenner)
{
    const std::string text = fixedText(value, decimals, trenner);
    const bool isZero = text.find_first_of("123456789") == std::string::npos;
    return (value > 0 && !isZero ? "+" : "") + text;
}

} // namespace

void Messauswertung::setKurven(const Geteilt<std::vector<Messkurve>>& kurven)
{
    std::vector<Gefunden> found;
    for (const Messkurve& kurve : *kurven) {
        const auto known = std::ranges::find_if(
            m_gefunden, [&](const Gefunden& gefunden) { return gefunden.punkte.istDasselbe(kurve.punkte); });
        found.push_back(known != m_gefunden.end() ? *known : Gefunden{kurve.punkte, zerna::maxima(*kurve.punkte)});
    }
    m_kurven = kurven;
    m_gefunden = std::move(found);
}

std::vector<Messpunkt> Messauswertung::maxima(std::size_t index) const
{
    std::vector<Messpunkt> maxima = m_gefunden.at(index).maxima;
    const double factor = faktorNm(kurven().at(index));
    for (Messpunkt& maximum : maxima)
        maximum.x *= factor;
    return maxima;
}

std::vector<Messbefund> Messauswertung::vergleich(Messart art, const clsCalc& calc) const
{
    const float lambda = wellenlaenge(calc);
    std::vector<Messbefund> befunde;
    for (std::size_t i = 0; i < kurven().size(); ++i) {
        if (kurven().at(i).art != art)
            continue;
        const std::vector<Messpunkt> found = maxima(i);
        if (art == Messart::Strukturfaktor) {
            if (const Messpunkt* const kp = hauptmaximum(found))
                befunde.push_back({i, *kp, 0, zweiKf(calc)});
            continue;
        }
        for (const Messpunkt& maximum : found) {
            befunde.push_back({i, maximum});
            vergleicheMitMinimum(befunde.back(), calc, lambda);
        }
    }
    return befunde;
}

const Messpunkt* hauptmaximum(const std::vector<Messpunkt>& maxima)
{
    const auto highest = std::ranges::max_element(maxima, {}, &Messpunkt::y);
    return highest == maxima.end() ? nullptr : &*highest;
}

float zweiKf(const clsCalc& calc) { return wert(ergebniszeile(Kf2Zeile), calc); }

std::vector<float> friedelminimaBis(const clsCalc& calc, double radius)
{
    const float lambda = wellenlaenge(calc);
    if (istUnbekannt(lambda) || !(lambda > 0) || !(radius / lambda < static_cast<double>(MeisteMinima)))
        return {};
    std::vector<float> minima;
    for (int n = 1;; ++n) {
        const float r = friedelminimum(calc, n);
        if (istUnbekannt(r) || r > radius)
            return minima;
        minima.push_back(r);
    }
}

Tabelle messtabelle(
    const std::vector<Messbefund>& befunde, const std::vector<Messkurve>& kurven, Messart art, Dezimaltrenner trenner)
{
    const bool isG = art == Messart::Paarverteilung;
    const int decimals = isG ? 5 : 3;
    constexpr int Height = 3; // decimals
    Tabelle tabelle;
    if (isG)
        tabelle.spalten = {
            {"Kurve"}, {"r in nm", true}, {"g(r)", true}, {"n", true}, {"r(n) in nm", true}, {"r − r(n) in nm", true}};
    else
        tabelle.spalten = {
            {"Kurve"}, {"Kp in 1/nm", true}, {"S(Kp)", true}, {"2 kF in 1/nm", true}, {"Kp − 2 kF in 1/nm", true}};
    for (const Messbefund& befund : befunde) {
        const bool isKnown = !istUnbekannt(befund.modell);
        std::vector<std::string> zeile{kurven.at(befund.kurve).name, fixedText(befund.maximum.x, decimals, trenner),
            fixedText(befund.maximum.y, Height, trenner)};
        if (isG)
            zeile.push_back(isKnown ? std::to_string(befund.n) : "");
        zeile.push_back(isKnown ? fixedText(befund.modell, decimals, trenner) : "");
        zeile.push_back(isKnown ? mitVorzeichen(befund.differenz(), decimals, trenner) : "");
        tabelle.zeilen.push_back(std::move(zeile));
    }
    return tabelle;
}

} // namespace zerna
