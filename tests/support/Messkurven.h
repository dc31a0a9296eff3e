#pragma once

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "core/Zahlentext.h"
#include "model/messung/Messkurve.h"

/// Measured curves whose maxima are known.
namespace zerna {

struct Glocke {
    double middle = 0;
    double height = 0;
    double width = 0; ///< standard deviation
};

/// A sum of bells and, if wanted, a rise from 0 to 1 as of g(r).
struct Messmodell {
    std::vector<Glocke> glocken;
    double kante = 0; ///< where it is half way up; 0 for none

    double operator()(double x) const
    {
        double y = kante == 0 ? 0 : 1 / (1 + std::exp(-(x - kante) / (kante / 20)));
        for (const Glocke& glocke : glocken)
            y += glocke.height * std::exp(-std::pow((x - glocke.middle) / glocke.width, 2) / 2);
        return y;
    }

    /// The true maximum about a bell's middle, by ever finer steps.
    double maximumNear(const Glocke& glocke) const
    {
        double best = glocke.middle;
        for (double step = glocke.width / 4; step > 1e-7 * glocke.width; step /= 2)
            while ((*this)(best + step) > (*this)(best) || (*this)(best - step) > (*this)(best))
                best += (*this)(best + step) > (*this)(best) ? step : -step;
        return best;
    }

    std::vector<Messpunkt> punkte(double from, double step, std::size_t count, double noise, unsigned seed) const
    {
        std::mt19937 random(seed);
        std::vector<Messpunkt> points;
        for (std::size_t i = 0; i < count; ++i) {
            double deviation = -6; // the sum of twelve even numbers, the same ones on every machine
            for (int k = 0; k < 12; ++k)
                deviation += static_cast<double>(random()) / 4294967296.0;
            const double x = from + step * static_cast<double>(i);
            points.push_back({x, (*this)(x) + noise * deviation});
        }
        return points;
    }
};

/// The pair distribution of a glass, in nm.
inline Messmodell glasmodell()
{
    return {{{0.2479, 2.05, 0.0135}, {0.4135, 0.62, 0.02}, {0.4785, 0.36, 0.02}, {0.6342, 0.21, 0.034},
                {0.8478, 0.09, 0.042}},
        0.222};
}

/// A file as a diffractometer's program writes it: heading, decimal comma, tab, CR LF.
inline std::string messdatei(const std::vector<Messpunkt>& punkte)
{
    std::string text = "# Probe Ni40Nb60, amorph\r\n# Mo K-alpha, 300 K\r\nr / nm\tg(r)\r\n";
    for (const Messpunkt& punkt : punkte)
        text += fixedText(punkt.x, 5) + "\t" + fixedText(punkt.y, 6) + "\r\n";
    return text;
}

} // namespace zerna
