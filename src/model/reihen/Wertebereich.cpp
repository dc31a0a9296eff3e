#include "model/reihen/Wertebereich.h"

#include <algorithm>

#include "core/Unbekannt.h"

namespace zerna {

Wertebereich wertebereich(std::span<const float> werte)
{
    Wertebereich range;
    for (const float wert : werte) {
        if (istUnbekannt(wert))
            continue;
        range.min = range.known ? std::min(range.min, wert) : wert;
        range.max = range.known ? std::max(range.max, wert) : wert;
        range.known = true;
    }
    return range;
}

} // namespace zerna
