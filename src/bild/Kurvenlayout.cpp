#include "bild/Kurvenlayout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "bild/Achsenteilung.h"
#include "bild/Dezimaltext.h"
#include "bild/Rundteilung.h"
#include "bild/Textablage.h"
#include "bild/Textumbruch.h"

namespace zerna {

namespace {

constexpr double RightStrip = 60; // for the labels of the right axis
constexpr double MinorTickLength = 4;

/// The range, or a wider one where doubles do not tell its pixels apart.
Bereich visible(const Bereich& bereich)
{
    constexpr double Narrowest = 1e-9; // of the values
    constexpr double Smallest = 1e-280;
    constexpr double Widened = 1e-3;
    const double size = std::max(std::abs(bereich.min), std::abs(bereich.max));
    const double span = bereich.max - bereich.min;
    if (std::isfinite(span) && span > std::max(Smallest, Narrowest * size))
        return bereich;
    const double more = std::max(1.0, Widened * size);
    return std::isfinite(size) ? Bereich{bereich.min - more, bereich.min + more} : Bereich{0, 1};
}

/// A layout while it is made: the strips first, then the axes in what is left.
class Aufbau {
public:
    Aufbau(const Kurvenbild& bild, const Bildstil& stil, const Schriftmasse& masse, bool zoomed)
        : m_bild(bild)
        , m_stil(stil)
        , m_masse(masse)
        , m_normal(masse({}))
        , m_zoomed(zoomed)
    {
    }

    Kurvenlayout make(double width, double height, const Ausschnitt& ausschnitt);

private:
    bool isRound(const Achse& achse) const { return m_stil.rundeTeilung || achse.rund || m_zoomed; }
    bool isRoundX() const { return isRound(m_bild.x) || !hatGanzeZehntel(m_layout.ausschnitt.x); }
    Rundwunsch wunsch() const;
    /// Ticks of the screen are sharp; on paper they stand where the curves are.
    double snapped(double place) const { return m_stil.rundeTeilung ? place : std::round(place); }
    Achsenteilung yTeilung(const Achse& achse, const Bereich& bereich, double room) const;
    void placeKern();
    void placeYAxis(const Achsenteilung& teilung);
    void placeRightAxis(const Achsenteilung& teilung);
    void placeXAxis();
    void placeMarks();
    void placeSideTitles(const Achsenteilung& left, const Achsenteilung& right);
    void placeTitle(const std::string& title, double column);
    void placeXTitle(Textstelle title);
    Schrift titleFont(const Achsenteilung& left, const Achsenteilung& right) const;

