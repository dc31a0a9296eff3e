#include "bild/Achsenteilung.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "bild/Rundteilung.h"
#include "core/Anzeigetext.h"

namespace zerna {

namespace {

constexpr int MostLabels = 10;

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    lines.push_back(text);
    return lines;
}

/// Breaks labels at their blank, around the middles that they have.
void breakLabels(std::vector<Achsenmarke>& marken, double labelHeight)
{
    for (Achsenmarke& marke : marken) {
        if (const std::size_t blank = marke.label.find(' '); blank != std::string::npos) {
            marke.label[blank] = '\n';
            marke.labelStart = marke.position - labelHeight;
        } else {
            marke.labelStart = marke.position - labelHeight / 2;
        }
    }
}

/// Takes away the labels that touch the one before, or that begin above `top`.
void thinOut(std::vector<Achsenmarke>& marken, double top, const Textmasse& masse)
{
    double lastTop = std::numeric_limits<double>::infinity(); // of the label below
    for (Achsenmarke& marke : marken) {
        if (marke.labelStart + hoeheOf(marke.label, masse) > lastTop || marke.labelStart < top)
            marke.label.clear();
        else
            lastTop = marke.labelStart;
    }
}

/// The label of a round value; on paper, where its power of ten is in the title, with a true minus sign.
std::string labelOf(double value, const Rundteilung& teilung, const Rundwunsch& wunsch)
{
    std::string text = rundtext(value, teilung, wunsch.zehnerImTitel, wunsch.trenner);
    return wunsch.zehnerImTitel ? anzeigetext(text) : text;
}

double scaleOf(const Bereich& bereich, double length) { return length / (bereich.max - bereich.min); }

} // namespace

double breiteOf(std::string_view text, const Textmasse& masse)
{
    double widest = 0;
    for (const std::string_view line : linesOf(text))
        widest = std::max(widest, masse.width(line));
    return widest;
}

double hoeheOf(std::string_view text, const Textmasse& masse)
{
    return static_cast<double>(1 + std::ranges::count(text, '\n')) * masse.height;
}

double Achsenteilung::breite(const Textmasse& masse) const
{
    double widest = 0;
    for (const Achsenmarke& marke : marken)
        widest = std::max(widest, breiteOf(marke.label, masse));
    return widest;
}

Achsenteilung gegebeneTeilung(
    const Rechteck& plot, double controlHeight, const Bereich& y, double room, const Schriftmasse& masse)
{
    constexpr int Steps = 5; // texts do not shrink in proportion to their font, and smaller ones leave room for more
    Achsenteilung teilung;
    const Rechteck inside{room + LabelColumn + TickLength + LabelGap, 0, plot.width, plot.height};
    for (int i = 0; i < Steps; ++i) {
        const Textmasse normal = masse(teilung.schrift);
        const int height = static_cast<int>(controlHeight);
        teilung.marken = yMarken(inside, height, y, normal.height);
        if (teilung.breite(normal) > room) {
            teilung.marken = yMarken(inside, height, y, 2 * normal.height);
            breakLabels(teilung.marken, normal.height);
        }
        const auto width = [&](std::string_view text) { return breiteOf(text, normal); };
        const double scale = labelScale(teilung.marken, inside, width, normal.height);
        if (scale >= 1)
            break;
        teilung.schrift.grad *= scale;
    }
    return teilung;
}

Achsenteilung rundeYTeilung(
    double plotHeight, const Bereich& y, const Rundwunsch& wunsch, double room, const Schriftmasse& masse)
{
    constexpr double LinesPerLabel = 1.6;
    Achsenteilung teilung;
    const Textmasse normal = masse(teilung.schrift);
    const int most = static_cast<int>(std::min<double>(MostLabels, plotHeight / (LinesPerLabel * normal.height)));
    const Rundteilung values = rundteilung(y, most);
    const double scale = scaleOf(y, plotHeight);
    teilung.zehner = wunsch.zehnerImTitel ? values.zehner : 0;
    for (const double value : values.haupt) {
        const double position = plotHeight - (value - y.min) * scale;
        teilung.marken.push_back({position, labelOf(value, values, wunsch), position - normal.height / 2});
    }
    for (const double value : values.neben)
        teilung.neben.push_back(plotHeight - (value - y.min) * scale);
    if (teilung.breite(normal) > room)
        breakLabels(teilung.marken, normal.height);
    thinOut(teilung.marken, -wunsch.above, normal);
    teilung.schrift.grad = std::min(1.0, room / std::max(1.0, teilung.breite(normal)));
    return teilung;
}

Achsenteilung rundeXTeilung(
    const Rechteck& plot, double right, const Bereich& x, const Rundwunsch& wunsch, const Textmasse& masse)
{
    const double scale = scaleOf(x, plot.width);
    const double blank = masse.width("00");
    Achsenteilung teilung;
    for (int most = MostLabels; most >= 2; --most) {
        const Rundteilung values = rundteilung(x, most);
        teilung = {};
        teilung.zehner = wunsch.zehnerImTitel ? values.zehner : 0;
        double lastEnd = -blank; // of the label before
        bool haveRoom = true;
        for (const double value : values.haupt) {
            const double position = plot.left + (value - x.min) * scale;
            std::string label = labelOf(value, values, wunsch);
            const double width = masse.width(label);
            const double start = std::clamp(position - width / 2, 0.0, std::max(0.0, right - width));
            haveRoom = haveRoom && start >= lastEnd + blank;
            lastEnd = start + width;
            teilung.marken.push_back({position, std::move(label), start});
        }
        for (const double value : values.neben)
            teilung.neben.push_back(plot.left + (value - x.min) * scale);
        if (haveRoom)
            return teilung;
    }
    for (Achsenmarke& marke : teilung.marken) // not even two have room
        marke.label.clear();
    return teilung;
}

bool hatGanzeZehntel(const Bereich& x)
{
    constexpr int Divisions = 10;
    const double step = (x.max - x.min) / Divisions;
    return step == std::round(step) && x.min == std::round(x.min);
}

} // namespace zerna
