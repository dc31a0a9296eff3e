#include "ui/ternary/Ternaerbild.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <array>

#include "bild/Dezimaltext.h"
#include "bild/Ternaerkreuz.h"
#include "ui/platform/Abdeckung.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// Of the components: told apart by lightness, too, and legible on white.
constexpr std::array Komponentenfarben{QColor(11, 92, 173), QColor(0, 105, 55), QColor(140, 45, 130)};

QFont bold(QFont font, double factor = 1)
{
    font.setBold(true);
    if (font.pixelSize() > 0)
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * factor)));
    else
        font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

QFont symbolFont(const QFont& font) { return bold(font, 1.25); }

Textmasse masseOf(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return {[metrics](std::string_view text) { return metrics.horizontalAdvance(toQt(text)); }, metrics.height()};
}

QRectF toQt(const Rechteck& r) { return {r.left, r.top, r.width, r.height}; }

QLineF toQt(const Strich& s) { return {s.from.x, s.from.y, s.to.x, s.to.y}; }

QLinearGradient gradientOf(const Farbbalken& bar, bool grau)
{
    constexpr int Stops = 17; // between which the colours are as good as linear
    const QRectF box = toQt(bar.box);
    QLinearGradient gradient(bar.liegt ? box.topLeft() : box.bottomLeft(), bar.liegt ? box.topRight() : box.topLeft());
    for (int i = 0; i < Stops; ++i)
        gradient.setColorAt(i / (Stops - 1.0), toQt(flaechenfarbe(i / (Stops - 1.0), grau)));
    return gradient;
}

