#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "core/Kuerzung.h"
#include "dokument/Dokumentdatei.h"
#include "dokument/Feldleser.h"
#include "model/eingabe/Anteilseinheit.h"
#include "model/eingabe/Komposition.h"
#include "model/messung/Messkurve.h"
#include "model/reihen/Diagrammwahl.h"
#include "model/reihen/Mischungsreihe.h"

/// The words that a file has for the program's codes.
namespace zerna {

inline constexpr std::string_view Dateikennung = "Zerna-Legierung";

template <class Code>
struct Wort {
    Code code{};
    std::string_view wort;
};

inline constexpr std::array<Wort<int>, 6> Valenzworte{
    {{ValenzStandard, "Standard"}, {0, "s"}, {1, "p"}, {2, "d"}, {3, "f"}, {ValenzAndere, AndereWahl}}};

inline constexpr std::array<Wort<Anteilseinheit>, 2> Einheitenworte{
    {{Anteilseinheit::Atom, "at%"}, {Anteilseinheit::Masse, "Masse %"}}};

inline constexpr std::array<Wort<Diagrammtyp>, 4> Diagrammworte{{{Diagrammtyp::Konzentration, "Konzentration"},
    {Diagrammtyp::Ternaer, "ternär"}, {Diagrammtyp::PSE, "PSE"}, {Diagrammtyp::Messkurve, "Messkurve"}}};

inline constexpr std::array<Wort<Messart>, 2> Messworte{
    {{Messart::Paarverteilung, "g(r)"}, {Messart::Strukturfaktor, "S(K)"}}};

inline constexpr std::array<Wort<Messeinheit>, 2> Messeinheiten{
    {{Messeinheit::Nanometer, "nm"}, {Messeinheit::Angstroem, "Å"}}};

inline constexpr std::array<Wort<Reihenart>, 2> Reihenworte{
    {{Reihenart::Gegeben, "eingetragen"}, {Reihenart::Summe100, "Summe 100"}}};

/// The word of a code; the first one for a code that has none.
template <class Code, std::size_t Count>
std::string_view wortFuer(Code code, const std::array<Wort<Code>, Count>& worte)
{
    const auto found = std::ranges::find(worte, code, &Wort<Code>::code);
    return (found == worte.end() ? worte.begin() : found)->wort;
}

/// The code of the word under a key; one that is not known is refused.
template <class Code, std::size_t Count>
Code codeFor(Feldleser& leser, const Json& object, std::string_view key, const std::array<Wort<Code>, Count>& worte)
{
    const std::string text = leser.text(object, key, LaengstesFeld);
    const auto found = std::ranges::find(worte, text, &Wort<Code>::wort);
    if (found != worte.end())
        return found->code;
    leser.ablehnen(leser.feld(object, key), zitiert(text) + " ist hier nicht bekannt");
    return worte.front().code;
}

} // namespace zerna
