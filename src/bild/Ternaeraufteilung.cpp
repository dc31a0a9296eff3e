#include "bild/Ternaeraufteilung.h"

#include <algorithm>
#include <cmath>

#include "bild/Dezimaltext.h"
#include "bild/Textablage.h"
#include "bild/Textumbruch.h"

namespace zerna {

namespace {

constexpr double Pad = 6; // around everything
constexpr double BarWidth = 14;
constexpr double TickLength = 5;
constexpr double TickGap = 3;
constexpr double Digits = 0.85; // height of digits, in lines

/// Builds the parts from the outside to the inside.
class Aufteiler {
public:
    Aufteiler(const Ternaerinhalt& inhalt, const Ternaerbeiwerk& beiwerk, bool flach, const Bildstil& stil,
        const Ternaermasse& masse)
        : m_inhalt(inhalt)
        , m_beiwerk(beiwerk)
        , m_flach(flach)
        , m_stil(stil)
        , m_masse(masse)
    {
        m_parts.skala = skalentexte(inhalt.ticks, stil.dezimal);
        m_einheit = m_parts.skala.einheit(inhalt.gitter.einheit);
        if (beiwerk.ziel)
            m_ziel = m_parts.skala.text(*beiwerk.ziel, stil.dezimal);
        for (const std::string& text : m_parts.skala.texte)
            m_labelWidth = std::max(m_labelWidth, masse.text.width(text));
    }

    Ternaeraufteilung partsOf(double width, double height)
    {
        const double top = placeTitles(width, height);
        m_canvas = {0, top, width, std::max(0.0, height - top)};
        m_parts.bild = m_canvas;
        if (m_stil.legende && m_inhalt.range.known)
            takeBar();
        m_parts.plot = plotIn(m_parts.bild);
        if (m_parts.balken)
            placeBar(*m_parts.balken);
        return std::move(m_parts);
    }

private:
    double placeTitles(double width, double height);
    double placeLines(const std::vector<std::string>& lines, double top, Textrolle rolle, double lineHeight);
    Rechteck plotIn(const Rechteck& part) const;
    double sideIn(const Rechteck& part) const;
    void takeBar();
    void placeBar(Farbbalken& bar);
    void labelBar(Farbbalken& bar, Textablage& places);
    bool labelAt(Farbbalken& bar, double share, const std::string& text, Textrolle rolle, Textablage& places);

