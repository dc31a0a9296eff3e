#include "bild/PSEKopf.h"

#include <algorithm>
#include <span>
#include <utility>

#include "bild/Textumbruch.h"

namespace zerna {

namespace {

constexpr double Rand = 4; // around texts
constexpr double Legendenabstand = 16; // between entries

/// Lines that the diagram itself needs before anything stands above it.
constexpr double FewestLines = 11;

/// The strip's first row below what is taken already; none if too little of the picture would be left.
std::optional<double> takeRow(PSEBild& bild, double height, double lineHeight)
{
    if (bild.feld.height - height < FewestLines * lineHeight)
        return std::nullopt;
    const double top = bild.feld.top;
    bild.feld.top += height;
    bild.feld.height -= height;
    return top;
}

void layOutTitel(PSEBild& bild, const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, double lineHeight,
    const Textbreite& breite)
{
    const double room = bild.feld.width - 2 * Rand;
    const auto top = takeRow(bild, lineHeight + Rand, lineHeight);
    if (!top || room <= 0)
        return;
    std::string text = diagramm.titel;
    if (!ansicht.kristallin && !diagramm.untertitel.empty()) {
        const std::string full = text + ", " + diagramm.untertitel;
        if (breite(full) <= room)
            text = full;
    }
    bild.titel = {{Rand, *top + Rand}, gekuerztMitEinheit(text, room, breite)};
}

double sampleLength(Legendenzeichen zeichen) { return zeichen == Legendenzeichen::Legierung ? 10 : 24; }

/// A row of entries.
void placeRow(PSEBild& bild, std::span<const Legendeneintrag> row, double top, const Textmasse& masse)
{
    double x = Rand;
    const double middle = top + masse.height / 2;
    for (Legendeneintrag eintrag : row) {
        const double sample = sampleLength(eintrag.zeichen);
        eintrag.muster = {{x, middle}, {x + sample, middle}};
        eintrag.text.position = {x + sample + Rand, top};
        x += sample + Rand + masse.width(eintrag.text.text) + Legendenabstand;
        bild.legende.push_back(std::move(eintrag));
    }
}

/// As many rows as the entries need.
void layOutLegende(PSEBild& bild, std::span<const Legendeneintrag> entries, const Textmasse& masse)
{
    const auto widthOf = [&](const Legendeneintrag& e) {
        return sampleLength(e.zeichen) + Rand + masse.width(e.text.text);
    };
    const double room = bild.feld.width - 2 * Rand;
    while (!entries.empty() && widthOf(entries.front()) <= room) {
        std::size_t count = 1;
        double length = widthOf(entries.front());
        for (; count < entries.size(); ++count) {
            const double longer = length + Legendenabstand + widthOf(entries[count]);
            if (longer > room)
                break;
            length = longer;
        }
        const auto top = takeRow(bild, masse.height + Rand, masse.height);
        if (!top)
            return;
        placeRow(bild, entries.first(count), *top + Rand / 2, masse);
        entries = entries.subspan(count);
    }
}

} // namespace

void layOutKopf(PSEBild& bild, const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Bildstil& stil,
    const Textmasse& masse, const Textbreite& titelbreite)
{
    if (stil.titel && !diagramm.titel.empty())
        layOutTitel(bild, diagramm, ansicht, masse.height, titelbreite);
    if (!stil.legende)
        return;
    std::vector<Legendeneintrag> legende;
    if (ansicht.kristallin && diagramm.hatKristallin())
        legende = {{Legendenzeichen::Kurve, {}, {{}, "flüssige Dichte"}},
            {Legendenzeichen::Gestrichelt, {}, {{}, "kristalline Dichte"}}};
    if (std::ranges::any_of(diagramm.elemente, &Diagrammelement::inLegierung))
        legende.push_back({Legendenzeichen::Legierung, {}, {{}, "in der Legierung"}});
    layOutLegende(bild, legende, masse);
}

} // namespace zerna
