#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Geteilt.h"

namespace zerna {

enum class Messart {
    Paarverteilung, ///< g(r)
    Strukturfaktor, ///< S(K)
};

/// Unit of r; K is in its reciprocal.
enum class Messeinheit { Nanometer, Angstroem };

struct Messpunkt {
    double x = 0; ///< r or K
    double y = 0;
    bool operator==(const Messpunkt&) const = default;
};

/// A measured curve. The points stay what the file gave; art and einheit say what they mean.
struct Messkurve {
    std::string name;
    Messart art = Messart::Paarverteilung;
    Messeinheit einheit = Messeinheit::Nanometer; ///< of x
    Geteilt<std::vector<Messpunkt>> punkte; ///< at least WenigsteMesspunkte, x ascending
    std::string fremd = {}; ///< keys of a newer program's file, as the text of a JSON object; empty for none

    bool operator==(const Messkurve&) const = default;
};

inline constexpr std::size_t WenigsteMesspunkte = 3; ///< of a curve
inline constexpr std::size_t MeisteMesspunkte = 1'200'000; ///< of all curves together, so that they fit into a file
inline constexpr std::size_t MeisteMesskurven = 20;
inline constexpr double GroessterMesswert = 1e30; ///< amount of a coordinate

/// What a coordinate along x is multiplied by to be in nm or 1/nm.
double faktorNm(const Messkurve& kurve);

/// "g(r)" or "S(K)".
std::string_view messgroesse(Messart art);

/// "r" or "K".
std::string_view messachse(Messart art);

/// The unit of x: "nm", "Å", "1/nm" or "1/Å".
std::string_view einheitentext(Messart art, Messeinheit einheit);

/// Points of all curves together.
std::size_t messpunktzahl(const std::vector<Messkurve>& kurven);

/// Whether x of each point is greater than that of the one before it.
bool istAufsteigend(const std::vector<Messpunkt>& punkte);

} // namespace zerna
