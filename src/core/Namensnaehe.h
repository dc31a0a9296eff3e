#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Names as someone types them.
namespace zerna {

/// A name as it is compared: letters and digits alone, in lower case, umlauts written out. "Friedel-Wellenlänge" gives
/// "friedelwellenlaenge".
std::string vergleichsname(std::string_view utf8);

/// How many letters have to be put in, left out, replaced or swapped with the next one to come from one text to the
/// other.
std::size_t abstand(std::string_view a, std::string_view b);

/// The positions of the names that may have been meant, the nearest first, at most three: few letters differ, or the
/// text is the beginning of the name. None if too many are equally near to tell anything.
std::vector<std::size_t> naechsteNamen(std::string_view text, std::span<const std::string_view> namen);

/// "a, b oder c".
std::string aufzaehlung(std::span<const std::string> namen);

/// "Meinten Sie a, b oder c?"; empty for no names.
std::string meintenSie(std::span<const std::string> namen);

/// Another sentence behind one without its full stop: ". " and the sentence, empty for none.
std::string satzende(const std::string& satz);

/// The names nearest to a text that is none of them, as a sentence: "Meinten Sie a?"; empty if none is near.
std::string vorschlag(std::string_view text, std::span<const std::string> namen);

} // namespace zerna
