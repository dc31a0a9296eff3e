#include "model/rechnung/Ergebnisse.h"

#include <algorithm>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr std::string_view Zeilenende = "\r\n";
constexpr std::string_view Friedelvorspann = "r(n) = ";
constexpr int Friedelzeilen = 11;
constexpr int LetzteTextzeile = 9;

std::string kompositionszeile(const Komponentenzeile& k)
{
    return k.symbol + ": Konzentration = " + k.prozent + " at% ,Dichte(" + k.dichtewahl + ") = " + k.dichte
        + " g/cm³ ,Valenz(" + k.valenzwahl + ") = " + k.valenz;
}

/// Numbers that a result line can have, those of no line included.
std::size_t positionen() { return static_cast<std::size_t>(ergebniszeilen().back().zeile) + 1; }

/// Whether the line belongs to the results text and has something to say there.
bool isExported(const Groesse& zeile, const Ergebnistexte& texte)
{
    return zeile.zeile <= LetzteTextzeile && texte.at(static_cast<std::size_t>(zeile.zeile)).known;
}

float wavelengthOf(const clsCalc& calc) { return wert(ergebniszeile(Wellenlaengenzeile), calc); }

/// (n + 5/4)·λ in nm.
double friedelradius(float wavelength, int n) { return (n + 5.0 / 4.0) * wavelength; }

} // namespace

Ergebnistexte keineErgebnisse() { return Ergebnistexte(positionen()); }

bool istEtwasBekannt(const Ergebnistexte& texte) { return std::ranges::any_of(texte, &Ergebnistext::known); }

bool berechneErgebnisse(const clsCalc& calc, Ergebnistexte& texte)
{
    texte.resize(positionen());
    bool complete = true;
    for (const Groesse& zeile : ergebniszeilen()) {
        const float value = wert(zeile, calc);
        Ergebnistext& ergebnis = texte.at(static_cast<std::size_t>(zeile.zeile));
        ergebnis.known = !istUnbekannt(value);
        complete = complete && ergebnis.known;
        if (zeile.tippbar)
            ergebnis.text = zeile.einheit;
        else
            ergebnis.text = zeile.zeile == Friedelzeile ? friedelanzeige(calc, 0) : FormatValue(value, zeile.einheit);
    }
    return complete;
}

std::string friedelanzeige(const clsCalc& calc, float n)
{
    const bool known = !istUnbekannt(wavelengthOf(calc));
    return known ? std::string(Friedelvorspann) + FormatValue(calc.Friedelminima(static_cast<int>(n)), "nm") : "";
}

float friedelindex(float n)
{
    if (n > 19)
        n = 0;
    return n < 0 ? 20 : n;
}

std::string ergebnistext(const clsCalc& calc, std::span<const Komponentenzeile> komponenten, const Ergebnistexte& texte)
{
    std::string text = "Modell freier Elektronen";
    text += Zeilenende;
    for (const Komponentenzeile& komponente : komponenten)
        text.append(Zeilenende).append(kompositionszeile(komponente));
    text += Zeilenende;
    for (const Groesse& zeile : ergebniszeilen()) {
        if (isExported(zeile, texte))
            text.append(Zeilenende).append(texte.at(static_cast<std::size_t>(zeile.zeile)).text);
    }
    text.append(Zeilenende).append("Friedelminima:");
    const float wavelength = wavelengthOf(calc);
    for (int n = 0; n < Friedelzeilen && !istUnbekannt(wavelength); ++n)
        text.append(Zeilenende).append("n = " + std::to_string(n) + " r(n) = " + FormatValue(wavelength, "nm"));
    return text;
}

std::string ergebnisdatei(
    const clsCalc& calc, std::span<const Komponentenzeile> komponenten, const Ergebnistexte& texte)
{
    std::string text;
    const auto line = [&](std::string_view content) { text.append(content).append(Zeilenende); };
    line("Modell freier Elektronen");
    line("");
    for (const Komponentenzeile& komponente : komponenten)
        line(kompositionszeile(komponente));
    line("");
    for (const Groesse& zeile : ergebniszeilen()) {
        if (isExported(zeile, texte))
            line(std::string(zeile.beschriftung) + " " + texte.at(static_cast<std::size_t>(zeile.zeile)).text);
    }
    line("");
    line("Friedelminima:");
    const float wavelength = wavelengthOf(calc);
    for (int n = 0; n < Friedelzeilen && !istUnbekannt(wavelength); ++n)
        line("n = " + std::to_string(n) + " r(n) = " + FormatValue(toSingle(friedelradius(wavelength, n)), "nm"));
    return text;
}

std::string friedeldatei(const clsCalc& calc)
{
    std::string text;
    const float wavelength = wavelengthOf(calc);
    for (int n = 0; n < Friedelzeilen && !istUnbekannt(wavelength); ++n) {
        const std::string x = CommaToPoint(textOfDouble(friedelradius(wavelength, n)));
        text.append(x + "\t50").append(Zeilenende);
        text.append(x + "\t55").append(Zeilenende);
        text.append(" \t ").append(Zeilenende);
    }
    return text;
}

Tabelle friedeltabelle(const clsCalc& calc)
{
    Tabelle tabelle{{{"name"}, {"n", true}, {"wert", true}, {"einheit"}}, {}};
    const float wavelength = wavelengthOf(calc);
    for (int n = 0; n < Friedelzeilen && !istUnbekannt(wavelength); ++n)
        tabelle.zeilen.push_back({"Friedelminimum", std::to_string(n),
            textOfSingle(toSingle(friedelradius(wavelength, n)), Dezimaltrenner::Punkt), "nm"});
    return tabelle;
}

std::string kopierteZahl(int index, std::string_view text)
{
    if (index >= Friedelzeile)
        text = text.substr(zeichenbeginn(text, Friedelvorspann.size()));
    return CommaToPoint(text.substr(0, text.find(' ')));
}

std::string wertUndEinheit(std::string_view text)
{
    if (text.starts_with(Friedelvorspann))
        text.remove_prefix(Friedelvorspann.size());
    return std::string(text);
}

std::string ganzeZahl(std::string_view text, std::string_view unit)
{
    std::string number = wertUndEinheit(text);
    if (number.ends_with(unit))
        number.resize(number.size() - unit.size());
    std::erase(number, ' ');
    return number;
}

} // namespace zerna
