#include "bild/Randstreifen.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "bild/Rundteilung.h"
#include "bild/Textumbruch.h"

namespace zerna {

namespace {

constexpr Schrift Titelschrift{1, true};
constexpr double BlockGap = 0.25; // lines
constexpr double SampleLength = 26;
constexpr double SampleGap = 6;
constexpr double EntryGap = 18;

/// An entry of the legend in its row.
struct Eintrag {
    std::size_t kurve = 0;
    std::string name;
    double left = 0;
    double width = 0;
};

using Legendenzeile = std::vector<Eintrag>;

/// A single point ends with its value, which is whole or not there at all.
std::string entryText(const Kurve& kurve, double room, const Textbreite& width)
{
    const std::size_t value = kurve.linie == Linienart::Keine ? kurve.name.rfind(": ") : std::string::npos;
    std::string text = gekuerztVor(value, kurve.name, room, width);
    return text.empty() ? gekuerzt(kurve.name.substr(0, value), room, width) : text;
}

std::vector<Legendenzeile> legendRows(const Kurvenbild& bild, double room, const Textbreite& width)
{
    std::vector<Legendenzeile> rows;
    double left = room;
    for (std::size_t i = 0; i < bild.kurven.size(); ++i) {
        std::string name = entryText(bild.kurven[i], room - SampleLength - SampleGap, width);
        if (name.empty())
            continue;
        const double length = width(name);
        if (rows.empty() || left + SampleLength + SampleGap + length > room) {
            rows.emplace_back();
            left = 0;
        }
        rows.back().push_back({i, std::move(name), left, length});
        left += SampleLength + SampleGap + length + EntryGap;
    }
    return rows;
}

/// What the strips leave to plot and labels: in a figure the plot has two fifths of the height or nearly.
double heightOfAxes(double height, double line, const Bildstil& stil)
{
    constexpr double ShareOfAxes = 0.6;
    constexpr double LinesOfAxes = 8;
    constexpr double ShareInFigure = 0.37;
    constexpr double LinesInFigure = 5;
    if (!stil.rundeTeilung)
        return std::max(ShareOfAxes * height, LinesOfAxes * line);
    return std::max(ShareInFigure * height, LinesInFigure * line) + 1.5 * line + TickLength + LabelGap;
}

/// The strips while they are chosen, the most important first.
class Auswahl {
public:
    Auswahl(const Kurvenbild& bild, const Bereich& x, double width, double height, const Bildstil& stil,
        const Schriftmasse& masse);
    Randstreifen place() const;

private:
    using Zeilen = std::vector<std::string>;

    double blockHeight(std::size_t lines) const;
    template <class Rows>
    Rows taken(Rows rows);
    Zeilen wrapped(const std::string& text, const Textbreite& width);
    Zeilen sideTitles() const;
    Zeilen notes(const Bildstil& stil) const;
    double placeLines(Randstreifen& rand, double top, const Zeilen& lines, const Schrift& schrift = {}) const;
    void placeSideTitles(Randstreifen& rand, double top) const;
    void placeXTitle(Randstreifen& rand, double top) const;
    void placeLegend(Randstreifen& rand, double top) const;

