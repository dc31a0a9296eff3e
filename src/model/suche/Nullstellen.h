#pragma once

#include <functional>
#include <optional>
#include <vector>

/// All roots of a function on an interval.
namespace zerna {

/// A function that is continuous between its gaps, where it is NaN.
using Funktion = std::function<double(double)>;

/// Where and how closely roots are looked for.
struct Suchbereich {
    double von = 0;
    double bis = 1; ///< greater than `von`
    int schritte = 400; ///< of the grid, at least one; two roots nearer to each other are found if they touch
    double toleranz = 0; ///< values up to this count as 0: what rounding makes of the function
};

/// A root, or a stretch of values that count as 0.
struct Nullstelle {
    double von = 0;
    double bis = 0;

    double mitte() const { return von + (bis - von) / 2; }
    bool operator==(const Nullstelle&) const = default;
};

struct Nullstellen {
    std::vector<Nullstelle> stellen; ///< ascending, none touches another
    /// Where the function comes nearest to 0, with its value there; none if it has no value anywhere.
    struct Naechste {
        double x = 0;
        double y = 0;
    };
    std::optional<Naechste> naechste;
};

/// Scans a grid, cuts it at the edges of gaps, looks for extrema between grid points (so roots that only touch and
/// close pairs are found) and bisects each change of sign. The ends of the interval and of gaps count; a pole or a jump
/// across 0 is no root.
Nullstellen nullstellen(const Funktion& f, const Suchbereich& bereich);

} // namespace zerna
