#include "ui/diagram/Plotinhalt.h"

#include <algorithm>

#include "bild/Kurvenstreifen.h"
#include "bild/Layoutunterschied.h"

namespace zerna {

namespace {

Punkt punktOf(const QPointF& point) { return {point.x(), point.y()}; }

void add(Kurvenstreifen& streifen, const Kurvenbahn& bahn)
{
    constexpr double Line = 3; // from the middle to the edge of the widest line, smoothed
    for (const QPolygonF& linie : bahn.linien) {
        for (qsizetype i = 0; i < linie.size(); ++i)
            streifen.add(punktOf(linie[std::max<qsizetype>(i - 1, 0)]), punktOf(linie[i]), Line);
    }
    for (const QPointF& middle : bahn.zeichen)
        streifen.add(punktOf(middle), punktOf(middle), Zeichenraum);
}

QRegion regionOf(const Kurvenstreifen& streifen)
{
    QRegion region;
    for (const auto& [left, top, width, height] : streifen.bereiche())
        region += QRectF(left, top, width, height).toRect();
    return region;
}

/// The curves that stand at one place in both are compared, and lie mostly close to each other.
QRegion curvesBetween(const Plotinhalt& before, const Plotinhalt& now)
{
    QRegion region;
    for (std::size_t i = 0; i < std::max(before.kurven.size(), now.kurven.size()); ++i) {
        const bool isInBoth = i < before.kurven.size() && i < now.kurven.size();
        if (isInBoth && before.kurven[i] == now.kurven[i])
            continue;
        Kurvenstreifen streifen(now.plot);
        for (const Plotinhalt* const inhalt : {&before, &now}) {
            if (i < inhalt->kurven.size())
                add(streifen, inhalt->kurven[i].bahn);
        }
        region += regionOf(streifen);
    }
    return region;
}

} // namespace

Plotinhalt plotinhalt(const Kurvenbild& bild, const Kurvenlayout& layout, const std::vector<Kurvenbahn>& bahnen)
{
    Plotinhalt inhalt{layout.plot, {}, {}, layout.markentexte};
    for (std::size_t i = 0; i < bahnen.size(); ++i)
        inhalt.kurven.push_back({bild.kurven.at(i).aussehen(), bahnen[i]});
    for (const Linienmarke& marke : bild.marken)
        inhalt.marken.push_back({layout.links.punkt(marke.x, 0).x, marke.farbe});
    return inhalt;
}

QRegion unterschied(const Plotinhalt& before, const Plotinhalt& now)
{
    const Rechteck& plot = now.plot;
    const QRect area = QRectF(plot.left, plot.top, plot.width, plot.height).toRect();
    if (before.plot != now.plot || before.marken != now.marken || before.texte != now.texte)
        return area;
    return curvesBetween(before, now);
}

} // namespace zerna
