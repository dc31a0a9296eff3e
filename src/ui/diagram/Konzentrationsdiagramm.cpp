#include "ui/diagram/Konzentrationsdiagramm.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

constexpr Bereich ProzentBereich{0, 100};

Rechteck areaOf(const Leinwand& leinwand) { return plotArea(leinwand.size.width(), leinwand.size.height()); }

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
    bool gap = true;
    for (std::size_t i = 0; i < reihe.size(); ++i) {
        const float value = reihe.at(i);
        if (istUnbekannt(value))
            gap = true;
        else if (std::exchange(gap, false))
            zeichnePunkt(static_cast<float>(i), value, Blau);
        else
            zeichneLinieZu(static_cast<float>(i), value, Blau);
    }
    alsHintergrund();
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
}

const Konzentrationsdiagramm::Layout& Konzentrationsdiagramm::layout(const Leinwand& leinwand) const
{
    return m_layout.get({leinwand, m_y}, [&] { return layOut(leinwand); });
}

Konzentrationsdiagramm::Layout Konzentrationsdiagramm::layOut(const Leinwand& leinwand) const
{
    const Rechteck area = areaOf(leinwand);
    Layout layout;
    layout.labelFont = leinwand.font;
    if (!m_y || area.width == 0 || area.height == 0)
        return layout;
    layout.abbildung = Abbildung(area.width, area.height, ProzentBereich, *m_y);
    layout.labelFont = labelFont(leinwand);
    const Textmasse masse = textmasse(layout.labelFont);
    layout.yMarken = yMarken(area, leinwand.size.height(), *m_y, masse.height);
    layout.xMarken = xMarken(area, leinwand.size.width(), ProzentBereich, masse.width);
    return layout;
}

/// The font as small as the labels need it. Texts do not shrink in proportion to their font, and smaller labels leave
/// room for more of them, so it takes a few steps.
QFont Konzentrationsdiagramm::labelFont(const Leinwand& leinwand) const
{
    constexpr int Steps = 5;
    const Rechteck area = areaOf(leinwand);
    QFont font = leinwand.font;
    for (int i = 0; i < Steps; ++i) {
        const Textmasse masse = textmasse(font);
        const auto marken = yMarken(area, leinwand.size.height(), *m_y, masse.height);
        const double scale = labelScale(marken, area, masse.width, masse.height);
        if (scale >= 1)
            break;
        font.setPointSizeF(std::max(1.0, font.pointSizeF() * scale));
    }
    return font;
}

QRect Konzentrationsdiagramm::plot(const Leinwand& leinwand)
{
    const Rechteck area = areaOf(leinwand);
    return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.width),
        static_cast<int>(area.height)};
}

void Konzentrationsdiagramm::paint(QPainter& painter, const Leinwand& leinwand) const
{
    const QRect area = plot(leinwand);
    paintSurface(painter, leinwand);
    painter.save();
    painter.translate(area.topLeft());
    painter.setClipRect(QRect(QPoint(0, 0), area.size()));
    paintPlot(painter, leinwand);
    painter.restore();
}

void Konzentrationsdiagramm::paintSurface(QPainter& painter, const Leinwand& leinwand) const
{
    const Layout& layout = this->layout(leinwand);
    const Rechteck area = areaOf(leinwand);
    const QFontMetricsF metrics(layout.labelFont);
    const double ascent = metrics.ascent();
    painter.fillRect(QRect(QPoint(0, 0), leinwand.size), Qt::white);
    painter.setFont(layout.labelFont);
    painter.setPen(Qt::black);
    for (const Achsenmarke& marke : layout.yMarken) {
        const int row = std::min(static_cast<int>(std::lround(marke.position)), leinwand.size.height() - 1);
        painter.fillRect(QRectF(area.left - TickLength, row, TickLength, 1), Qt::black);
        painter.drawText(QPointF(LabelColumn, marke.labelStart + ascent), toQt(marke.label));
    }
    const double labelTop = xLabelTop(area, metrics.height());
    for (const Achsenmarke& marke : layout.xMarken) {
        const int column = std::min(static_cast<int>(std::lround(marke.position)), leinwand.size.width() - 1);
        painter.fillRect(QRectF(column, area.height, 1, TickLength), Qt::black);
        painter.drawText(QPointF(marke.labelStart, labelTop + ascent), toQt(marke.label));
    }
    if (layout.xMarken.empty())
        return;
    painter.fillRect(QRectF(area.left - 1, 0, 1, area.height + 1), Qt::black);
    painter.fillRect(QRectF(area.left - 1, area.height, area.width + 1, 1), Qt::black);
}

