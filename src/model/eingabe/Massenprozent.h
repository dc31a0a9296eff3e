#pragma once

#include <span>
#include <vector>

/// At% and mass % of one alloy. In double precision, so that there and back gives the same single.
namespace zerna {

/// The mass % of components with these at% and atomic masses (amu), and the other way round. The sum stays what it is,
/// 100 or not. All are Unbekannt if a mass is unknown or not positive, or if the parts come to no amount of matter.
std::vector<double> massenprozente(std::span<const double> atomprozente, std::span<const float> massen);
std::vector<double> atomprozente(std::span<const double> massenprozente, std::span<const float> massen);

} // namespace zerna
