#include "model/Herkunft.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <utility>

#include "core/Elementspalten.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/Komposition.h"
#include "model/Quellentabelle.h"

namespace zerna {

namespace {

constexpr std::string_view Konfiguration = "Elektronenkonfiguration";

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> Dichtespalten{{
    {"amorph", "Dichte_Amorph"},
    {"flüssig", "Dichte_Fluessig"},
    {"kristallin", "Dichte_Kristallin"},
}};

const Zellquelle* findZelle(std::string_view symbol, std::string_view spalte)
{
    const auto zelle = std::ranges::find_if(
        Zellquellen, [&](const Zellquelle& z) { return z.symbol == symbol && z.spalte == spalte; });
    return zelle == Zellquellen.end() ? nullptr : &*zelle;
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
std::string otherValue(const Zellquelle* zelle, const Elementspalte& spalte)
{
    if (zelle == nullptr || zelle->wert.empty())
        return {};
    return " (Quelle nennt "
        + std::string(trimmed(ReplaceText(zelle->wert, ".", ",") + " " + std::string(spalte.einheit))) + ")";
}

std::string textFor(const clsElement& element, const Elementspalte& spalte, const auto& wert)
{
    const Zellquelle* const zelle = findZelle(element.symbol(), spalte.name);
    if (zelle != nullptr && istWert(wert, zelle->wert))
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
