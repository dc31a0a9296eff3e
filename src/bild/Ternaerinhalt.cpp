#include "bild/Ternaerinhalt.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace zerna {

namespace {

std::vector<Gitterkante> edgesOf(const Ternaergitter& gitter, const std::vector<Gitterdreieck>& triangles)
{
    std::vector<Gitterkante> edges;
    std::unordered_map<std::size_t, std::size_t> known; // place among the edges
    for (std::size_t t = 0; t < triangles.size(); ++t) {
        for (std::size_t k = 0; k < 3; ++k) {
            const auto [from, to] = std::minmax(triangles[t].corner.at(k), triangles[t].corner.at((k + 1) % 3));
            const auto [found, isNew] = known.try_emplace(from * gitter.werte.size() + to, edges.size());
            if (isNew)
                edges.push_back({from, to, t, std::nullopt});
            else
                edges[found->second].other = t;
        }
    }
    return edges;
}

} // namespace

Ternaerinhalt::Ternaerinhalt(Ternaergitter values)
    : gitter(std::move(values))
    , range(wertebereich(gitter.werte))
    , triangles(triangulate(gitter))
    , kanten(edgesOf(gitter, triangles))
{
    if (!range.known)
        return;
    ticks = axisTicks(range);
    for (const double tick : ticks)
        hoehenlinien.push_back(zerna::hoehenlinien(gitter, triangles, static_cast<float>(tick)));
}

} // namespace zerna
