#include "model/dokument/Vergleichstabelle.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Anzeigetext.h"
#include "core/CheckedArithmetic.h"
#include "model/dokument/Varianten.h"
#include "model/rechnung/Groessen.h"

namespace zerna {

namespace {

constexpr int Digits = 7; // of a single

/// A difference of singles to the last digit that one of that magnitude has.
double gerundet(double value, double greatest)
{
    if (greatest == 0)
        return value;
    const double step = std::pow(10, std::floor(std::log10(std::abs(greatest))) + 1 - Digits);
    return step == 0 ? value : std::round(value / step) * step;
}

/// A single as the decimal number that it is written as, so that 0.3 - 0.1 is 0.2.
double geschrieben(float value) { return doubleFromText(textOfSingle(value)); }

float differenz(float value, float reference)
{
    const double a = geschrieben(value);
    const double b = geschrieben(reference);
    return toSingle(gerundet(a - b, std::max(std::abs(a), std::abs(b))));
}

float prozent(float value, float reference)
{
    const double percent = quotient(static_cast<double>(value) - reference, reference) * 100;
    return toSingle(gerundet(percent, std::max(std::abs(percent), 100.0)));
}

float anteil(const Eingabefeld& feld) { return feld.fehler ? Unbekannt : feld.wert; }

float summe(float a, float b)
{
    if (istUnbekannt(a) || istUnbekannt(b))
        return Unbekannt;
    return orUnbekannt([&] { return toSingle(geschrieben(a) + geschrieben(b)); });
}

std::string eingabeanzeige(float value) { return textWithDigits(value, Digits); }

/// A result as it is shown without its unit, but 0 can be told from an unknown value.
std::string ergebnisanzeige(float value)
{
    return value == 0 ? std::string("0") : std::string(trimmed(FormatValue(value, "")));
}

} // namespace

void Vergleichstabelle::setze(const Vergleich& vergleich, const clsCalc& calc)
{
    std::vector<Spalte> before = std::exchange(m_spalten, {});
    clsCalc copy = calc;
    for (const Variante& variante : vergleich.varianten) {
        const auto known = std::ranges::find(before, variante.eingabe, &Spalte::eingabe);
        m_spalten.push_back(known != before.end() ? *known : berechnet(variante, copy));
        m_spalten.back().name = einzeilig(variante.name);
    }
    m_referenz = vergleich.referenz < m_spalten.size() ? vergleich.referenz : 0;
    ordneZeilen();
}

Vergleichstabelle::Spalte Vergleichstabelle::berechnet(const Variante& variante, clsCalc& calc)
{
    const Eingabe& eingabe = variante.eingabe;
    Spalte spalte{{}, eingabe, {}, {}};
    const std::vector<Eingabefeld> massen = eingabe.anteile(Anteilseinheit::Masse);
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        const Eingabe::Zeile& row = eingabe.zeile(i);
        if (!row.element)
            continue;
        const float atome = anteil(eingabe.prozentInKraft(i));
        const float masse = anteil(eingabe.istAusgleich(i) && eingabe.quelle() == Anteilseinheit::Masse
                ? eingabe.anteilInKraft(i)
                : massen.at(static_cast<std::size_t>(i)));
        const auto same = std::ranges::find(spalte.bestandteile, row.element->symbol(), &Bestandteil::symbol);
        if (same == spalte.bestandteile.end()) {
            spalte.bestandteile.push_back(
                {row.element->symbol(), atome, masse, row.inKraft.dichte, row.inKraft.valenz});
        } else {
            same->atome = summe(same->atome, atome);
            same->masse = summe(same->masse, masse);
        }
    }
    const bool isComputed = berechne(eingabe, calc).empty();
    for (const Groesse& groesse : ergebniszeilen())
        spalte.ergebnisse.push_back(isComputed ? zerna::wert(groesse, calc) : Unbekannt);
    return spalte;
}