    const Kurvenbild& m_bild;
    double m_width;
    double m_height;
    double m_room; // for a line
    Textmasse m_masse;
    double m_left = 0; // height for further strips
    Zeilen m_title;
    std::vector<Legendenzeile> m_legend;
    Zeilen m_xTitle;
    Zeilen m_notes;
    Zeilen m_sideTitles; // of the left and of the right axis, if there is one
    Zeilen m_alloy;
};

Auswahl::Auswahl(const Kurvenbild& bild, const Bereich& x, double width, double height, const Bildstil& stil,
    const Schriftmasse& masse)
    : m_bild(bild)
    , m_width(width)
    , m_height(height)
    , m_room(width - 2 * LabelColumn)
    , m_masse(masse({}))
{
    m_left = height - heightOfAxes(height, m_masse.height, stil) - BlockGap * m_masse.height;
    if (stil.titel)
        m_title = wrapped(bild.titel, masse(Titelschrift).width);
    const int zehner = stil.rundeTeilung ? rundteilung(x, 2).zehner : 0;
    const std::string xTitle = gekuerztMitEinheit(titelMitZehner(bild.x.titel, zehner), m_room, m_masse.width);
    m_xTitle = taken(xTitle.empty() ? Zeilen() : Zeilen{xTitle});
    if (stil.legende)
        m_legend = taken(legendRows(bild, m_room, m_masse.width));
    if (!stil.rundeTeilung)
        m_sideTitles = taken(sideTitles());
    if (stil.titel)
        m_alloy = wrapped(bild.untertitel, m_masse.width);
    m_notes = taken(notes(stil));
}

/// A block stands a little off its neighbour.
double Auswahl::blockHeight(std::size_t lines) const
{
    return lines == 0 ? 0 : (static_cast<double>(lines) + BlockGap) * m_masse.height;
}

/// As many of the rows as there is room for.
template <class Rows>
Rows Auswahl::taken(Rows rows)
{
    while (!rows.empty() && blockHeight(rows.size()) > m_left)
        rows.pop_back();
    m_left -= blockHeight(rows.size());
    return rows;
}

/// In at most two lines, the last one shortened where there is no room for more.
Auswahl::Zeilen Auswahl::wrapped(const std::string& text, const Textbreite& width)
{
    const int lines = blockHeight(2) <= m_left ? 2 : 1;
    return taken(umgebrochen(text, m_room, lines, width));
}

/// What the title says already is not said again.
Auswahl::Zeilen Auswahl::sideTitles() const
{
    const std::string& left = m_bild.y.titel;
    const std::string right = m_bild.rechts ? m_bild.rechts->titel : std::string();
    const bool isSaid = !m_title.empty() && !m_bild.rechts && m_bild.titel.find(left) != std::string::npos;
    return (left.empty() && right.empty()) || isSaid ? Zeilen() : Zeilen{left};
}

Auswahl::Zeilen Auswahl::notes(const Bildstil& stil) const
{
    constexpr int LinesPerNote = 3;
    Zeilen lines;
    const auto add = [&](const std::vector<std::string>& hinweise) {
        for (const std::string& hinweis : hinweise)
            std::ranges::move(umgebrochen(hinweis, m_room, LinesPerNote, m_masse.width), std::back_inserter(lines));
    };
    if (stil.legende)
        add(m_bild.hinweise);
    if (stil.bildschirm)
        add(m_bild.bildschirmhinweise);
    return lines;
}

double Auswahl::placeLines(Randstreifen& rand, double top, const Zeilen& lines, const Schrift& schrift) const
{
    for (std::size_t i = 0; i < lines.size(); ++i)
        rand.texte.push_back(
            {lines[i], {LabelColumn, top + static_cast<double>(i) * m_masse.height, m_room, m_masse.height}, schrift});
    return top + blockHeight(lines.size());
}

void Auswahl::placeSideTitles(Randstreifen& rand, double top) const
{
    if (m_sideTitles.empty())
        return;
    const double room = m_bild.rechts ? m_room / 2 - LabelColumn : m_room;
    const auto place = [&](const std::string& title, bool isRight) {
        const std::string text = gekuerztMitEinheit(title, room, m_masse.width);
        const double width = m_masse.width(text);
        if (!text.empty())
            rand.texte.push_back(
                {text, {isRight ? LabelColumn + m_room - width : LabelColumn, top, width, m_masse.height}, {}});
    };
    place(m_bild.y.titel, false);
    if (m_bild.rechts)
        place(m_bild.rechts->titel, true);
}

void Auswahl::placeXTitle(Randstreifen& rand, double top) const
{
    if (m_xTitle.empty())
        return;
    const double width = m_masse.width(m_xTitle.front());
    rand.xTitel = Textstelle{m_xTitle.front(), {(m_width - width) / 2, top, width, m_masse.height}, {}};
}

void Auswahl::placeLegend(Randstreifen& rand, double top) const
{
    for (const Legendenzeile& row : m_legend) {
        for (const Eintrag& entry : row) {
            const double left = LabelColumn + entry.left;
            rand.legende.push_back({entry.kurve, left, left + SampleLength, top + m_masse.height / 2,
                m_bild.kurven.at(entry.kurve).aussehen()});
            rand.texte.push_back({entry.name, {left + SampleLength + SampleGap, top, entry.width, m_masse.height}, {}});
        }
        top += m_masse.height;
    }
}

Randstreifen Auswahl::place() const
{
    Randstreifen rand;
    const bool isBare = m_title.empty() && m_alloy.empty() && m_sideTitles.empty();
    double top = placeLines(rand, isBare ? 0 : BlockGap * m_masse.height, m_title, Titelschrift);
    top = placeLines(rand, top, m_alloy);
    placeSideTitles(rand, top);
    top = std::ceil(top + blockHeight(m_sideTitles.size()));
    const double below = blockHeight(m_xTitle.size()) + blockHeight(m_legend.size()) + blockHeight(m_notes.size());
    const double bottom = std::floor(m_height - below);
    rand.kern = {0, top, m_width, std::max(0.0, bottom - top)};
    placeXTitle(rand, bottom);
    placeLegend(rand, bottom + blockHeight(m_xTitle.size()));
    placeLines(rand, bottom + blockHeight(m_xTitle.size()) + blockHeight(m_legend.size()), m_notes);
    return rand;
}

} // namespace

Randstreifen randstreifen(const Kurvenbild& bild, const Bereich& x, double width, double height, const Bildstil& stil,
    const Schriftmasse& masse)
{
    return Auswahl(bild, x, width, height, stil, masse).place();
}

} // namespace zerna
