#include "model/rechnung/Herkunft.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <optional>
#include <utility>

#include "core/Elementspalten.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/eingabe/Komposition.h"
#include "model/rechnung/Quellentabelle.h"

namespace zerna {

namespace {

constexpr std::string_view Konfiguration = "Elektronenkonfiguration";

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> Dichtespalten{{
    {"amorph", "Dichte_Amorph"},
    {"flüssig", "Dichte_Fluessig"},
    {"kristallin", "Dichte_Kristallin"},
}};

/// The source of one cell of the shipped table.
struct Zellquelle {
    std::string_view wert;
    const Quelle* quelle = nullptr;
};

/// No value for an element that the shipped table lacks.
std::optional<Zellquelle> findZelle(std::string_view symbol, const Elementspalte& spalte)
{
    const auto zeile = std::ranges::find(Quellzeilen, symbol, &Zeilenquelle::symbol);
    if (zeile == Quellzeilen.end())
        return std::nullopt;
    const auto column = static_cast<std::size_t>(
        std::ranges::find(Elementspalten, spalte.name, &Elementspalte::name) - Elementspalten.begin());
    std::string_view werte = zeile->werte;
    for (std::size_t i = 0; i < column; ++i)
        werte.remove_prefix(werte.find('\t') + 1);
    return Zellquelle{werte.substr(0, werte.find('\t')), &Quellen[zeile->quellen.at(column)]};
}

bool istBekannt(float wert) { return !istUnbekannt(wert); }
bool istBekannt(const auto&) { return true; }

bool istWert(float wert, std::string_view text)
{
    return text.empty() ? istUnbekannt(wert) : wert == singleFromText(text);
}
bool istWert(std::integral auto wert, std::string_view text) { return std::to_string(wert) == text; }
bool istWert(const std::string& wert, std::string_view text) { return wert == text; }
bool istWert(const Elektronenzahlen&, std::string_view) { return true; } // tells the configuration in another way

std::string sourceLines(const Quelle& quelle)
{
    std::string lines = "Quelle: " + std::string(quelle.quelle);
    if (!quelle.zustand.empty())
        lines.append("\nZustand: ").append(quelle.zustand);
    if (!quelle.bemerkung.empty())
        lines.append("\nBemerkung: ").append(quelle.bemerkung);
    return lines;
}

/// What the source gives in place of the value that is there.
std::string otherValue(const std::optional<Zellquelle>& zelle, const Elementspalte& spalte)
{
    if (!zelle || zelle->wert.empty())
        return {};
    return " (Quelle nennt "
        + std::string(trimmed(ReplaceText(zelle->wert, ".", ",") + " " + std::string(spalte.einheit))) + ")";
}

std::string textFor(const clsElement& element, const Elementspalte& spalte, const auto& wert)
{
    const auto zelle = findZelle(element.symbol(), spalte);
    if (zelle && istWert(wert, zelle->wert))
        return istBekannt(wert) ? sourceLines(*zelle->quelle) : "unbekannt: " + std::string(zelle->quelle->bemerkung);
    return std::string(istBekannt(wert) ? EigenerWert : "unbekannt: fehlt in der Elementtabelle")
        + otherValue(zelle, spalte);
}

} // namespace

std::string herkunft(const clsElement& element, std::string_view spalte)
{
    std::string text;
    forEachSpalte([&](const Elementspalte& s, auto field) {
        if (s.name == spalte)
            text = textFor(element, s, element.record().*field);
    });
    return text;
}

std::vector<std::string> auskunftsherkunft(const clsElement& element)
{
    std::vector<std::string> texts;
    for (const Elementspalte& spalte : Elementspalten) {
        const auto zeile = static_cast<std::size_t>(spalte.zeile);
        texts.resize(std::max(texts.size(), zeile));
        if (zeile > 0)
            texts[zeile - 1] = herkunft(element, spalte.name);
    }
    return texts;
}

std::string dichteherkunft(const clsElement& element, std::string_view wahl)
{
    for (const auto& [art, spalte] : Dichtespalten) {
        if (art == wahl)
            return herkunft(element, spalte);
    }
    return std::string(EigenerWert);
}

std::string valenzherkunft(const clsElement& element, int code)
{
    if (code == ValenzStandard)
        return herkunft(element, "Valenz");
    if (code == ValenzAndere)
        return std::string(EigenerWert);
    return "Zahl der " + std::string(OrbitalLabel(code)) + " in " + element.Elektronenkonfiguration() + "\n"
        + herkunft(element, Konfiguration);
}

} // namespace zerna
