#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string_view>

#include "core/ElementCollection.h"

namespace zerna {

/// Name of the element data file beside the program.
inline constexpr std::string_view Elementdateiname = "elemente.dat";

/// Reads record count and records from an open file into the collection, key = symbol; `each` sees every element and
/// its position (from 1) before it is added. A record that cannot be read is reported by the element and added
/// all the same. Error 62 at once for a count that the file cannot mean (negative, or far more than its bytes
/// allow), error 457 for a symbol that comes twice.
void loadElements(Dateinummern& files, int number, MessageBoxes& boxes, ElementCollection& elements,
    const std::function<void(const ElementCollection::Element&, int)>& each = {});

/// Writes an element data file. An error (6 for a text that is too long, those of Datei) leaves an earlier file
/// untouched.
void saveElements(const std::filesystem::path& path, std::span<const ElementRecord> records);

} // namespace zerna
