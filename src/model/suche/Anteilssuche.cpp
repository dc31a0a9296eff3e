#include "model/suche/Anteilssuche.h"

#include <cmath>

#include "core/Zahlentext.h"

namespace zerna {

namespace {

/// All digits of a single that are sure.
std::string zahlMitEinheit(float value, std::string_view einheit)
{
    constexpr int Sure = 7;
    return textWithDigits(value, Sure) + ' ' + std::string(einheit);
}

} // namespace

std::string zielhindernis(const Eingabefeld& ziel)
{
    if (!ziel.fehler)
        return {};
    const bool isEmpty = ziel.text.find_first_not_of(' ') == std::string::npos;
    return isEmpty ? "Einen Wert eintragen, der gesucht wird." : ziel.fehler->text();
}

Zielantwort sucheAnteil(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, const Anteilsfrage& frage)
{
    const Mischungsreihe reihe(calc, komponenten, frage.komponente, frage.groesse, frage.art);
    return sucheZiel([&](double prozent) { return reihe.wert(prozent); }, frage.ziel);
}

std::array<double, MaxKomponenten> zusammensetzung(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, const Anteilsfrage& frage, double prozent)
{
    const bool inEqualParts = frage.groesse == GroesseDichte && frage.art == Reihenart::Gegeben;
    if (!inEqualParts)
        return Mischungsreihe(calc, komponenten, frage.komponente, frage.groesse, frage.art).prozente(prozent);
    std::array<double, MaxKomponenten> parts{};
    for (std::size_t j = 0; j < komponenten.size(); ++j)
        parts.at(j) = (100 - prozent) / (static_cast<double>(komponenten.size()) - 1);
    parts.at(static_cast<std::size_t>(frage.komponente)) = prozent;
    return parts;
}

std::string anteiltext(double prozent, Dezimaltrenner trenner)
{
    constexpr double Finest = 1e6;
    constexpr int Sure = 7;
    return textWithDigits(std::round(prozent * Finest) / Finest, Sure, trenner);
}

std::string antwortsatz(const Zielantwort& antwort, const Anteilsfrage& frage, std::string_view symbol)
{
    const std::string_view einheit = findReihengroesse(frage.groesse)->einheit;
    const std::string ziel = zahlMitEinheit(frage.ziel, einheit);
    if (antwort.ueberall)
        return "Jede Zusammensetzung hat " + ziel + ".";
    if (!antwort.loesungen.empty())
        return {};
    if (!antwort.naechste)
        return "Die Größe hat bei keiner Zusammensetzung einen Wert.";
    return "Keine Zusammensetzung hat " + ziel + ". Am nächsten kommt "
        + zahlMitEinheit(antwort.naechste->wert, einheit) + " bei " + anteiltext(antwort.naechste->prozent) + " at% "
        + std::string(symbol) + ".";
}

} // namespace zerna
