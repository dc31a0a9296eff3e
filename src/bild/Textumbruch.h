#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "bild/Geometrie.h"

/// Texts that have to do with the room that there is. UTF-8 characters are never torn.
namespace zerna {

/// The text, or as much of its beginning as fits with "…" behind it; empty where not even that fits.
std::string gekuerzt(std::string_view text, double room, const Textbreite& width);

/// The same, but shortened in front of byte `end`, which begins what is never cut: a unit or a value. Empty where that
/// does not fit.
std::string gekuerztVor(std::size_t end, std::string_view text, double room, const Textbreite& width);

/// A title, shortened in front of its unit in brackets and what is said about its numbers: "Fermien… [eV]".
std::string gekuerztMitEinheit(std::string_view text, double room, const Textbreite& width);

/// The text broken at blanks into at most `lines` lines, the last one shortened. Numbers keep names and units.
std::vector<std::string> umgebrochen(std::string_view text, double room, int lines, const Textbreite& width);

} // namespace zerna