    const Kurvenbild& m_bild;
    const Bildstil& m_stil;
    const Schriftmasse& m_masse;
    Textmasse m_normal;
    bool m_zoomed;
    Schrift m_labels; // of the axes of `kern`
    Schrift m_titles; // of all axes
    Kurvenlayout m_layout;
};

Rundwunsch Aufbau::wunsch() const
{
    return {m_stil.dezimal, m_stil.rundeTeilung, m_stil.rundeTeilung ? m_normal.height / 2 : 0};
}

Achsenteilung Aufbau::yTeilung(const Achse& achse, const Bereich& bereich, double room) const
{
    return isRound(achse) ? rundeYTeilung(m_layout.plot.height, bereich, wunsch(), room, m_masse)
                          : gegebeneTeilung(m_layout.plot, m_layout.kern.height, bereich, room, m_masse);
}

/// The plot between the strips.
void Aufbau::placeKern()
{
    Rechteck& kern = m_layout.kern;
    if (m_stil.rundeTeilung) {
        m_layout.plot = {0, kern.top + std::ceil(m_normal.height / 2), 0, 0};
        const double below = std::ceil(TickLength + LabelGap + m_normal.height);
        m_layout.plot.height = std::max(0.0, kern.top + kern.height - below - m_layout.plot.top);
        return;
    }
    if (m_bild.rechts)
        kern.width = std::max(0.0, kern.width - RightStrip);
    m_layout.plot = plotArea(static_cast<int>(kern.width), static_cast<int>(kern.height));
    m_layout.plot.left += kern.left;
    m_layout.plot.top += kern.top;
}

Kurvenlayout Aufbau::make(double width, double height, const Ausschnitt& ausschnitt)
{
    m_layout.ausschnitt = ausschnitt;
    Randstreifen rand = randstreifen(m_bild, ausschnitt.x, width, height, m_stil, m_masse);
    m_layout.kern = rand.kern;
    m_layout.texte = std::move(rand.texte);
    m_layout.legende = std::move(rand.legende);
    placeKern();
    if (m_layout.plot.height <= 0)
        return m_layout;
    const double room = m_stil.rundeTeilung ? width / 4 : labelRoom(plotArea(0, 0));
    const Achsenteilung left = yTeilung(m_bild.y, ausschnitt.y, room);
    const Achsenteilung right = m_bild.rechts ? yTeilung(*m_bild.rechts, ausschnitt.rechts, room) : Achsenteilung();
    m_labels = left.schrift;
    if (m_stil.rundeTeilung)
        m_titles = titleFont(left, right);
    if (rand.xTitel)
        placeXTitle(std::move(*rand.xTitel));
    if (m_stil.rundeTeilung)
        placeSideTitles(left, right);
    if (m_layout.istLeer())
        return m_layout;
    m_layout.links = Abbildung(m_layout.plot.width, m_layout.plot.height, ausschnitt.x, ausschnitt.y);
    m_layout.rechts = Abbildung(m_layout.plot.width, m_layout.plot.height, ausschnitt.x, ausschnitt.rechts);
    placeYAxis(left);
    if (m_bild.rechts)
        placeRightAxis(right);
    placeXAxis();
    placeMarks();
    return m_layout;
}

/// Round ticks: the strips at the sides are as wide as labels and titles need.
void Aufbau::placeSideTitles(const Achsenteilung& left, const Achsenteilung& right)
{
    constexpr double Edge = 2;
    constexpr double TitleLines = 1.25;
    Rechteck& plot = m_layout.plot;
    const Rechteck& kern = m_layout.kern;
    const auto strip = [&](const Achse& achse, const Achsenteilung& teilung) {
        const bool hasTitle = !achse.titel.empty() || teilung.zehner != 0;
        return Edge + (hasTitle ? TitleLines * m_normal.height : 0) + teilung.breite(m_masse(teilung.schrift))
            + LabelGap + TickLength;
    };
    plot.left = std::ceil(kern.left + strip(m_bild.y, left));
    const double end = m_bild.rechts ? strip(*m_bild.rechts, right) : m_normal.width("00");
    plot.width = std::max(0.0, std::floor(kern.left + kern.width - end - plot.left));
    placeTitle(titelMitZehner(m_bild.y.titel, left.zehner), kern.left + Edge);
    if (m_bild.rechts)
        placeTitle(titelMitZehner(m_bild.rechts->titel, right.zehner), kern.left + kern.width - Edge - m_normal.height);
}

/// The title of an upright axis in the middle of it, as far as the picture's edge leaves it there.
void Aufbau::placeTitle(const std::string& title, double column)
{
    const Rechteck& plot = m_layout.plot;
    const Rechteck& kern = m_layout.kern;
    const Textmasse masse = m_masse(m_titles);
    const std::string text = gekuerztMitEinheit(title, kern.height, masse.width);
    if (text.empty())
        return;
    const double length = masse.width(text);
    const double middle = plot.top + (plot.height - length) / 2;
    const double top = std::max(kern.top, std::min(middle, kern.top + kern.height - length));
    m_layout.texte.push_back({text, {column, top, masse.height, length}, m_titles, true});
}

/// As large as the longest title of an upright axis allows.
Schrift Aufbau::titleFont(const Achsenteilung& left, const Achsenteilung& right) const
{
    constexpr double SmallestTitle = 0.75;
    double longest = m_normal.width(titelMitZehner(m_bild.y.titel, left.zehner));
    if (m_bild.rechts)
        longest = std::max(longest, m_normal.width(titelMitZehner(m_bild.rechts->titel, right.zehner)));
    return {std::clamp(m_layout.kern.height / std::max(1.0, longest), SmallestTitle, 1.0)};
}

/// The title of the lower axis is as large as those of the others.
void Aufbau::placeXTitle(Textstelle title)
{
    const double width = m_masse(m_titles).width(title.text);
    title.box.left += (title.box.width - width) / 2;
    title.box.width = width;
    title.schrift = m_titles;
    m_layout.texte.push_back(std::move(title));
}

void Aufbau::placeYAxis(const Achsenteilung& teilung)
{
    const Rechteck& plot = m_layout.plot;
    const Textmasse masse = m_masse(teilung.schrift);
    const double bottom = m_layout.kern.top + m_layout.kern.height;
    for (const Achsenmarke& marke : teilung.marken) {
        const double row = std::min(snapped(plot.top + marke.position), bottom - 1);
        m_layout.kernstriche.push_back({plot.left - TickLength, row, TickLength, 1});
        const double width = breiteOf(marke.label, masse);
        const double column =
            m_stil.rundeTeilung ? plot.left - TickLength - LabelGap - width : m_layout.kern.left + LabelColumn;
        if (!marke.label.empty())
            m_layout.kerntexte.push_back({marke.label,
                {column, plot.top + marke.labelStart, width, hoeheOf(marke.label, masse)}, teilung.schrift});
    }
    for (const double position : teilung.neben)
        m_layout.kernstriche.push_back({plot.left - MinorTickLength, snapped(plot.top + position), MinorTickLength, 1});
    m_layout.kernstriche.push_back({plot.left - 1, plot.top, 1, plot.height + 1});
}

void Aufbau::placeRightAxis(const Achsenteilung& teilung)
{
    const Rechteck& plot = m_layout.plot;
    const double right = plot.left + plot.width;
    const Textmasse masse = m_masse(teilung.schrift);
    for (const Achsenmarke& marke : teilung.marken) {
        m_layout.striche.push_back({right, snapped(plot.top + marke.position), TickLength, 1});
        if (!marke.label.empty())
            m_layout.texte.push_back({marke.label,
                {right + TickLength + LabelGap, plot.top + marke.labelStart, breiteOf(marke.label, masse),
                    hoeheOf(marke.label, masse)},
                teilung.schrift});
    }
    for (const double position : teilung.neben)
        m_layout.striche.push_back({right, snapped(plot.top + position), MinorTickLength, 1});
    m_layout.striche.push_back({right, plot.top, 1, plot.height + 1});
}

void Aufbau::placeXAxis()
{
    const Rechteck& plot = m_layout.plot;
    const Rechteck& kern = m_layout.kern;
    const Textmasse masse = m_masse(m_labels);
    const Rechteck inKern{plot.left - kern.left, plot.top - kern.top, plot.width, plot.height};
    Achsenteilung teilung;
    if (isRoundX())
        teilung = rundeXTeilung(inKern, kern.width, m_layout.ausschnitt.x, wunsch(), masse);
    else
        teilung.marken = xMarken(inKern, static_cast<int>(kern.width), m_layout.ausschnitt.x, masse.width);
    const double bottom = plot.top + plot.height;
    const double top =
        m_stil.rundeTeilung ? bottom + TickLength + LabelGap : kern.top + xLabelTop(inKern, masse.height);
    for (const Achsenmarke& marke : teilung.marken) {
        const double column = std::min(snapped(kern.left + marke.position), kern.left + kern.width - 1);
        m_layout.kernstriche.push_back({column, bottom, 1, TickLength});
        if (!marke.label.empty())
            m_layout.kerntexte.push_back(
                {marke.label, {kern.left + marke.labelStart, top, masse.width(marke.label), masse.height}, m_labels});
    }
    for (const double position : teilung.neben)
        m_layout.kernstriche.push_back({snapped(kern.left + position), bottom, 1, MinorTickLength});
    m_layout.kernstriche.push_back({plot.left - 1, bottom, plot.width + 1, 1});
}

/// The texts of the marks beside their lines at the top of the plot; one that would stand on another goes a line lower.
void Aufbau::placeMarks()
{
    constexpr double Gap = 4;
    const Rechteck& plot = m_layout.plot;
    const Bereich& x = m_layout.ausschnitt.x;
    Textablage places(plot);
    for (const Linienmarke& marke : m_bild.marken) {
        if (marke.text.empty() || marke.x < x.min || marke.x > x.max)
            continue;
        const double column = plot.left + m_layout.links.punkt(marke.x, 0).x;
        const double width = m_normal.width(marke.text);
        const bool fitsRight = column + Gap + width <= plot.left + plot.width;
        Rechteck box{fitsRight ? column + Gap : column - Gap - width, plot.top + Gap, width, m_normal.height};
        while (box.bottom() <= plot.bottom() && !places.belege(box))
            box.top += m_normal.height;
        if (box.bottom() <= plot.bottom())
            m_layout.markentexte.push_back({marke.text, box, {}});
    }
}

} // namespace

Ausschnitt ganzerAusschnitt(const Kurvenbild& bild)
{
    return {
        visible(bild.x.bereich), visible(bild.y.bereich), visible(bild.rechts ? bild.rechts->bereich : bild.y.bereich)};
}

Kurvenlayout layOut(const Kurvenbild& bild, double width, double height, const Bildstil& stil,
    const Schriftmasse& masse, const std::optional<Ausschnitt>& ausschnitt)
{
    Aufbau aufbau(bild, stil, masse, ausschnitt.has_value());
    Kurvenlayout layout = aufbau.make(width, height, ausschnitt.value_or(ganzerAusschnitt(bild)));
    if (stil.dezimal != Dezimaltrenner::Komma) {
        for (auto* const texte : {&layout.texte, &layout.kerntexte, &layout.markentexte}) {
            for (Textstelle& stelle : *texte)
                stelle.text = mitDezimal(std::move(stelle.text), stil.dezimal);
        }
    }
    return layout;
}

} // namespace zerna
