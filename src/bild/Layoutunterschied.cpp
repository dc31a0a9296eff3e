#include "bild/Layoutunterschied.h"

#include <algorithm>

namespace zerna {

namespace {

const Rechteck& platz(const Rechteck& strich) { return strich; }
const Rechteck& platz(const Textstelle& stelle) { return stelle.box; }

template <class Part>
void appendMissing(std::vector<Rechteck>& places, const std::vector<Part>& parts, const std::vector<Part>& others)
{
    for (const Part& part : parts) {
        if (std::ranges::find(others, part) == others.end())
            places.push_back(platz(part));
    }
}

template <class Part>
void appendDifferent(std::vector<Rechteck>& places, const std::vector<Part>& before, const std::vector<Part>& now)
{
    appendMissing(places, before, now);
    appendMissing(places, now, before);
}

} // namespace

Rechteck platz(const Linienprobe& probe)
{
    return {
        probe.left - Zeichenraum, probe.row - Zeichenraum, probe.right - probe.left + 2 * Zeichenraum, 2 * Zeichenraum};
}

Layoutunterschied unterschied(const Kurvenlayout& before, const Kurvenlayout& now)
{
    Layoutunterschied different;
    appendDifferent(different.rand, before.texte, now.texte);
    appendDifferent(different.rand, before.striche, now.striche);
    appendDifferent(different.rand, before.legende, now.legende);
    appendDifferent(different.kern, before.kerntexte, now.kerntexte);
    appendDifferent(different.kern, before.kernstriche, now.kernstriche);
    return different;
}

} // namespace zerna
