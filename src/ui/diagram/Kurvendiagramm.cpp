#include "ui/diagram/Kurvendiagramm.h"

#include <QPainter>

#include <cmath>
#include <utility>

#include "bild/Layoutunterschied.h"
#include "core/Zahlentext.h"
#include "ui/platform/Abdeckung.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

QRect rectOf(const Rechteck& box)
{
    return {static_cast<int>(box.left), static_cast<int>(box.top), static_cast<int>(box.width),
        static_cast<int>(box.height)};
}

QRegion regionOf(const std::vector<Rechteck>& boxes)
{
    QRegion region;
    for (const Rechteck& box : boxes)
        region += gemalteFlaeche(box);
    return region;
}

} // namespace

void Kurvendiagramm::setBild(Kurvenbild bild)
{
    m_bild = std::move(bild);
    m_hatBild = true;
    ++m_stand;
    ++m_kurvenstand;
    m_ansicht.passeAn(m_bild);
}

void Kurvendiagramm::setBeschriftung(
    std::string untertitel, std::vector<Linienmarke> marken, std::vector<std::string> hinweise)
{
    m_bild.untertitel = std::move(untertitel);
    m_bild.marken = std::move(marken);
    m_bild.hinweise = std::move(hinweise);
    ++m_stand;
}

void Kurvendiagramm::beginneNeu()
{
    m_ansicht = {};
    m_band.reset();
}

const Kurvenlayout& Kurvendiagramm::layout(const Leinwand& leinwand) const
{
    const auto& ausschnitt = m_ansicht.ausschnitt();
    return m_layout.get({leinwand, m_stand, ausschnitt}, [&] { return kurvenlayout(m_bild, leinwand, ausschnitt); });
}

/// A million points are thinned out again only when they are seen otherwise, not for every text beside them.
const std::vector<Kurvenbahn>& Kurvendiagramm::bahnen(const Kurvenlayout& layout, Linien linien) const
{
    return m_bahnen.get({m_kurvenstand, layout.plot.width, layout.plot.height, layout.ausschnitt, linien},
        [&] { return kurvenbahnen(m_bild, layout, linien); });
}

QRect Kurvendiagramm::kern(const Leinwand& leinwand) const
{
    return m_hatBild ? rectOf(layout(leinwand).kern) : QRect(QPoint(0, 0), leinwand.size);
}

QRect Kurvendiagramm::plot(const Leinwand& leinwand) const
{
    return rectOf(m_hatBild ? layout(leinwand).plot : plotArea(leinwand.size.width(), leinwand.size.height()));
}

Kurvendiagramm::Neues Kurvendiagramm::neues(const Leinwand& leinwand)
{
    const auto before = std::exchange(m_gezeigt, std::nullopt);
    if (m_hatBild) {
        const Kurvenlayout& places = layout(leinwand);
        m_gezeigt = {leinwand, places, plotinhalt(m_bild, places, bahnen(places, Linien::WieZuSehen))};
    }
    if (hatZeiger())
        vergissPlot(); // it shows more than its content
    const QRect all(QPoint(0, 0), leinwand.size);
    if (!m_gezeigt || !before || before->leinwand != leinwand)
        return {all, all, all};
    const auto [rand, kern] = unterschied(before->layout, m_gezeigt->layout);
    const bool isPlotKnown = before->plot && m_gezeigt->plot;
    return {regionOf(rand), regionOf(kern), isPlotKnown ? unterschied(*before->plot, *m_gezeigt->plot) : all};
}

void Kurvendiagramm::vergissPlot()
{
    if (m_gezeigt)
        m_gezeigt->plot.reset();
}

void Kurvendiagramm::paintRand(QPainter& painter, const Leinwand& leinwand, const Bildteil& teil) const
{
    if (m_hatBild)
        zerna::paintRand(painter, m_bild, layout(leinwand), leinwand, teil);
}

void Kurvendiagramm::paintAchsen(QPainter& painter, const Leinwand& leinwand, const Bildteil& teil) const
{
    if (m_hatBild)
        zerna::paintAchsen(painter, layout(leinwand), leinwand, teil);
}

void Kurvendiagramm::paintPlot(QPainter& painter, const Leinwand& leinwand, Linien linien) const
{
    if (!m_hatBild)
        return;
    const Kurvenlayout& places = layout(leinwand);
    zerna::paintPlot(painter, m_bild, places, bahnen(places, linien), leinwand, linien);
}

