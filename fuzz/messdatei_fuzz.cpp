#include <cmath>
#include <cstdint>
#include <string>

#include "Pruefung.h"
#include "core/Zahlentext.h"
#include "model/messung/Messdatei.h"
#include "model/messung/Messmaxima.h"

using namespace zerna;

/// Reads the bytes as a measured curve: there is a reason or a curve that keeps its promises, is the same after it was
/// written, and has its maxima between its ends.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Messlesung lesung = liesMesskurve(std::string(data, data + size), "x");
    require(lesung.kurve.has_value() == lesung.grund.empty());
    if (!lesung.kurve)
        return 0;
    const std::vector<Messpunkt>& punkte = *lesung.kurve->punkte;
    require(punkte.size() >= WenigsteMesspunkte && istAufsteigend(punkte));
    std::string text;
    for (const auto& [x, y] : punkte) {
        require(std::abs(x) <= GroessterMesswert && std::abs(y) <= GroessterMesswert);
        appendDouble(text, x);
        text += ';';
        appendDouble(text, y);
        text += '\n';
    }
    require(*liesMesskurve(text, "x").kurve->punkte == punkte);
    double last = punkte.front().x;
    for (const auto& [x, y] : maxima(punkte)) {
        require(x >= last && x <= punkte.back().x && std::isfinite(y));
        last = x;
    }
    return 0;
}
