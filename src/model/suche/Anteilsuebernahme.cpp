#include "model/suche/Anteilsuebernahme.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/suche/Drittelement.h"

namespace zerna {

namespace {

/// With the greatest row above the balance row chosen so that what is left for that one comes nearest to `rest`: the
/// rows are summed up in single precision.
Eingabe mitRest(const Eingabe& eingabe, int greatest, double rest)
{
    const int last = eingabe.anzahl() - 1;
    const auto deviation = [&](const Eingabe& e) { return std::abs(e.prozentInKraft(last).wert - toSingle(rest)); };
    const double middle = eingabe.prozentInKraft(greatest).wert - rest + eingabe.prozentInKraft(last).wert;
    Eingabe best = eingabe;
    for (const double step : {1e-5, 1e-6}) {
        for (int i = 0; i <= 20 && deviation(best) > 0; ++i) {
            const int offset = i % 2 == 0 ? i / 2 : -(i + 1) / 2; // 0, -1, 1, -2, …
            Eingabe other = eingabe;
            const double part = (std::round(middle / step) + offset) * step;
            other.setProzent(greatest, textWithDigits(part, 8));
            if (deviation(other) < deviation(best))
                best = std::move(other);
        }
    }
    return best;
}

} // namespace

bool istUebernehmbar(std::span<const double> prozente)
{
    constexpr double Tolerance = 1e-4; // at%
    return std::abs(std::accumulate(prozente.begin(), prozente.end(), -100.0)) <= Tolerance;
}

std::string uebernahmesatz(const Anteilsfrage& frage, std::span<const double> prozente)
{
    if (!istUebernehmbar(prozente)) {
        const double sum = std::accumulate(prozente.begin(), prozente.end(), 0.0);
        return "Hier ergeben die Anteile der gegebenen Reihe zusammen " + fixedText(sum, 2)
            + " at%, die Ausgleichszeile würde sie ändern. Eine Lösung der Mischungsreihe (Summe 100 %) lässt sich "
              "übernehmen: einschalten.";
    }
    if (frage.groesse == GroesseDichte && frage.art == Reihenart::Summe100)
        return "Gesucht ist die Dichte der Mischung (Masse durch Volumen). Die Ergebniszeile mittelt über die at% und "
               "zeigt einen anderen Wert.";
    return {};
}

Eingabe mitAnteilen(Eingabe eingabe, std::span<const double> prozente)
{
    constexpr int Digits = 7; // all that a single tells
    const Anteilseinheit einheit = eingabe.einheit();
    eingabe.setEinheit(Anteilseinheit::Atom);
    for (int row = 0; row < eingabe.anzahl(); ++row)
        eingabe.setProzent(row, textWithDigits(prozente[static_cast<std::size_t>(row)], Digits));
    eingabe.gleicheAus();
    eingabe.setEinheit(einheit);
    return eingabe;
}

Eingabe mitElement(Eingabe eingabe, std::string_view key, double prozent)
{
    const Legierung before = eingabe.legierung().value();
    std::vector<double> parts;
    for (const Legierungskomponente& komponente : aufProzent(before.komponenten(), 100 - prozent))
        parts.push_back(komponente.prozent);
    parts.push_back(prozent);
    const int row = eingabe.anzahl();
    eingabe.setAnzahl(row + 1);
    eingabe.waehleElement(row, key);
    const auto greatest = std::max_element(parts.begin(), parts.end() - 1) - parts.begin();
    const Anteilseinheit einheit = eingabe.einheit();
    Eingabe result = mitAnteilen(std::move(eingabe), parts);
    result.setEinheit(Anteilseinheit::Atom);
    result = mitRest(result, static_cast<int>(greatest), prozent);
    result.setEinheit(einheit);
    return result;
}

} // namespace zerna