    const Ternaerinhalt& m_inhalt;
    const Ternaerbeiwerk& m_beiwerk;
    bool m_flach;
    const Bildstil& m_stil;
    const Ternaermasse& m_masse;
    std::string m_einheit; // of the labels, with their factor
    std::string m_ziel;
    double m_labelWidth = 0;
    Rechteck m_canvas; // below the titles
    Ternaeraufteilung m_parts;
};

double Aufteiler::placeLines(const std::vector<std::string>& lines, double top, Textrolle rolle, double lineHeight)
{
    const Textmasse& masse = rolle == Textrolle::Titel ? m_masse.titel : m_masse.text;
    for (const std::string& line : lines) {
        m_parts.texte.push_back({line, {Pad, top, masse.width(line), lineHeight}, rolle});
        top += lineHeight;
    }
    return top;
}

/// The height that the titles take. Small pictures go without the alloy, then without any title.
double Aufteiler::placeTitles(double width, double height)
{
    constexpr double ShareOfTitle = 0.1; // of the height
    constexpr double ShareOfAlloy = 0.12;
    constexpr int MostLines = 3;
    const double room = width - 2 * Pad;
    const double line = m_masse.text.height;
    if (!m_stil.titel || m_masse.titel.height > ShareOfTitle * height)
        return 0;
    double top = placeLines(
        umgebrochen(m_beiwerk.titel, room, 1, m_masse.titel.width), Pad / 2, Textrolle::Titel, m_masse.titel.height);
    const int lines = std::min(MostLines, static_cast<int>(ShareOfAlloy * height / line));
    if (lines > 0)
        top = placeLines(umgebrochen(mitDezimal(m_beiwerk.untertitel, m_stil.dezimal), room, lines, m_masse.text.width),
            top, Textrolle::Untertitel, line);
    return std::ceil(top);
}

/// The labels around the diagram want room.
Rechteck Aufteiler::plotIn(const Rechteck& part) const
{
    const double line = m_masse.text.height;
    const double symbol = m_masse.ecke.height;
    const double left = m_flach ? 1.8 * symbol : m_labelWidth + TickLength + TickGap + Pad;
    const double right = m_flach ? left : 1.3 * symbol;
    const double top = m_flach ? symbol + Pad : 1.5 * line + Pad;
    const double bottom = m_flach ? 2 * line + 3 * Pad : symbol + 2 * Pad;
    return {part.left + left, part.top + top, std::max(1.0, part.width - left - right),
        std::max(1.0, part.height - top - bottom)};
}

/// Side of the triangle in a part, about.
double Aufteiler::sideIn(const Rechteck& part) const
{
    const Rechteck plot = plotIn(part);
    return std::min(plot.width, plot.height / (m_flach ? TriangleHeight : 1));
}

/// Beside the surface or below it, where more is left of the surface; not where too little would be.
void Aufteiler::takeBar()
{
    constexpr double Smallest = 5; // side of the triangle, in lines
    constexpr double Advantage = 1.05;
    const Textbreite& width = m_masse.text.width;
    const double column =
        std::max(
            BarWidth + TickLength + TickGap + std::max(m_labelWidth, m_masse.titel.width(m_ziel)), width(m_einheit))
        + 2 * Pad;
    const double row = BarWidth + TickLength + m_masse.text.height + 2 * Pad;
    Rechteck beside = m_canvas;
    beside.width = std::floor(std::max(0.0, m_canvas.width - column));
    Rechteck above = m_canvas;
    above.height = std::floor(std::max(0.0, m_canvas.height - row));
    const bool liesBelow = sideIn(above) > Advantage * sideIn(beside);
    const Rechteck& part = liesBelow ? above : beside;
    if (sideIn(part) < Smallest * m_masse.text.height)
        return;
    m_parts.bild = part;
    m_parts.balken = Farbbalken{.box = {}, .liegt = liesBelow, .striche = {}, .ziel = {}};
}

/// No longer than the diagram beside it needs.
void Aufteiler::placeBar(Farbbalken& bar)
{
    const Rechteck& plot = m_parts.plot;
    const double line = m_masse.text.height;
    const double unit = m_masse.text.width(m_einheit);
    Rechteck unitBox{0, 0, unit, line};
    if (bar.liegt) {
        const double left = m_canvas.left + Pad + m_labelWidth / 2;
        const double right = m_canvas.right() - Pad - std::max(m_labelWidth / 2, unit + 2 * Pad);
        bar.box = {left, m_parts.bild.bottom() + Pad, std::max(1.0, right - left), BarWidth};
        unitBox.left = m_canvas.right() - Pad - unit;
        unitBox.top = bar.box.top + (BarWidth - line) / 2;
    } else {
        constexpr double Fewest = 12; // lines, for labels
        const double free = m_canvas.height - 2 * line - 2 * Pad;
        const double side = sideIn(m_parts.bild) * (m_flach ? TriangleHeight : 1);
        const double height = std::min(free, std::max(Fewest * line, side));
        const double top = std::clamp(
            plot.mitte().y - height / 2, m_canvas.top + line + Pad, m_canvas.top + line + Pad + free - height);
        bar.box = {m_parts.bild.right() + Pad, top, BarWidth, height};
        unitBox.left = bar.box.left;
        unitBox.top = top - line - Pad;
    }
    Textablage places(m_canvas);
    places.sperre(bar.box);
    if (!m_einheit.empty() && places.belege(unitBox))
        m_parts.texte.push_back({m_einheit, unitBox, Textrolle::Balken});
    labelBar(bar, places);
}

void Aufteiler::labelBar(Farbbalken& bar, Textablage& places)
{
    const std::vector<double>& ticks = m_inhalt.ticks;
    const Wertebereich& range = m_inhalt.range;
    if (m_beiwerk.ziel && *m_beiwerk.ziel >= range.min && *m_beiwerk.ziel <= range.max) {
        constexpr double Beyond = 4;
        const double share = heightShare(*m_beiwerk.ziel, range);
        const double at = bar.position(share);
        bar.ziel = bar.liegt ? Strich{{at, bar.box.top - Beyond}, {at, bar.box.bottom() + Beyond}}
                             : Strich{{bar.box.left - Beyond, at}, {bar.box.right() + Beyond, at}};
        labelAt(bar, share, m_ziel, Textrolle::Ziel, places);
    }
    const double line = Digits * m_masse.text.height;
    const auto isLabelled = beschriftete(
        ticks, bar.liegt ? bar.box.width : bar.box.height, bar.liegt ? m_labelWidth + 2 * TickGap : line, range);
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        const double share = heightShare(ticks[i], range);
        const double at = bar.position(share);
        bar.striche.push_back(bar.liegt ? Strich{{at, bar.box.bottom()}, {at, bar.box.bottom() + TickLength}}
                                        : Strich{{bar.box.right(), at}, {bar.box.right() + TickLength, at}});
        if (isLabelled[i])
            labelAt(bar, share, m_parts.skala.texte[i], Textrolle::Balken, places);
    }
}

bool Aufteiler::labelAt(Farbbalken& bar, double share, const std::string& text, Textrolle rolle, Textablage& places)
{
    const Textmasse& masse = rolle == Textrolle::Ziel ? m_masse.titel : m_masse.text;
    const double width = masse.width(text);
    const double line = Digits * masse.height;
    const double at = bar.position(share);
    const Rechteck box = bar.liegt ? Rechteck{at - width / 2, bar.box.bottom() + TickLength, width, line}
                                   : Rechteck{bar.box.right() + TickLength + TickGap, at - line / 2, width, line};
    const bool isPlaced = places.belege(box);
    if (isPlaced)
        m_parts.texte.push_back({text, box, rolle});
    return isPlaced;
}

} // namespace

Ternaeraufteilung ternaeraufteilung(const Ternaerinhalt& inhalt, const Ternaerbeiwerk& beiwerk, bool flach,
    double width, double height, const Bildstil& stil, const Ternaermasse& masse)
{
    return Aufteiler(inhalt, beiwerk, flach, stil, masse).partsOf(width, height);
}

std::vector<bool> beschriftete(const std::vector<double>& ticks, double length, double room, const Wertebereich& range)
{
    std::vector<bool> labelled(ticks.size(), true);
    if (ticks.size() < 2 || !(length > 0))
        return labelled;
    const double step = ticks[1] - ticks[0];
    const double spacing = length * step / (static_cast<double>(range.max) - range.min);
    const double stride = std::max(1.0, std::ceil(room / spacing));
    for (std::size_t i = 0; i < ticks.size(); ++i)
        labelled[i] = std::fmod(std::abs(std::round(ticks[i] / step)), stride) == 0;
    return labelled;
}

} // namespace zerna