void Kurvendiagramm::paint(QPainter& painter, const Leinwand& leinwand) const
{
    painter.fillRect(QRect(QPoint(0, 0), leinwand.size), Qt::white);
    paintPlot(painter, leinwand);
    deckeRandAb(painter, plot(leinwand), leinwand.size);
    paintRand(painter, leinwand);
    paintAchsen(painter, leinwand);
}

void Kurvendiagramm::paintCursor(QPainter& painter, const Leinwand& leinwand) const
{
    constexpr double Ring = 4;
    if (!m_hatBild)
        return;
    const QRect area = plot(leinwand);
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    if (const auto& kreuz = m_ansicht.kreuz()) {
        const Kurvenlayout& places = layout(leinwand);
        const bool isRight = m_bild.kurven.at(kreuz->kurve).rechts;
        const Punkt place = (isRight ? places.rechts : places.links).punkt(kreuz->x, kreuz->y);
        const QPointF middle(area.left() + place.x + 0.5, area.top() + place.y + 0.5);
        painter.setPen(QPen(Cursorfarbe, 1, Qt::DashLine));
        painter.drawLine(QPointF(middle.x(), area.top()), QPointF(middle.x(), area.top() + area.height()));
        if (std::isfinite(place.y)) {
            painter.drawLine(QPointF(area.left(), middle.y()), QPointF(area.left() + area.width(), middle.y()));
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QPen(Cursorfarbe, 1.5));
            painter.drawEllipse(middle, Ring, Ring);
        }
    }
    if (m_band) {
        painter.setPen(QPen(Cursorfarbe, 1));
        painter.fillRect(*m_band, QColor(Cursorfarbe.red(), Cursorfarbe.green(), Cursorfarbe.blue(), 30));
        painter.drawRect(*m_band);
    }
    painter.restore();
}

/// A position from the plot's corner.
Punkt Kurvendiagramm::inPlot(const QPointF& position, const Leinwand& leinwand) const
{
    const QPointF place = position - plot(leinwand).topLeft();
    return {place.x(), place.y()};
}

QString Kurvendiagramm::positionText(const QPointF& position, const Leinwand& leinwand) const
{
    if (!m_hatBild || !plot(leinwand).contains(position.toPoint()))
        return {};
    const Kurvenlayout& places = layout(leinwand);
    const auto punkt = punktBei(m_bild, places, inPlot(position, leinwand));
    return punkt ? toQt(ablesung(m_bild, *punkt, places.ausschnitt.x)) : QString();
}

QString Kurvendiagramm::cursorText() const
{
    const auto& kreuz = m_ansicht.kreuz();
    if (!m_hatBild || !kreuz)
        return {};
    return toQt(ablesung(m_bild, *kreuz, m_ansicht.ausschnitt().value_or(ganzerAusschnitt(m_bild)).x));
}

QString Kurvendiagramm::name() const { return m_hatBild ? toQt(m_bild.titel) : QString(); }

/// The alloy, the axis and the curves: "… - at% Al von 0 bis 100 - Al60Cu40, Variante 2".
QString Kurvendiagramm::beschreibung() const
{
    if (!m_hatBild)
        return {};
    const Achse& x = m_bild.x;
    const auto bound = [](double value) { return textWithDigits(static_cast<float>(value), 5); };
    std::string text = m_bild.untertitel + (m_bild.untertitel.empty() ? "" : " - ")
        + (x.einheit.empty() ? x.titel : x.einheit) + " von " + bound(x.bereich.min) + " bis " + bound(x.bereich.max);
    std::string names;
    for (const Kurve& kurve : m_bild.kurven) {
        if (!kurve.name.empty())
            names += (names.empty() ? " - " : ", ") + kurve.name;
    }
    return toQt(text + names);
}

std::vector<Diagramm::Taste> Kurvendiagramm::tasten() const
{
    if (!m_hatBild)
        return {};
    return {
        {QStringLiteral("Nächster Punkt"), Qt::Key_Right},
        {QStringLiteral("Voriger Punkt"), Qt::Key_Left},
        {QStringLiteral("Erster Punkt"), Qt::Key_Home},
        {QStringLiteral("Letzter Punkt"), Qt::Key_End},
        {QStringLiteral("Nächste Kurve"), Qt::Key_Down},
        {QStringLiteral("Vorige Kurve"), Qt::Key_Up},
        {QStringLiteral("Bild vergrößern"), Qt::Key_Plus},
        {QStringLiteral("Bild verkleinern"), Qt::Key_Minus},
        {QStringLiteral("Ganzes Bild"), Qt::Key_0},
    };
}

