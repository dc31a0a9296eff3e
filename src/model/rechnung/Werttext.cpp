#include "model/rechnung/Werttext.h"

#include "core/Zahlentext.h"

namespace zerna {

std::string werttext(float value, std::string_view einheit)
{
    const std::string text = value == 0 ? "0 " + std::string(einheit) : FormatValue(value, einheit);
    return std::string(trimmed(text));
}

} // namespace zerna
