#include "model/messung/Messkopf.h"

#include <array>
#include <string>
#include <utility>

#include "core/Zahlentext.h"
#include "core/Zeichensatz.h"

namespace zerna {

namespace {

using enum Messart;
using enum Messeinheit;

template <class Code>
struct Wort {
    std::string_view wort;
    Code code;
};

constexpr std::array<Wort<Messart>, 10> Artworte{{{"g(r)", Paarverteilung}, {"paarverteilung", Paarverteilung},
    {"paarkorrelation", Paarverteilung}, {"pairdistribution", Paarverteilung}, {"paircorrelation", Paarverteilung},
    {"pdf", Paarverteilung}, {"s(k)", Strukturfaktor}, {"s(q)", Strukturfaktor}, {"strukturfaktor", Strukturfaktor},
    {"structurefactor", Strukturfaktor}}};

constexpr std::array<Wort<Messeinheit>, 12> Kehrwerte{{{"1/nm", Nanometer}, {"nm-1", Nanometer}, {"1/å", Angstroem},
    {"å-1", Angstroem}, {"1/a", Angstroem}, {"a-1", Angstroem}, {"1/ang", Angstroem}, {"ang-1", Angstroem},
    {"1/angstrom", Angstroem}, {"angstrom-1", Angstroem}, {"1/ångström", Angstroem}, {"ångström-1", Angstroem}}};

constexpr std::array<Wort<Messeinheit>, 8> Laengen{{{"nm", Nanometer}, {"å", Angstroem}, {"ang", Angstroem},
    {"angstrom", Angstroem}, {"ångström", Angstroem}, {"(a)", Angstroem}, {"[a]", Angstroem}, {"/a", Angstroem}}};

constexpr std::array<Wort<Messart>, 3> Achsworte{{{"r", Paarverteilung}, {"k", Strukturfaktor}, {"q", Strukturfaktor}}};

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) >= 0x80;
}

/// The last place at which a word stands by itself; npos if none.
std::size_t lastPlace(std::string_view text, std::string_view word)
{
    std::size_t place = text.rfind(word);
    while (place != std::string_view::npos) {
        const std::size_t end = place + word.size();
        const bool beginsInside = isLetter(word.front()) && place > 0 && isLetter(text[place - 1]);
        const bool endsInside = isLetter(word.back()) && end < text.size() && isLetter(text[end]);
        if (!beginsInside && !endsInside)
            return place;
        place = place == 0 ? std::string_view::npos : text.rfind(word, place - 1);
    }
    return place;
}

template <class Code, std::size_t Count>
std::optional<Code> lastOf(std::string_view text, const std::array<Wort<Code>, Count>& worte)
{
    std::optional<Code> found;
    std::size_t last = 0;
    for (const auto& [wort, code] : worte) {
        const std::size_t place = lastPlace(text, wort);
        if (place != std::string_view::npos && (!found || place >= last)) {
            found = code;
            last = place;
        }
    }
    return found;
}

/// Small letters, units in one spelling.
std::string normalised(std::string_view kopf)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 11> Spellings{
        {{"\u212B", "å"}, {"⁻¹", "-1"}, {"−", "-"}, {"^", ""}, {"{", ""}, {"}", ""},
            {"structure factor", "structurefactor"}, {"pair distribution", "pairdistribution"},
            {"pair correlation", "paircorrelation"}, {" / ", "/"}, {"1 /", "1/"}}};
    std::string text = lowerCase(kopf);
    for (const auto& [before, after] : Spellings)
        text = ReplaceText(text, before, after);
    return text;
}

} // namespace

Messangabe messangabe(std::string_view kopf)
{
    const std::string text = normalised(kopf);
    Messangabe angabe{lastOf(text, Artworte), lastOf(text, Kehrwerte)};
    if (!angabe.art && angabe.einheit)
        angabe.art = Strukturfaktor;
    if (!angabe.einheit)
        angabe.einheit = lastOf(text, Laengen);
    if (!angabe.art)
        angabe.art = lastOf(text, Achsworte);
    return angabe;
}

} // namespace zerna
