#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/rechnung/Tabelle.h"

namespace zerna {

/// One way to save something: what the save dialog calls it, the extension it appends, and how its bytes are made.
struct Exportart {
    std::string_view beschreibung; ///< "DAT-File (*.dat)"
    std::string_view muster; ///< "*.dat"; empty for the bitmap entry, which has none of its own
    std::string_view endung; ///< ".dat"

    /// The file's bytes; empty: there is nothing to save; no value: the user has changed their mind. May throw
    /// Laufzeitfehler.
    std::function<std::optional<std::string>()> bytes;

    /// Whether a name must end in exactly this extension, case respected, else it is appended.
    bool endungGenau = false;
};

/// An export's text, UTF-8 with CR LF; no value: the user has changed their mind. May throw Laufzeitfehler.
using Exporttext = std::function<std::optional<std::string>()>;

/// A kind whose bytes are a text in Windows-1252, with an exact extension.
Exportart textdatei(std::string_view beschreibung, std::string_view muster, std::string_view endung, Exporttext text);

/// The text kinds that several exports offer.
Exportart datDatei(Exporttext text);
Exportart friedelminima(Exporttext text);

/// The ways to save a table for other programs.
std::vector<Exportart> tabellenarten(const Tabelle& tabelle);

} // namespace zerna
