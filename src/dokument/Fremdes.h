#pragma once

#include "dokument/Jsontext.h"

/// The keys of a file that this program does not know: they are kept and written again where they stood.
namespace zerna {

/// What of `value` `known` does not have, objects part by part and lists entry by entry, in the same structure. Null if
/// there is nothing.
Json fremdesIn(const Json& value, const Json& known);

/// The same as the text that a document keeps, and back; empty for nothing.
std::string fremdtext(const Json& value, const Json& known);
Json fremdesAus(const std::string& text);

/// Puts that back where `target` has a place for it; what `target` has itself stays.
void fuegeEin(Json& target, const Json& fremdes);

} // namespace zerna
