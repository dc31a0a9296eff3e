#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "programm/Exportart.h"

namespace zerna {

/// What is written where: the folder, the name with its extension and the index of the kind.
struct Exportziel {
    std::filesystem::path ordner;
    std::string name; ///< UTF-8; empty if the path ends in none
    std::size_t art = 0;
};

/// The target that a path and a chosen kind mean. The kind's extension is appended unless the name ends in it. An
/// extension counts in any letter case, and that of another kind chooses this kind: "bild.SVG" is an SVG picture
/// whatever was chosen.
/// Intended: where a kind with an exact extension was chosen, case counts, and another exact extension chooses
/// nothing: with "*.dat" chosen "werte.DAT" becomes "werte.DAT.dat" and "x.fri" becomes "x.fri.dat".
Exportziel exportziel(std::string_view path, std::size_t chosen, std::span<const Exportart> arten);

/// Why nothing can be written under that name, for the user; empty if nothing speaks against it.
std::string hindernis(const Exportziel& ziel);

/// The deepest part of a path that is a folder.
std::filesystem::path vorhandenerOrdner(const std::filesystem::path& path);

} // namespace zerna
