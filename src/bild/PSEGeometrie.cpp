#include "bild/PSEGeometrie.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "bild/PSEKopf.h"
#include "bild/PSESymbole.h"
#include "bild/Rundteilung.h"
#include "bild/Textumbruch.h"
#include "core/Anzeigetext.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Werttext.h"
#include "model/reihen/Wertebereich.h"

namespace zerna {

namespace {

constexpr int Divisions = 10;

/// User coordinates: x in atomic numbers from -25 to the element count + 5, y in tenths of the range from 11 to -2.
class Massstab {
public:
    Massstab(std::size_t elements, const Rechteck& feld)
        : m_feld(feld)
        , m_xScale(feld.width / (static_cast<double>(elements) + 5 - Left))
        , m_yScale(feld.height / (Top - Bottom))
    {
    }

    Punkt at(double x, double y) const
    {
        return {m_feld.left + (x - Left) * m_xScale, m_feld.top + (Top - y) * m_yScale};
    }

private:
    static constexpr double Left = -25;
    static constexpr double Top = 11;
    static constexpr double Bottom = -2;

    Rechteck m_feld;
    double m_xScale;
    double m_yScale;
};

constexpr double TickLeft = -3;
constexpr double TickGap = 3; // pixels between a label of the y axis and its tick
constexpr double TitleGap = 2; // and between the title and the labels

struct Teilung {
    double y = 0; ///< in tenths of the range
    std::string label; ///< as it is shown; empty for what is no number to show
};

/// `step` tells what is only a rounding error beside 0.
std::string divisionLabel(double value, double step, Dezimaltrenner dezimal)
{
    constexpr double RoundingError = 1e-9;
    const bool isZero = std::abs(value) < RoundingError * step;
    const std::string text = werttext(isZero ? 0 : static_cast<float>(value));
    return anzeigetext(dezimal == Dezimaltrenner::Komma ? text : CommaToPoint(text));
}

/// The y axis: its divisions, the heights of short ticks between them, and its title.
struct Einteilung {
    std::vector<Teilung> teilungen;
    std::vector<double> zwischen;
    std::string titel;
};

/// Ten equal divisions of the range. Without a range the lowest alone.
Einteilung equalDivisions(const Bereich& range, const Elementdiagramm& diagramm, Dezimaltrenner dezimal)
{
    Einteilung result{{}, {}, diagramm.reihe.titel};
    const double step = (range.max - range.min) / Divisions;
    for (int k = 0; k <= Divisions; ++k) {
        const bool isShown = k == 0 || step > 0;
        result.teilungen.push_back(
            {static_cast<double>(k), isShown ? divisionLabel(range.min + k * step, step, dezimal) : std::string()});
    }
    return result;
}

/// Round values, whose power of ten stands in the title, which names the unit that the numbers have.
Einteilung roundDivisions(const Bereich& range, const Elementdiagramm& diagramm, int most, Dezimaltrenner dezimal)
{
    const Rundteilung teilung = rundteilung(range, most);
    const auto height = [&](double value) { return (value - range.min) * Divisions / (range.max - range.min); };
    const std::string& given = diagramm.reihe.titel;
    const std::size_t bracket = given.rfind('[');
    const std::string titel =
        bracket == std::string::npos ? given : given.substr(0, bracket) + "[" + diagramm.einheit + "]";
    Einteilung result{{}, {}, titelMitZehner(titel, teilung.zehner)};
    for (const double value : teilung.haupt)
        result.teilungen.push_back({height(value), anzeigetext(rundtext(value, teilung, true, dezimal))});
    std::ranges::transform(teilung.neben, std::back_inserter(result.zwischen), height);
    return result;
}

Einteilung divisions(
    const Bereich& range, const Elementdiagramm& diagramm, const Bildstil& stil, double height, const Textmasse& masse)
{
    constexpr double LineSpacing = 1.5; // of labels
    constexpr double AxisShare = 10.0 / 13;
    if (!stil.rundeTeilung || !(range.max > range.min))
        return equalDivisions(range, diagramm, stil.dezimal);
    const auto most = static_cast<int>(AxisShare * height / (LineSpacing * masse.height));
    return roundDivisions(range, diagramm, most, stil.dezimal);
}

/// What is left of the user scale where title and labels need more than its own strip left of the ticks, at most a
/// quarter of the width.
void makeRoom(PSEBild& bild, std::size_t elements, const std::vector<Teilung>& teilungen, const Textmasse& masse)
{
    constexpr double MostOfWidth = 0.25;
    const Massstab scale(elements, bild.feld);
    for (const Teilung& teilung : teilungen)
        bild.widestLabel = std::max(bild.widestLabel, masse.width(teilung.label));
    const double wanted = scale.at(-24, 0).x + masse.height + TitleGap + bild.widestLabel + TickGap;
    const double tick = scale.at(TickLeft, 0).x;
    const double share = tick / bild.feld.width; // of what is added, so much is left of the ticks anyway
    const double margin = std::clamp((wanted - tick) / (1 - share), 0.0, MostOfWidth * bild.feld.width);
    bild.feld.left += margin;
    bild.feld.width -= margin;
}

void layOutXAxis(PSEBild& bild, const Massstab& scale, int elements, const Textmasse& masse)
{
    constexpr double TickBottom = -0.5;
    constexpr double LabelTop = -0.7;
    const double bottom = bild.feld.top + bild.feld.height;
    const double right = bild.feld.left + bild.feld.width;
    bild.lines.push_back({scale.at(0, 0), scale.at(elements, 0)});
    double lastEnd = 0;
    const double top = std::min(scale.at(0, LabelTop).y, bottom - masse.height);
    if (top < scale.at(0, 0).y)
        return; // no room for numbers
    for (int i = 0; i <= elements; i += 10) {
        bild.lines.push_back({scale.at(i, 0), scale.at(i, TickBottom)});
        const std::string label = std::to_string(i);
        const double width = masse.width(label);
        const Punkt position{scale.at(i, 0).x - width / 2, top};
        if (position.x >= lastEnd && position.x + width <= right) {
            lastEnd = position.x + width + 2;
            bild.labels.push_back({position, label});
        }
    }
    const double width = masse.width("OZ");
    Punkt caption = scale.at(elements - 5, -1.2);
    caption.y = std::max(caption.y, top + masse.height); // below the numbers, however low the area
    if (caption.y + masse.height > bottom)
        caption = {right - width, top}; // beside them
    caption.x = std::min(caption.x, right - width);
    if (caption.y > top || caption.x >= lastEnd)
        bild.labels.push_back({caption, "OZ"});
}

void layOutYAxis(PSEBild& bild, const Massstab& scale, const Einteilung& einteilung, const Textmasse& masse)
{
    const double right = scale.at(TickLeft, 0).x - TickGap;
    bild.labelRoom = right - (bild.achsentitel.position.x + masse.height + TitleGap);
    bild.lines.push_back({scale.at(0, 0), scale.at(0, Divisions)});
    double lastTop = scale.at(0, 0).y + masse.height;
    for (const double y : einteilung.zwischen)
        bild.lines.push_back({scale.at(TickLeft / 2, y), scale.at(0, y)});
    for (const Teilung& teilung : einteilung.teilungen) {
        const Punkt tick = scale.at(TickLeft, teilung.y);
        bild.lines.push_back({tick, scale.at(0, teilung.y)});
        const Punkt position{right - masse.width(teilung.label), tick.y - masse.height / 2};
        const bool hasRoom = position.y + masse.height <= lastTop && position.y >= bild.feld.top;
        if (!hasRoom || teilung.label.empty())
            continue;
        lastTop = position.y;
        bild.labels.push_back({position, teilung.label});
    }
}

/// Given at (-24, 1), but further down where it is too long for what is above, then smaller, then shortened. It stays
/// at the picture's edge where the scale begins further to the right.
void layOutAxisTitle(PSEBild& bild, const Massstab& scale, const std::string& titel, const Textmasse& masse)
{
    constexpr double Smallest = 0.75;
    const Rechteck& feld = bild.feld;
    const double length = masse.width(titel);
    bild.achsentitelGroesse = length > feld.height ? std::max(Smallest, feld.height / length) : 1;
    const std::string text = gekuerztMitEinheit(titel, feld.height / bild.achsentitelGroesse, masse.width);
    const Punkt given = scale.at(-24, 1);
    const double highest = feld.top + masse.width(text) * bild.achsentitelGroesse;
    bild.achsentitel = {
        {given.x - feld.left, std::clamp(given.y, std::min(highest, feld.top + feld.height), feld.top + feld.height)},
        text};
}

/// The range of both series.
Bereich gemeinsam(Bereich first, const Wertebereich& second)
{
    if (!second.known)
        return first;
    return {std::min<double>(first.min, second.min), std::max<double>(first.max, second.max)};
}

PSEKurve layOutCurve(const Massstab& scale, const PSEReihe& reihe, const Bereich& range)
{
    PSEKurve kurve;
    bool gap = true;
    for (std::size_t i = 0; i < reihe.y.size(); ++i) {
        if (istUnbekannt(reihe.y[i])) {
            kurve.punkte.emplace_back();
            gap = true;
            continue;
        }
        const Punkt point = scale.at(reihe.x[i], (reihe.y[i] - range.min) * Divisions / (range.max - range.min));
        kurve.punkte.emplace_back(point);
        if (gap)
            kurve.stuecke.emplace_back();
        kurve.stuecke.back().push_back(point);
        gap = false;
    }
    return kurve;
}

} // namespace

Bereich bereichMitErstemWert(const std::vector<float>& values)
{
    if (values.empty())
        return {};
    Bereich range{values.front(), values.front()};
    for (const float value : values) {
        if (!istUnbekannt(value)) {
            range.min = std::min<double>(range.min, value);
            range.max = std::max<double>(range.max, value);
        }
    }
    return range;
}

Bereich gerundeterBereich(const Bereich& range)
{
    const double width = range.max - range.min;
    if (!(width > 0))
        return range;
    const auto widened = [&](double step) {
        return Bereich{std::floor(range.min / step) * step, std::ceil(range.max / step) * step};
    };
    constexpr double SmallestShare = 0.4;
    const double step = std::pow(10.0, std::floor(std::log10(width)));
    const Bereich coarse = widened(step);
    return width < SmallestShare * (coarse.max - coarse.min) ? widened(step / 2) : coarse;
}

PSEBild layOutPSE(const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Bildstil& stil, int width,
    int height, const Textmasse& masse, const Textbreite& titelbreite)
{
    PSEBild bild;
    bild.feld = {0, 0, static_cast<double>(width), static_cast<double>(height)};
    layOutKopf(bild, diagramm, ansicht, stil, masse, titelbreite);
    const PSEReihe& reihe = diagramm.reihe;
    const bool both = ansicht.kristallin && diagramm.hatKristallin();
    const Bereich range = gerundeterBereich(
        gemeinsam(bereichMitErstemWert(reihe.y), both ? wertebereich(diagramm.kristallin.y) : Wertebereich()));
    const Einteilung einteilung = divisions(range, diagramm, stil, bild.feld.height, masse);
    makeRoom(bild, reihe.x.size(), einteilung.teilungen, masse);
    const Massstab scale(reihe.x.size(), bild.feld);
    bild.ursprung = scale.at(0, 0);
    layOutAxisTitle(bild, scale, einteilung.titel, masse);
    layOutXAxis(bild, scale, static_cast<int>(reihe.x.size()), masse);
    layOutYAxis(bild, scale, einteilung, masse);
    std::ranges::transform(
        reihe.x, std::back_inserter(bild.spalten), [&](float number) { return scale.at(number, 0).x; });
    if (!(range.max > range.min))
        return bild;
    bild.kurve = layOutCurve(scale, reihe, range);
    if (both)
        bild.kristallin = layOutCurve(scale, diagramm.kristallin, range);
    layOutSymbole(bild, diagramm, ansicht, masse);
    return bild;
}

std::optional<std::size_t> nearestElement(const PSEBild& bild, double x)
{
    const auto nearest =
        std::ranges::min_element(bild.spalten, {}, [&](double column) { return std::abs(column - x); });
    if (nearest == bild.spalten.end())
        return std::nullopt;
    return static_cast<std::size_t>(nearest - bild.spalten.begin());
}

} // namespace zerna