bool Kurvendiagramm::keyPressedWith(int key, Qt::KeyboardModifiers held, const Leinwand& leinwand)
{
    constexpr int Far = 10;
    if (!m_hatBild || layout(leinwand).istLeer())
        return false;
    m_kreuzDerMaus = false;
    const bool isFar = held.testFlag(Qt::ShiftModifier) || held.testFlag(Qt::ControlModifier);
    return zoomed(key, leinwand) || moved(key, isFar ? Far : 1, leinwand);
}

/// Whether it is a key that zooms.
bool Kurvendiagramm::zoomed(int key, const Leinwand& leinwand)
{
    const Kurvenlayout& places = layout(leinwand);
    const auto around = [&](double notches) {
        const auto& kreuz = m_ansicht.kreuz();
        const Punkt middle{places.plot.width / 2, places.plot.height / 2};
        const bool isLeft = kreuz && !m_bild.kurven.at(kreuz->kurve).rechts && std::isfinite(kreuz->y);
        m_ansicht.zoome(m_bild, places, isLeft ? places.links.punkt(kreuz->x, kreuz->y) : middle, notches);
        return true;
    };
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key without shift on some keyboards
        return around(1);
    case Qt::Key_Minus:
        return around(-1);
    case Qt::Key_0:
    case Qt::Key_Escape:
        return m_ansicht.zeigeGanz();
    default:
        return false;
    }
}

/// Whether it is a key that moves the crosshair.
bool Kurvendiagramm::moved(int key, int step, const Leinwand& leinwand)
{
    const Kurvenlayout& places = layout(leinwand);
    switch (key) {
    case Qt::Key_Left:
        return m_ansicht.gehe(m_bild, places, -step);
    case Qt::Key_Right:
        return m_ansicht.gehe(m_bild, places, step);
    case Qt::Key_Home:
        return m_ansicht.geheAnsEnde(m_bild, places, false);
    case Qt::Key_End:
        return m_ansicht.geheAnsEnde(m_bild, places, true);
    case Qt::Key_Down:
        return m_ansicht.wechsle(m_bild, places, 1);
    case Qt::Key_Up:
        return m_ansicht.wechsle(m_bild, places, -1);
    default:
        return false;
    }
}

bool Kurvendiagramm::draggedTo(const QPointF& position, const QPointF&, const Leinwand& leinwand)
{
    if (!m_hatBild || !plot(leinwand).contains(m_druckstelle.toPoint()))
        return false;
    m_band = QRectF(m_druckstelle, position).normalized();
    m_ansicht.ohneKreuz();
    return true;
}

bool Kurvendiagramm::released(const Leinwand& leinwand)
{
    const auto band = std::exchange(m_band, std::nullopt);
    if (!band || !m_hatBild)
        return false;
    m_ansicht.zoomeAuf(
        m_bild, layout(leinwand), inPlot(band->topLeft(), leinwand), inPlot(band->bottomRight(), leinwand));
    return true;
}

bool Kurvendiagramm::hovered(const QPointF& position, const Leinwand& leinwand)
{
    if (!m_hatBild || !plot(leinwand).contains(position.toPoint()))
        return left();
    m_ansicht.zeigeAuf(m_bild, layout(leinwand), inPlot(position, leinwand));
    m_kreuzDerMaus = true;
    return true;
}

bool Kurvendiagramm::left() { return m_kreuzDerMaus && m_ansicht.ohneKreuz(); }

bool Kurvendiagramm::wheelTurnedAt(const QPointF& position, double notches, const Leinwand& leinwand)
{
    if (!m_hatBild || notches == 0)
        return false;
    m_ansicht.zoome(m_bild, layout(leinwand), inPlot(position, leinwand), notches);
    return true;
}

std::vector<Diagramm::Command> Kurvendiagramm::commands()
{
    if (!m_hatBild || !m_ansicht.ausschnitt())
        return {};
    return {{QStringLiteral("Ausschnitt aufheben"), [this] { m_ansicht.zeigeGanz(); }}};
}

} // namespace zerna