/// Lines and their values follow from the elements that occur now.
void Vergleichstabelle::ordneZeilen()
{
    m_zeilen.clear();
    for (Spalte& spalte : m_spalten)
        spalte.werte.clear();
    std::vector<std::string> symbols;
    for (const Spalte& spalte : m_spalten) {
        for (const Bestandteil& teil : spalte.bestandteile) {
            if (std::ranges::find(symbols, teil.symbol) == symbols.end())
                symbols.push_back(teil.symbol);
        }
    }
    const auto addEntered = [&](const char* caption, const char* unit, float Bestandteil::*value, float absent) {
        for (const std::string& symbol : symbols) {
            m_zeilen.push_back({caption + (' ' + symbol), unit});
            for (Spalte& spalte : m_spalten) {
                const auto found = std::ranges::find(spalte.bestandteile, symbol, &Bestandteil::symbol);
                spalte.werte.push_back(found == spalte.bestandteile.end() ? absent : (*found).*value);
            }
        }
    };
    if (m_spalten.empty())
        return;
    addEntered("Anteil", "at%", &Bestandteil::atome, 0);
    for (const Groesse& groesse : ergebniszeilen())
        m_zeilen.push_back({std::string(groesse.bezeichnung()), std::string(groesse.einheit), true});
    for (Spalte& spalte : m_spalten)
        spalte.werte.insert(spalte.werte.end(), spalte.ergebnisse.begin(), spalte.ergebnisse.end());
    addEntered("Massenanteil", "Masse %", &Bestandteil::masse, 0);
    addEntered("Dichte", "g/cm³", &Bestandteil::dichte, Unbekannt);
    addEntered("Valenz", "e/a", &Bestandteil::valenz, Unbekannt);
}

float Vergleichstabelle::wert(std::size_t zeile, std::size_t spalte, Vergleichsart art) const
{
    const float value = m_spalten.at(spalte).werte.at(zeile);
    if (art == Vergleichsart::Wert || istReferenz(spalte))
        return value;
    const float reference = m_spalten.at(m_referenz).werte.at(zeile);
    if (istUnbekannt(value) || istUnbekannt(reference))
        return Unbekannt;
    return orUnbekannt(
        [&] { return art == Vergleichsart::Differenz ? differenz(value, reference) : prozent(value, reference); });
}

std::string Vergleichstabelle::anzeige(std::size_t zeile, std::size_t spalte, Vergleichsart art) const
{
    const float value = wert(zeile, spalte, art);
    if (istUnbekannt(value))
        return {};
    const bool asEntered = !m_zeilen.at(zeile).istErgebnis;
    if (art == Vergleichsart::Wert || istReferenz(spalte))
        return anzeigetext(asEntered ? eingabeanzeige(value) : ergebnisanzeige(value));
    const bool isPercent = art == Vergleichsart::Prozent;
    const float amount = std::abs(value); // the sign goes in front of any number alike
    const std::string text = asEntered && !isPercent ? eingabeanzeige(amount) : ergebnisanzeige(amount);
    const std::string sign = value == 0 ? "" : value < 0 ? "−" : "+";
    return sign + anzeigetext(text) + (isPercent ? " %" : "");
}

std::string Vergleichstabelle::zahl(
    std::size_t zeile, std::size_t spalte, Vergleichsart art, Dezimaltrenner trenner) const
{
    const float value = wert(zeile, spalte, art);
    return istUnbekannt(value) ? std::string() : textOfSingle(value, trenner);
}

Tabelle Vergleichstabelle::tabelle(Vergleichsart art, Dezimaltrenner trenner) const
{
    Tabelle tabelle{{{"Größe"}, {"Einheit"}}, {}};
    for (std::size_t spalte = 0; spalte < m_spalten.size(); ++spalte) {
        const std::string& reference = m_spalten.at(m_referenz).name;
        std::string heading = name(spalte);
        if (art == Vergleichsart::Differenz && !istReferenz(spalte))
            heading += " − " + reference;
        else if (art == Vergleichsart::Prozent && !istReferenz(spalte))
            heading += " gegen " + reference + " in %";
        tabelle.spalten.push_back({std::move(heading), true});
    }
    for (std::size_t zeile = 0; zeile < m_zeilen.size(); ++zeile) {
        std::vector<std::string> zellen{m_zeilen[zeile].name, m_zeilen[zeile].einheit};
        for (std::size_t spalte = 0; spalte < m_spalten.size(); ++spalte)
            zellen.push_back(zahl(zeile, spalte, art, trenner));
        tabelle.zeilen.push_back(std::move(zellen));
    }
    return tabelle;
}

} // namespace zerna
