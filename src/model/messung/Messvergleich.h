#pragma once

#include <cstddef>
#include <vector>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/messung/Messkurve.h"
#include "model/rechnung/Tabelle.h"
#include "model/rechnung/clsCalc.h"

/// Measured curves beside what follows of an alloy. Lengths are in nm and 1/nm whatever the curves are in.
namespace zerna {

/// A maximum and the value that it is compared with.
struct Messbefund {
    std::size_t kurve = 0; ///< index of the curve
    Messpunkt maximum;
    int n = 0; ///< which Friedel minimum is nearest, from 1; 0 for S(K)
    float modell = Unbekannt; ///< its radius, or 2kF

    double differenz() const { return maximum.x - static_cast<double>(modell); }
};

/// The maxima of some measured curves, looked for once for each curve's points.
class Messauswertung {
public:
    void setKurven(const Geteilt<std::vector<Messkurve>>& kurven);

    const std::vector<Messkurve>& kurven() const { return *m_kurven; }

    /// Of curve `index`, in nm or 1/nm, from left to right.
    std::vector<Messpunkt> maxima(std::size_t index) const;

    /// The curves of one kind: every maximum of g(r) beside the nearest Friedel minimum, the highest one of each S(K),
    /// Kp, beside 2kF. Curves without a maximum are left out.
    std::vector<Messbefund> vergleich(Messart art, const clsCalc& calc) const;

private:
    struct Gefunden {
        Geteilt<std::vector<Messpunkt>> punkte;
        std::vector<Messpunkt> maxima; // as the points are given
    };

    Geteilt<std::vector<Messkurve>> m_kurven;
    std::vector<Gefunden> m_gefunden; // of each curve
};

/// The highest maximum, Kp of an S(K); null if there is none.
const Messpunkt* hauptmaximum(const std::vector<Messpunkt>& maxima);

/// 2kF in 1/nm; Unbekannt while a value is missing.
float zweiKf(const clsCalc& calc);

/// The Friedel minima up to a radius in nm; none while they are unknown, or if there would be more than MeisteMinima.
std::vector<float> friedelminimaBis(const clsCalc& calc, double radius);
inline constexpr std::size_t MeisteMinima = 200;

/// The comparison as a table, with empty cells for what is unknown.
Tabelle messtabelle(const std::vector<Messbefund>& befunde, const std::vector<Messkurve>& kurven, Messart art,
    Dezimaltrenner trenner = Dezimaltrenner::Punkt);

} // namespace zerna
