#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/eingabe/Legierungsformel.h"

/// The words that an alloy's formula is made of. Each function looks at what a text begins with and takes nothing from
/// it; lengths are in bytes.
namespace zerna {

enum class Trennzeichen { Keins, Leerraum, Strich, Komma };

/// A blank, a dash or minus, or a comma or semicolon, each in its usual Unicode forms.
Trennzeichen trennzeichen(std::string_view text, std::size_t& length);

struct Mengenwort {
    std::string text = {}; ///< plain digits with at most one comma or point
    std::size_t length = 0; ///< of the whole word; 0 if the text does not begin with an amount
    bool zuLang = false; ///< more digits than an amount can have; the text is empty
};

/// An amount in plain digits, in subscripts ("₆₀,₅") or as LaTeX writes them ("$_{60{,}5}$", "_2").
Mengenwort mengenwort(std::string_view text);

struct Einheitswort {
    std::optional<Anteilseinheit> einheit = {}; ///< no value for a word that is none
    std::size_t length = 0; ///< 0 if the text does not begin with letters and a percent sign
};

/// "at%", "wt. %", "(Gew.-%)", "Massenprozent" and the like, in any case.
Einheitswort einheitswort(std::string_view text);

/// The letters A to Z and a to z that a text begins with; `symbol` ends them before the next capital.
std::string_view buchstaben(std::string_view text);
std::string_view symbolwort(std::string_view text);

} // namespace zerna
