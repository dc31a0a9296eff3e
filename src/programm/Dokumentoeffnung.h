#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "dokument/Dokumentdatei.h"

namespace zerna {

/// A file that was opened as a document: one of its own, or a picture that carries one.
struct Dokumentoeffnung {
    Lesung lesung;
    std::string grund; ///< why there is no document, in sentences; empty if there is one
    bool istBild = false; ///< the document is saved under another name then
};

/// Opens a file. Nothing is thrown.
Dokumentoeffnung oeffneDokument(const std::filesystem::path& file, const ElementCollection& elements);

/// Whether a name is that of a file that may hold a document, by its extension in any letter case.
bool istDokumentname(std::string_view name);

} // namespace zerna