/// A line that stands out on every ground: black between white edges.
template <class Draw>
void paintBold(QPainter& painter, double width, Draw&& draw)
{
    for (const auto& [colour, extra] : {std::pair(Qt::white, 2.4), std::pair(Qt::black, 0.0)}) {
        painter.setPen(QPen(colour, width + extra, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        draw();
    }
}

} // namespace

void Ternaerbild::zeige(const Ternaeraufnahme& aufnahme)
{
    if (m_aufnahme == aufnahme)
        return;
    m_aufnahme = aufnahme;
    const auto& [inhalt, beiwerk, ansicht, size, font, ratio, stil] = m_aufnahme;
    const Ternaermasse masse{masseOf(font), masseOf(bold(font)), masseOf(symbolFont(font))};
    m_parts = ternaeraufteilung(*inhalt, beiwerk, ansicht.flach, size.width(), size.height(), stil, masse);
    m_flaeche.zeige(
        {inhalt, ansicht, Projektion(ansicht, m_parts.plot), m_parts.bild, ratio, stil.grau, stil.linienbreite});
    m_labels = ternaerbeschriftung(m_flaeche, m_parts, beiwerk, stil, masse);
}

void Ternaerbild::paint(QPainter& painter) const
{
    painter.fillRect(QRect(QPoint(0, 0), m_aufnahme.size), Qt::white);
    painter.setFont(m_aufnahme.font);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setClipRect(toQt(m_parts.bild));
    paintDiagram(painter);
    painter.restore();
    deckeRandAb(painter, toQt(m_parts.bild), m_aufnahme.size);
    paintTexts(painter, m_labels.texte);
    paintColourBar(painter);
    paintTexts(painter, m_parts.texte);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void Ternaerbild::paintDiagram(QPainter& painter) const
{
    const bool fromBelow = !isFlat() && m_aufnahme.ansicht.tilt < 0;
    if (!fromBelow && !isFlat())
        paintBase(painter);
    paintSurface(painter);
    if (fromBelow || isFlat())
        paintBase(painter);
    painter.setPen(QPen(Qt::black, frameWidth()));
    if (m_labels.achse)
        painter.drawLine(toQt(*m_labels.achse));
    for (const Strich& tick : m_labels.striche)
        painter.drawLine(toQt(tick));
    paintTargetLines(painter);
    paintCurrent(painter);
}

void Ternaerbild::paintSurface(QPainter& painter) const
{
    const Flaechenbild& bild = m_flaeche.bild();
    if (bild.pixels().empty())
        return;
    const QImage image(reinterpret_cast<const uchar*>(bild.pixels().data()), bild.width(), bild.height(),
        QImage::Format_ARGB32_Premultiplied);
    painter.drawImage(toQt(m_flaeche.platz()), image);
}

QPointF Ternaerbild::at(const Anteile3& anteile, double z) const
{
    const Bildpunkt p = m_flaeche.sicht().projektion.project(placeOf(anteile, z));
    return {p.x, p.y};
}

std::optional<QPointF> Ternaerbild::stelle(const Anteile3& anteile) const
{
    const auto value = interpolated(inhalt().gitter, anteile);
    if (!value)
        return std::nullopt;
    return at(anteile, isFlat() ? 0 : heightShare(*value, inhalt().range) * SurfaceHeight);
}

double Ternaerbild::frameWidth() const { return 1.2 * m_aufnahme.stil.linienbreite / Bildstil().linienbreite; }

void Ternaerbild::paintBase(QPainter& painter) const
{
    constexpr int GridLines = 10; // a line every 10 at%
    painter.setPen(QPen(isFlat() ? QColor(0, 0, 0, 60) : QColor(190, 190, 190), frameWidth() / 1.2));
    for (int line = 1; line < GridLines; ++line) {
        const double share = static_cast<double>(line) / GridLines;
        for (std::size_t k = 0; k < 3; ++k) // constant share of component k
            painter.drawLine(at(along((k + 1) % 3, k, share), 0), at(along((k + 2) % 3, k, share), 0));
    }
    painter.setPen(QPen(Qt::black, frameWidth()));
    for (std::size_t k = 0; k < 3; ++k)
        painter.drawLine(at(along(k, k, 1), 0), at(along((k + 1) % 3, (k + 1) % 3, 1), 0));
}

/// The alloy's own composition: a point on the surface and a line down to the base.
void Ternaerbild::paintCurrent(QPainter& painter) const
{
    constexpr double Radius = 4.5;
    const auto& current = m_aufnahme.beiwerk.legierung;
    const auto place = current ? stelle(*current) : std::nullopt;
    if (!place)
        return;
    const QColor colour = m_aufnahme.stil.grau ? QColor(Qt::black) : QColor(Legierungsfarbe);
    painter.setPen(QPen(colour, frameWidth(), Qt::DashLine));
    painter.drawLine(at(*current, 0), *place);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(colour);
    painter.drawEllipse(*place, Radius, Radius);
    painter.setBrush(Qt::NoBrush);
}

/// The parts that the surface does not hide.
void Ternaerbild::paintTargetLines(QPainter& painter) const
{
    const auto& [titel, untertitel, legierung, ziel, lines] = m_aufnahme.beiwerk;
    if (!ziel)
        return;
    const double z = isFlat() ? 0 : heightShare(*ziel, inhalt().range) * SurfaceHeight;
    std::vector<QPolygonF> parts;
    for (const Ternaerlinie& line : lines) {
        bool goesOn = false;
        for (const Anteile3& anteile : line) {
            const Bildpunkt p = m_flaeche.sicht().projektion.project(placeOf(anteile, z));
            const bool isSeen = m_flaeche.istSichtbar(p);
            if (isSeen && !goesOn)
                parts.emplace_back();
            if (isSeen)
                parts.back() << QPointF(p.x, p.y);
            goesOn = isSeen;
        }
    }
    paintBold(painter, 2 * m_aufnahme.stil.linienbreite, [&] {
        for (const QPolygonF& part : parts) {
            if (part.size() == 1)
                painter.drawPoint(part.front());
            else
                painter.drawPolyline(part);
        }
    });
}

void Ternaerbild::paintColourBar(QPainter& painter) const
{
    if (!m_parts.balken)
        return;
    const Farbbalken& bar = *m_parts.balken;
    painter.setPen(QPen(Qt::black, frameWidth()));
    painter.setBrush(gradientOf(bar, m_aufnahme.stil.grau));
    painter.drawRect(toQt(bar.box));
    painter.setBrush(Qt::NoBrush);
    for (const Strich& tick : bar.striche)
        painter.drawLine(toQt(tick));
    if (bar.ziel)
        paintBold(painter, 2 * m_aufnahme.stil.linienbreite, [&] { painter.drawLine(toQt(*bar.ziel)); });
}

void Ternaerbild::paintTexts(QPainter& painter, const std::vector<Ternaertext>& texts) const
{
    constexpr QColor Ground(255, 255, 255, 205); // of texts on the surface
    const QFont& plain = m_aufnahme.font;
    for (const Ternaertext& text : texts) {
        const bool isLine =
            &texts == &m_labels.texte && (text.rolle == Textrolle::Linie || text.rolle == Textrolle::Ziel);
        const bool isOfComponent = text.rolle == Textrolle::Ecke || text.rolle == Textrolle::Kante;
        const bool isBold = text.rolle == Textrolle::Titel || text.rolle == Textrolle::Ziel;
        const QRectF box = toQt(text.box);
        if (isLine) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(Ground);
            painter.drawRoundedRect(box, 3, 3);
            painter.setBrush(Qt::NoBrush);
        }
        painter.setFont(text.rolle == Textrolle::Ecke ? symbolFont(plain) : isBold ? bold(plain) : plain);
        painter.setPen(isOfComponent && !m_aufnahme.stil.grau ? Komponentenfarben.at(text.komponente)
                : text.rolle == Textrolle::Untertitel         ? QColor(Teilungsfarbe)
                                                              : QColor(Qt::black));
        painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine,
            toQt(mitDezimal(text.text, m_aufnahme.stil.dezimal)));
    }
    painter.setFont(plain);
}

QString Ternaerbild::positionText(const QPointF& position) const
{
    const auto anteile = m_flaeche.anteileAt({position.x(), position.y()});
    const auto value = anteile ? interpolated(inhalt().gitter, *anteile) : std::nullopt;
    if (!value)
        return {};
    return toQt(ternaerablesung(inhalt().gitter, *anteile, static_cast<float>(*value)));
}

} // namespace zerna
