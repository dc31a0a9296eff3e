#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/Geteilt.h"
#include "model/messung/Messkurve.h"

namespace zerna {

/// What became of files that were opened as measured curves.
struct Messkurvenoeffnung {
    std::vector<Messkurve> kurven; ///< the ones there were, and behind them the new ones
    std::size_t neue = 0;
    std::string grund; ///< why files were refused, sentences for each of them; empty if none was
};

/// Adds the curves of files to those of a document, as long as there is room for them. Nothing is thrown.
Messkurvenoeffnung oeffneMesskurven(
    std::vector<Messkurve> vorhandene, const std::vector<std::filesystem::path>& dateien);

/// Whether a file is rather a measured curve than a document or a picture that carries one: a text, and neither in name
/// nor by content one of those. False for one that cannot be read.
bool istMesskurvendatei(const std::filesystem::path& datei);

} // namespace zerna
