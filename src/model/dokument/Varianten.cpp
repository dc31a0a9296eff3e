#include "model/dokument/Varianten.h"

#include <algorithm>

#include "core/Laufzeitfehler.h"
#include "core/Zahlentext.h"
#include "core/Zeichensatz.h"
#include "model/rechnung/Befund.h"

namespace zerna {

namespace {

using Position = std::vector<Variante>::difference_type;

void pruefe(const Vergleich& vergleich, std::size_t position)
{
    if (position >= vergleich.varianten.size())
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
}

/// "Al60Cu40", or "Al96Cu4 Masse %" if that is what was typed; what has no part is left out.
std::string formel(const Eingabe& eingabe)
{
    constexpr int Digits = 7; // of a single
    std::string text;
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        const auto& element = eingabe.zeile(i).element;
        const Eingabefeld& anteil = eingabe.anteilInKraft(i);
        if (!element || anteil.wert == 0)
            continue;
        text += element->symbol();
        if (anteil.fehler || anteil.wert != 100)
            text += anteil.fehler ? anteil.text : textWithDigits(anteil.wert, Digits);
    }
    if (eingabe.quelle() == Anteilseinheit::Masse)
        text.append(" ").append(einheitenname(eingabe.quelle()));
    return text;
}

/// The name unlike those of the alloys but one.
std::string eindeutig(const Vergleich& vergleich, std::size_t ohne, const std::string& wunsch)
{
    const auto isTaken = [&](const std::string& name) {
        for (std::size_t i = 0; i < vergleich.varianten.size(); ++i) {
            if (i != ohne && vergleich.varianten[i].name == name)
                return true;
        }
        return false;
    };
    std::string name = wunsch;
    for (int n = 2; isTaken(name); ++n)
        name = wunsch + " (" + std::to_string(n) + ')';
    return name;
}

} // namespace

std::string berechne(const Eingabe& eingabe, clsCalc& calc)
{
    const std::vector<Befund> alle = befunde(eingabe);
    const Befund* const befund = wichtigster(alle);
    if (befund != nullptr && befund->schwere == Schwere::Fehler)
        return befundtext(eingabe, *befund);
    calc.Legierung_Setzen(eingabe.legierung().value().komponenten());
    const auto mittel = mittelbefund(eingabe, calc);
    return mittel ? befundtext(eingabe, *mittel) : std::string();
}

std::string merkhindernis(const Vergleich& vergleich, const Eingabe& eingabe, const clsCalc& calc)
{
    if (vergleich.varianten.size() >= MaxVarianten)
        return "Es sind schon " + std::to_string(MaxVarianten)
            + " Legierungen gemerkt, mehr gehen nicht. Im Vergleich eine löschen.";
    clsCalc copy = calc;
    return berechne(eingabe, copy);
}

std::size_t merken(Vergleich& vergleich, const Eingabe& eingabe)
{
    const std::size_t position = vergleich.varianten.size();
    if (position >= MaxVarianten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    vergleich.varianten.push_back({eindeutig(vergleich, position, formel(eingabe)), eingabe, {}});
    return position;
}

void umbenennen(Vergleich& vergleich, std::size_t position, std::string_view name)
{
    pruefe(vergleich, position);
    Variante& variante = vergleich.varianten[position];
    const std::string line = einzeilig(name);
    variante.name = eindeutig(vergleich, position, line.empty() ? formel(variante.eingabe) : line);
}

void verschieben(Vergleich& vergleich, std::size_t von, std::size_t nach)
{
    pruefe(vergleich, von);
    pruefe(vergleich, nach);
    const auto at = [&](std::size_t position) { return vergleich.varianten.begin() + static_cast<Position>(position); };
    std::size_t& referenz = vergleich.referenz;
    if (von < nach)
        std::rotate(at(von), at(von) + 1, at(nach) + 1);
    else
        std::rotate(at(nach), at(von), at(von) + 1);
    if (referenz == von)
        referenz = nach;
    else if (von < referenz && referenz <= nach)
        --referenz;
    else if (nach <= referenz && referenz < von)
        ++referenz;
}

void loeschen(Vergleich& vergleich, std::size_t position)
{
    pruefe(vergleich, position);
    vergleich.varianten.erase(vergleich.varianten.begin() + static_cast<Position>(position));
    if (vergleich.referenz == position)
        vergleich.referenz = 0;
    else if (vergleich.referenz > position)
        --vergleich.referenz;
}

void setzeReferenz(Vergleich& vergleich, std::size_t position)
{
    pruefe(vergleich, position);
    vergleich.referenz = position;
}

std::string einzeilig(std::string_view name)
{
    constexpr std::size_t LongestName = 60;
    std::string line(name);
    std::ranges::replace_if(
        line, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, ' ');
    line = trimmed(line);
    line.resize(zeichenbeginn(line, LongestName));
    return std::string(trimmed(line));
}

} // namespace zerna