void Konzentrationsdiagramm::paintPlot(QPainter& painter, const Leinwand& leinwand) const
{
    const QRect area(QPoint(0, 0), plot(leinwand).size());
    painter.fillRect(area, Qt::white);
    if (m_fehler) {
        constexpr double Punkte = 24;
        QFont large = leinwand.font;
        large.setPointSizeF(Punkte);
        painter.setFont(large);
        painter.setPen(Qt::black);
        const QString text = QStringLiteral("Fehler bei Diagrammberechnung");
        const QFontMetricsF metrics(large);
        painter.drawText(QPointF((area.width() - metrics.horizontalAdvance(text)) / 2,
                             area.height() / 2.0 + metrics.ascent()), // its top at half the height
            text);
        return;
    }
    if (!m_y)
        return;
    const Abbildung& abbildung = layout(leinwand).abbildung;
    paintStriche(painter, m_hintergrund, abbildung);
    paintStriche(painter, m_striche, abbildung);
}

void Konzentrationsdiagramm::paintCursor(QPainter& painter, const Leinwand& leinwand) const
{
    const QRect area = plot(leinwand);
    if (m_cursor < 0 || !m_y || area.isEmpty())
        return;
    const double column = area.left() + layout(leinwand).abbildung.column(m_cursor) + 0.5;
    painter.setPen(QPen(Cursorfarbe, 1, Qt::DashLine));
    painter.drawLine(QPointF(column, area.top()), QPointF(column, area.top() + area.height()));
}

std::string Konzentrationsdiagramm::values(int schritt) const
{
    return reihendatei(m_symbol, m_einheit, m_reihe, schritt);
}

/// The bitmap shows the plot alone.
std::vector<Exportart> Konzentrationsdiagramm::exportarten(const Leinwand& leinwand) const
{
    if (!m_y || !istEinerBekannt(m_reihe))
        return {};
    const auto text = [this]() -> std::optional<std::string> {
        const auto schritt = m_schrittfrage();
        return schritt ? std::optional(values(*schritt)) : std::nullopt;
    };
    const auto plotOnly = [this, leinwand](QPainter& painter, const Leinwand&) { paintPlot(painter, leinwand); };
    return {datDatei(text),
        bitmap(plotOnly, {plot(leinwand).size(), leinwand.font, leinwand.devicePixelRatio, leinwand.stil})};
}

QString Konzentrationsdiagramm::positionText(const QPointF& position, const Leinwand& leinwand) const
{
    const QRect area = plot(leinwand);
    const QPointF inPlot = position - area.topLeft();
    if (!m_y || !QRectF(QPointF(0, 0), area.size()).contains(inPlot))
        return {};
    const Abbildung& abbildung = layout(leinwand).abbildung;
    return text(abbildung.x(inPlot.x()), abbildung.y(inPlot.y()));
}

QString Konzentrationsdiagramm::text(double x, double y) const
{
    return toQt(fixedText(x, 2) + " at% " + m_symbol + " - " + FormatValue(static_cast<float>(y), m_einheit));
}

QString Konzentrationsdiagramm::cursorText() const
{
    return m_cursor < 0 ? QString() : text(m_cursor, m_reihe.at(static_cast<std::size_t>(m_cursor)));
}

bool Konzentrationsdiagramm::keyPressed(int key, const Leinwand&)
{
    if (!m_y)
        return false;
    switch (key) {
    case Qt::Key_Left:
        moveCursor(m_cursor - 1);
        return true;
    case Qt::Key_Right:
        moveCursor(m_cursor + 1);
        return true;
    case Qt::Key_Home:
        moveCursor(0);
        return true;
    case Qt::Key_End:
        moveCursor(100);
        return true;
    default:
        return false;
    }
}

void Konzentrationsdiagramm::moveCursor(int prozent) { m_cursor = std::clamp(prozent, 0, 100); }

void Konzentrationsdiagramm::clearCursor() { m_cursor = -1; }

} // namespace zerna
