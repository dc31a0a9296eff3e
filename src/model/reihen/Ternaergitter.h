#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "model/reihen/Konzentrationsreihe.h"

/// A free-electron quantity over all compositions of three components.
namespace zerna {

/// Values over a triangular grid of compositions with n divisions along each side.
struct Ternaergitter {
    int n = 0; ///< divisions
    std::array<std::string, 3> symbole; ///< of the components
    std::string einheit; ///< of the values
    std::vector<float> werte; ///< by position(i, j), Unbekannt where it cannot be computed

    /// Place of the point with i/n of the first and j/n of the second component, i + j <= n.
    std::size_t position(int i, int j) const
    {
        const int place = i * (n + 1) - i * (i - 1) / 2 + j;
        return static_cast<std::size_t>(place);
    }

    float wert(int i, int j) const { return werte[position(i, j)]; }

    bool operator==(const Ternaergitter&) const = default;
};

/// Resolutions run from 1 to this.
inline constexpr int FeinsteAufloesung = 10;

/// The grid of quantity `groesse` (0 to 10) at resolution 1 to 10, ten times as many divisions. The entered at% do not
/// matter; for the density it is the at%-weighted mean. The calculator is not changed. Errors of the components'
/// densities and valences reach the caller, error 5 for anything but three components.
Ternaergitter ternaergitter(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, int groesse, int aufloesung);

/// The content of a ternary file: header, then a line per known point, first component outside, second inside, CR LF.
std::string ternaerdatei(const Ternaergitter& gitter);

} // namespace zerna
