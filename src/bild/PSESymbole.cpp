#include "bild/PSESymbole.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>

namespace zerna {

namespace {

constexpr double Markenradius = 4;

struct Symbol {
    std::size_t element = 0;
    bool inLegierung = false;
    bool isExtremum = false;
    double bend = 0; ///< pixels
    Symbolwunsch wunsch;
};

/// How much the curve bends at its point `i`, in pixels down (a maximum in y is positive). An end of a piece counts as
/// level on the side where nothing is.
std::pair<double, double> rises(const PSEKurve& kurve, std::size_t i)
{
    const auto& points = kurve.punkte;
    const double y = points[i]->y;
    const double before = i > 0 && points[i - 1] ? points[i - 1]->y - y : 0;
    const double after = i + 1 < points.size() && points[i + 1] ? points[i + 1]->y - y : 0;
    return {before, after}; // both positive: the point is higher than its neighbours
}

/// The wish of an element that has a point.
Symbol wishOf(const PSEKurve& kurve, std::size_t i, const Diagrammelement& element, const Textmasse& masse)
{
    constexpr double Air = 3;
    const auto [before, after] = rises(kurve, i);
    Symbol symbol{i, element.inLegierung, before * after >= 0, std::abs(before + after), {}};
    symbol.wunsch = {*kurve.punkte[i], masse.width(element.symbol), element.inLegierung ? Markenradius + 1 : Air,
        before + after < 0, element.inLegierung};
    return symbol;
}

std::vector<Symbol> wishes(
    const PSEBild& bild, const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Textmasse& masse)
{
    std::vector<Symbol> symbole;
    for (std::size_t i = 0; i < diagramm.elemente.size(); ++i) {
        const bool first = i < bild.kurve.punkte.size() && bild.kurve.punkte[i];
        const bool second = i < bild.kristallin.punkte.size() && bild.kristallin.punkte[i];
        const Diagrammelement& element = diagramm.elemente[i];
        if ((first || second) && (ansicht.symbole || element.inLegierung))
            symbole.push_back(wishOf(first ? bild.kurve : bild.kristallin, i, element, masse));
    }
    std::ranges::stable_sort(
        symbole, std::greater(), [](const Symbol& s) { return std::tuple(s.inLegierung, s.isExtremum, s.bend); });
    return symbole;
}

void markLegierung(PSEBild& bild, const Elementdiagramm& diagramm)
{
    for (const PSEKurve* const kurve : {&bild.kurve, &bild.kristallin}) {
        for (std::size_t i = 0; i < kurve->punkte.size(); ++i) {
            if (diagramm.elemente.at(i).inLegierung && kurve->punkte[i])
                bild.legierung.push_back(*kurve->punkte[i]);
        }
    }
}

/// All that symbols may not cover.
Hindernisse hindernisse(const PSEBild& bild, const Textmasse& masse)
{
    Hindernisse result{bild.lines, {}};
    auto& lines = result.lines;
    for (const Schriftzug& label : bild.labels)
        result.texts.push_back({label.position.x, label.position.y, masse.width(label.text), masse.height});
    for (const PSEKurve* const kurve : {&bild.kurve, &bild.kristallin}) {
        for (const auto& stueck : kurve->stuecke) {
            lines.push_back({stueck.front(), stueck.front()});
            for (std::size_t i = 1; i < stueck.size(); ++i)
                lines.push_back({stueck[i - 1], stueck[i]});
        }
    }
    for (const Punkt& p : bild.legierung)
        result.texts.push_back({p.x - Markenradius, p.y - Markenradius, 2 * Markenradius, 2 * Markenradius});
    return result;
}

} // namespace

void layOutSymbole(PSEBild& bild, const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Textmasse& masse)
{
    markLegierung(bild, diagramm);
    const std::vector<Symbol> symbole = wishes(bild, diagramm, ansicht, masse);
    std::vector<Symbolwunsch> wuensche;
    std::ranges::transform(symbole, std::back_inserter(wuensche), &Symbol::wunsch);
    Rechteck feld = bild.feld; // right of the axis
    feld.width -= bild.ursprung.x + 1 - feld.left;
    feld.left = bild.ursprung.x + 1;
    const auto plaetze = platziereSymbole(wuensche, masse.height, feld, hindernisse(bild, masse));
    for (std::size_t k = 0; k < symbole.size(); ++k) {
        if (!plaetze[k])
            continue;
        auto& texts = symbole[k].inLegierung ? bild.legierungssymbole : bild.symbole;
        texts.push_back({{plaetze[k]->left, plaetze[k]->top}, diagramm.elemente[symbole[k].element].symbol});
    }
}

} // namespace zerna
