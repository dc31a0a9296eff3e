#include "model/eingabe/Massenprozent.h"

#include <cmath>
#include <numeric>

#include "core/Unbekannt.h"

namespace zerna {

namespace {

/// Weighs the parts and brings them back to their sum; all Unbekannt where there is nothing to share.
template <class Weight>
std::vector<double> weighed(std::span<const double> parts, std::span<const float> massen, Weight weight)
{
    std::vector<double> result(parts.begin(), parts.end());
    double all = 0;
    bool isKnown = true;
    for (std::size_t i = 0; i < result.size(); ++i) {
        const bool hasMass = massen[i] > 0; // false for an unknown one
        isKnown = isKnown && hasMass;
        result[i] = weight(result[i], static_cast<double>(massen[i]));
        all += result[i];
    }
    const double share = std::accumulate(parts.begin(), parts.end(), 0.0) / all;
    if (!isKnown || !(all > 0) || !std::isfinite(share))
        result.assign(result.size(), Unbekannt);
    else
        for (double& part : result)
            part *= share;
    return result;
}

} // namespace

std::vector<double> massenprozente(std::span<const double> atomprozente, std::span<const float> massen)
{
    return weighed(atomprozente, massen, [](double prozent, double masse) { return prozent * masse; });
}

std::vector<double> atomprozente(std::span<const double> massenprozente, std::span<const float> massen)
{
    return weighed(massenprozente, massen, [](double prozent, double masse) { return prozent / masse; });
}

} // namespace zerna
