#pragma once

#include "dokument/Jsontext.h"
#include "model/Dokument.h"

/// The parts of a document as JSON, without what is foreign.
namespace zerna {

Json variantenjson(const Variante& variante);

/// The kept alloys are left out: null stands in their place.
Json dokumentjson(const Dokument& dokument);

} // namespace zerna
