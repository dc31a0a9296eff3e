#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/Datei.h"

namespace zerna {

/// What came out of packed bytes.
struct Entpackt {
    std::string bytes;
    bool vollstaendig = false; ///< the packed bytes end where they should, and within the limit
};

/// Unpacks bytes in the zlib or gzip format, at most `hoechstens` of them; what follows the packed bytes is left alone.
Entpackt entpackt(std::string_view gepackt, std::size_t hoechstens = GroessteDatei);

/// The bytes in the zlib format.
std::string gepackt(std::string_view bytes);

} // namespace zerna
