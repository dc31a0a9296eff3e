#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/clsElement.h"

/// Where the values of an element come from, in words. Sources belong to the values of the shipped table: a value that
/// is another one there is the user's own.
namespace zerna {

/// Said of a value that no source stands for.
inline constexpr std::string_view EigenerWert = "eigener Wert";

/// Lines that tell the source of a column's value (source, state, remark), that it is the user's own, or why it is
/// unknown. `spalte` is a name of Elementspalten.h; empty for any other.
std::string herkunft(const clsElement& element, std::string_view spalte);

/// The sources of the lines of elementauskunft.
std::vector<std::string> auskunftsherkunft(const clsElement& element);

/// The source of a density choice and of a valence code; typed values are the user's own.
std::string dichteherkunft(const clsElement& element, std::string_view wahl);
std::string valenzherkunft(const clsElement& element, int code);

} // namespace zerna
