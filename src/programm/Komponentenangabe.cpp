#include "programm/Komponentenangabe.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "core/Elementvorschlag.h"
#include "core/Kuerzung.h"
#include "core/Namensnaehe.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/eingabe/Komposition.h"

namespace zerna {

namespace {

constexpr std::string_view Schreibweise =
    "erwartet wird SYMBOL=ATPROZENT[:dichte=ZAHL|amorph|fluessig|kristallin][:valenz=s|p|d|f|TEXT]";

/// The density choice that an argument's word means: umlauts are hard to type on some command lines.
std::string_view dichtewahl(std::string_view word) { return word == "fluessig" ? "flüssig" : word; }

/// The valence choice that one of the letters s, p, d, f means.
std::optional<int> orbitalcode(std::string_view text)
{
    const std::size_t code = text.size() == 1 ? std::string_view("spdf").find(text) : std::string_view::npos;
    return code == std::string_view::npos ? std::nullopt : std::optional(static_cast<int>(code));
}

/// Takes what stands behind the at%.
class Zusaetze {
public:
    explicit Zusaetze(Komponentenangabe& angabe)
        : m_angabe(angabe)
    {
    }

    std::string take(std::string_view key, std::string_view value)
    {
        const bool isDichte = key == "dichte";
        if (!isDichte && key != "valenz")
            return "unbekannte Angabe " + zitiert(key)
                + satzende(vorschlag(key, std::array<std::string, 2>{"dichte", "valenz"}));
        if (std::exchange(isDichte ? m_hasDichte : m_hasValenz, true))
            return zitiert(key) + " ist mehrmals angegeben";
        (isDichte ? m_angabe.dichte : m_angabe.valenz) = value;
        return {};
    }

private:
    Komponentenangabe& m_angabe;
    bool m_hasDichte = false;
    bool m_hasValenz = false;
};

std::string liesDichte(const Komponentenangabe& angabe, Komponentenwahl& wahl)
{
    const std::vector<std::string_view> known = dichteauswahl(*wahl.element);
    const std::string_view word = angabe.dichte.empty() ? known.front() : dichtewahl(angabe.dichte);
    const auto found = std::ranges::find(known, word);
    wahl.dichtewahl = AndereWahl;
    if (readSingle(word, wahl.dichte))
        return {};
    if (word == AndereWahl || found == known.end())
        return angabe.dichte.empty() ? "keine Dichte bekannt, dichte=ZAHL angeben"
                                     : "Dichte " + zitiert(angabe.dichte) + " ist nicht bekannt"
                + satzende(vorschlag( // without <andere>
                    angabe.dichte, std::vector<std::string>(known.begin(), known.end() - 1)));
    wahl.dichtewahl = *found;
    wahl.dichte = dichteFor(*wahl.element, *found);
    return {};
}

std::string liesValenzwahl(const Komponentenangabe& angabe, Komponentenwahl& wahl)
{
    const std::optional<int> orbital = orbitalcode(angabe.valenz);
    wahl.valenzwahl = orbital.value_or(angabe.valenz.empty() ? ValenzStandard : ValenzAndere);
    const std::vector<Valenzeintrag> known = valenzauswahl(*wahl.element);
    if (std::ranges::find(known, wahl.valenzwahl, &Valenzeintrag::code) != known.end())
        return {};
    return "keine " + std::string(OrbitalLabel(wahl.valenzwahl)) + " außerhalb des Edelgasrumpfs";
}

} // namespace

std::string liesAngabe(std::string_view text, Komponentenangabe& angabe)
{
    angabe = {};
    angabe.text = text;
    std::string_view rest = text;
    const auto nextPart = [&rest] {
        const std::size_t colon = std::min(rest.find(':'), rest.size());
        const std::string_view part = rest.substr(0, colon);
        rest.remove_prefix(std::min(colon + 1, rest.size()));
        return part;
    };
    Zusaetze zusaetze(angabe);
    for (bool first = true; first || !rest.empty(); first = false) {
        const std::string_view part = nextPart();
        const std::size_t equals = part.find('=');
        if (equals == std::string_view::npos || equals == 0)
            return std::string(Schreibweise);
        const std::string_view key = part.substr(0, equals);
        const std::string_view value = part.substr(equals + 1);
        if (first) {
            angabe.symbol = key;
            angabe.prozent = value;
        } else if (std::string grund = zusaetze.take(key, value); !grund.empty()) {
            return grund;
        }
    }
    return text.ends_with(':') ? "hinter \":\" fehlt eine Angabe" : std::string();
}

std::string liesWahl(const ElementCollection& elements, const Komponentenangabe& angabe, Komponentenwahl& wahl)
{
    wahl.element = elements.find(angabe.symbol, true);
    if (!wahl.element)
        return "Element " + zitiert(angabe.symbol) + " ist nicht bekannt"
            + satzende(elementvorschlag(angabe.symbol, elements));
    std::string grund = liesDichte(angabe, wahl);
    return grund.empty() ? liesValenzwahl(angabe, wahl) : grund;
}

Eingabefeld valenzfeld(const ElementCollection& elements, const Komponentenangabe& angabe, const Komponentenwahl& wahl)
{
    const bool isTyped = wahl.valenzwahl == ValenzAndere;
    return valenzfeld(isTyped ? angabe.valenz : feldtext(valenzFor(*wahl.element, wahl.valenzwahl)), elements);
}

std::string valenzgrund(const Eingabefeld& valenz)
{
    return valenz.fehler ? "Valenz " + zitiert(valenz.text) + ": " + valenz.fehler->text() : std::string();
}

std::string prozentgrund(std::string_view prozent, Anteilseinheit einheit)
{
    return std::string(einheitenname(einheit)) + " " + zitiert(prozent) + " ist keine gültige Zahl";
}

std::vector<Komponentenangabe> angabenAus(const Legierungsformel& formel)
{
    std::vector<Komponentenangabe> angaben;
    for (std::size_t i = 0; i < formel.komponenten().size(); ++i) {
        const std::string& symbol = formel.komponenten()[i].element->symbol();
        angaben.push_back({symbol, symbol, formel.prozenttext(i), {}, {}});
    }
    return angaben;
}

std::string formelgrund(std::string_view text, const Eingabefehler& fehler)
{
    return "Legierung " + zitiert(text) + ": " + fehler.text();
}

std::string komponentengrund(std::string_view text, std::string_view grund)
{
    return "Komponente " + zitiert(text) + ": " + std::string(grund);
}

std::string anzahlgrund(std::size_t anzahl)
{
    if (anzahl > 0 && anzahl <= MaxKomponenten)
        return {};
    return "Eine Legierung hat eine bis fünf Komponenten, angegeben sind " + std::to_string(anzahl);
}

std::string mehrfachhinweis(std::string_view symbol)
{
    return "Element " + zitiert(symbol)
        + " steht mehrmals in der Legierung; überall gelten Dichte und Valenz der "
          "letzten Angabe";
}

std::string rechengrund(std::span<const Legierungskomponente> komponenten, std::span<const std::string_view> texte)
{
    const auto found = std::ranges::find_if(
        komponenten, [](const Legierungskomponente& k) { return istUnbekannt(k.element->Masse()); });
    if (found == komponenten.end())
        return "Die Legierung lässt sich mit diesen Dichten und Valenzen nicht berechnen";
    const auto index = static_cast<std::size_t>(found - komponenten.begin());
    return komponentengrund(texte[index], "hat keine bekannte Atommasse");
}

} // namespace zerna
