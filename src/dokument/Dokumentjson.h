#pragma once

#include "dokument/Jsontext.h"
#include "model/dokument/Dokument.h"

/// The parts of a document as JSON, without what is foreign.
namespace zerna {

/// Of a row of mass %: what turned them into at%, in g/mol.
inline constexpr const char* Atommassenschluessel = "atommasse";

/// A single in its shortest digits; null for one that is unknown.
Json zahl(float wert);

Json variantenjson(const Variante& variante);

/// The kept alloys are left out: null stands in their place. So are the kept curves, which have no key then.
Json dokumentjson(const Dokument& dokument);

} // namespace zerna
