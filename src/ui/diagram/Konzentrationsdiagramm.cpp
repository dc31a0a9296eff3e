#include "ui/diagram/Konzentrationsdiagramm.h"

#include <QPainter>

#include <limits>
#include <utility>

#include "core/Unbekannt.h"
#include "ui/diagram/Bildausgabe.h"

namespace zerna {

namespace {

constexpr Bereich ProzentBereich{0, 100};

/// The strokes of the series, its lines ending at gaps.
std::vector<Strichzug> seriesStrokes(const Reihe& reihe)
{
    std::vector<Strichzug> striche;
    bool gap = true;
    for (std::size_t i = 0; i < reihe.size(); ++i) {
        if (istUnbekannt(reihe.at(i))) {
            gap = true;
            continue;
        }
        if (std::exchange(gap, false))
            striche.push_back({Blau, {}});
        striche.back().points.emplace_back(static_cast<float>(i), reihe.at(i));
    }
    return striche;
}

} // namespace

Konzentrationsdiagramm::Konzentrationsdiagramm(Schrittfrage schrittfrage)
    : m_schrittfrage(std::move(schrittfrage))
{
}

void Konzentrationsdiagramm::zeichneReihe(const Reihe& reihe)
{
    const auto [smallest, largest] = endValues(reihe);
    m_y = yBereich(smallest, largest);
    m_reihe = reihe;
    m_fehler = false;
    m_hintergrund.clear();
    m_striche.clear();
    setBild(seriesOnly());
}

/// The picture of the series without anything beside it.
Kurvenbild Konzentrationsdiagramm::seriesOnly() const
{
    Kurvenbild bild;
    bild.x = {"", ProzentBereich, "at% " + m_symbol};
    bild.y = {"", *m_y, m_einheit};
    Kurve kurve{"", {}, Kurvenblau};
    for (std::size_t i = 0; i < m_reihe.size(); ++i) {
        const float value = m_reihe.at(i);
        kurve.punkte.push_back(
            {static_cast<double>(i), istUnbekannt(value) ? std::numeric_limits<double>::quiet_NaN() : value});
    }
    bild.kurven.push_back(std::move(kurve));
    return bild;
}

void Konzentrationsdiagramm::setSymbol(std::string symbol)
{
    if (symbol == m_symbol)
        return;
    beginneNeu();
    m_symbol = std::move(symbol);
    setXEinheit("at% " + m_symbol);
}

void Konzentrationsdiagramm::zeichnePunkt(float x, float y, std::uint32_t colour)
{
    m_striche.push_back({colour, {{x, y}}});
}

void Konzentrationsdiagramm::zeichneLinieZu(float x, float y, std::uint32_t colour)
{
    if (m_striche.empty())
        m_striche.push_back({colour, {{ProzentBereich.min, m_y.value_or(Bereich()).min}}});
    if (m_striche.back().colour != colour)
        m_striche.push_back({colour, {m_striche.back().points.back()}});
    m_striche.back().points.emplace_back(x, y);
}

void Konzentrationsdiagramm::loeschen() { m_striche.clear(); }

void Konzentrationsdiagramm::alsHintergrund()
{
    m_hintergrund.insert(m_hintergrund.end(), m_striche.begin(), m_striche.end());
    m_striche.clear();
}

void Konzentrationsdiagramm::zeichneFehler()
{
    m_fehler = true;
    m_y.reset();
    m_hintergrund.clear();
    m_striche.clear();
    ohneBild();
}

void Konzentrationsdiagramm::paintPlot(QPainter& painter, const Leinwand& leinwand, Linien linien) const
{
    if (m_fehler)
        paintFault(painter, leinwand);
    if (!hatBild())
        return;
    Kurvendiagramm::paintPlot(painter, leinwand, linien);
    if (m_hintergrund.empty() && m_striche.empty())
        return;
    const QRect area = plot(leinwand);
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.translate(area.topLeft());
    const Abbildung& abbildung = layout(leinwand).links;
    paintStriche(painter, m_hintergrund, abbildung, Raster::Keines);
    paintStriche(painter, m_striche, abbildung, Raster::Keines);
    painter.restore();
}

void Konzentrationsdiagramm::paintFault(QPainter& painter, const Leinwand& leinwand) const
{
    constexpr double Punkte = 24;
    const QRect area = plot(leinwand);
    QFont large = leinwand.font;
    large.setPointSizeF(Punkte);
    painter.setFont(large);
    painter.setPen(Qt::black);
    const QString text = QStringLiteral("Fehler bei Diagrammberechnung");
    const QFontMetricsF metrics(large);
    painter.drawText(area.topLeft()
            + QPointF((area.width() - metrics.horizontalAdvance(text)) / 2,
                area.height() / 2.0 + metrics.ascent()), // its top at half the height
        text);
}

/// The given picture of the plot: the series and the strokes on it, through the middles of pixels.
void Konzentrationsdiagramm::paintGiven(QPainter& painter, const QSize& plot) const
{
    const Abbildung abbildung(plot.width(), plot.height(), ProzentBereich, *m_y);
    painter.fillRect(QRect(QPoint(0, 0), plot), Qt::white);
    paintStriche(painter, seriesStrokes(m_reihe), abbildung, Raster::Pixel);
    paintStriche(painter, m_hintergrund, abbildung, Raster::Pixel);
    paintStriche(painter, m_striche, abbildung, Raster::Pixel);
}

std::string Konzentrationsdiagramm::values(int schritt) const
{
    return reihendatei(m_symbol, m_einheit, m_reihe, schritt);
}

bool Konzentrationsdiagramm::hatWerte() const { return m_y && istEinerBekannt(m_reihe); }

/// The bitmap shows the plot alone.
std::vector<Exportart> Konzentrationsdiagramm::exportarten(const Leinwand& leinwand) const
{
    if (!hatWerte())
        return {};
    const auto text = [this]() -> std::optional<std::string> {
        const auto schritt = m_schrittfrage();
        return schritt ? std::optional(values(*schritt)) : std::nullopt;
    };
    const auto plotOnly = [this](QPainter& painter, const Leinwand& canvas) { paintGiven(painter, canvas.size); };
    return {datDatei(text),
        bitmap(plotOnly, {plot(leinwand).size(), leinwand.font, leinwand.devicePixelRatio, leinwand.stil})};
}

} // namespace zerna
