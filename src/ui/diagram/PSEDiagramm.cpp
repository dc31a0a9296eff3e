#include "ui/diagram/PSEDiagramm.h"

#include <QPainter>

#include <algorithm>
#include <utility>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Werttext.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/platform/Farben.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

void PSEDiagramm::setElemente(Elementdiagramm elemente)
{
    m_elemente = std::move(elemente);
    m_layout = {};
    clearCursor();
    left();
}

const PSELayout& PSEDiagramm::layout(const Leinwand& leinwand) const
{
    return m_layout.get({leinwand, m_ansicht}, [&] { return layOutPSE(m_elemente, m_ansicht, leinwand); });
}

void PSEDiagramm::paint(QPainter& painter, const Leinwand& leinwand) const
{
    paintPSE(painter, layout(leinwand), leinwand, Punktlage::Genau);
}

/// Around the points of the element, or across the picture where it has none.
void PSEDiagramm::paintCursor(QPainter& painter, const Leinwand& leinwand) const
{
    constexpr double Radius = 6;
    const int shown = m_zeiger < 0 ? m_cursor : m_zeiger;
    if (shown < 0)
        return;
    const PSEBild& bild = layout(leinwand).bild;
    const auto element = static_cast<std::size_t>(shown);
    bool isOnCurve = false;
    painter.setPen(QPen(Cursorfarbe, 2));
    painter.setRenderHint(QPainter::Antialiasing);
    for (const PSEKurve* const kurve : {&bild.kurve, &bild.kristallin}) {
        if (element >= kurve->punkte.size() || !kurve->punkte[element])
            continue;
        const Punkt& p = *kurve->punkte[element];
        painter.drawEllipse(QPointF(p.x + 0.5, p.y + 0.5), Radius, Radius);
        isOnCurve = true;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (isOnCurve)
        return;
    painter.setPen(QPen(Cursorfarbe, 1, Qt::DashLine));
    const double column = bild.spalten.at(element);
    painter.drawLine(pixelCentre({column, bild.feld.top}), pixelCentre({column, bild.feld.top + bild.feld.height - 1}));
}

bool PSEDiagramm::hatWerte() const { return istEinerBekannt(m_elemente.reihe.y); }

std::string PSEDiagramm::values() const { return elementtabelle(m_elemente, m_ansicht.kristallin); }

std::vector<Exportart> PSEDiagramm::exportarten(const Leinwand& leinwand) const
{
    if (!hatWerte())
        return {};
    const auto onPixels = [this](QPainter& painter, const Leinwand& on) {
        paintPSE(painter, layout(on), on, Punktlage::GanzePixel);
    };
    return {datDatei([this] { return psedatei(m_elemente.reihe); }), bitmap(onPixels, leinwand)};
}

QString PSEDiagramm::positionText(const QPointF& position, const Leinwand& leinwand) const
{
    const auto element = nearestElement(layout(leinwand).bild, position.x());
    return element ? elementText(*element) : QString();
}

/// "Al   OZ 13   11,2 eV", with the crystalline value behind it where that is shown, or "Og: Masse unbekannt" for an
/// element without any value.
QString PSEDiagramm::elementText(std::size_t element) const
{
    const Diagrammelement& eintrag = m_elemente.elemente.at(element);
    const bool both = m_ansicht.kristallin && m_elemente.hatKristallin();
    const auto told = [&](const PSEReihe& reihe, const std::string& luecke, std::string_view einheit) {
        return luecke.empty() ? werttext(reihe.y.at(element), einheit) : luecke;
    };
    const std::string text = told(m_elemente.reihe, eintrag.luecke, m_elemente.einheit);
    const std::string second = both ? told(m_elemente.kristallin, eintrag.kristallineLuecke, {}) : std::string();
    if (!eintrag.luecke.empty() && (!both || !eintrag.kristallineLuecke.empty()))
        return toQt(eintrag.symbol + ": " + text + (second.empty() || second == text ? "" : ", " + second));
    return toQt(eintrag.symbol + "   OZ " + textOfSingle(m_elemente.reihe.x.at(element)) + "   " + text
        + (both ? "   kristallin " + second : ""));
}

QString PSEDiagramm::cursorText() const
{
    return m_cursor < 0 ? QString() : elementText(static_cast<std::size_t>(m_cursor));
}

QString PSEDiagramm::beschreibung() const
{
    const QString rest = toQt(m_elemente.untertitel);
    return QStringLiteral("%1 Elemente nach der Ordnungszahl").arg(m_elemente.elemente.size())
        + (rest.isEmpty() ? QString() : QStringLiteral(" - ") + rest);
}

std::vector<Diagramm::Taste> PSEDiagramm::tasten() const
{
    return {
        {QStringLiteral("Nächster Punkt"), Qt::Key_Right},
        {QStringLiteral("Voriger Punkt"), Qt::Key_Left},
        {QStringLiteral("Erster Punkt"), Qt::Key_Home},
        {QStringLiteral("Letzter Punkt"), Qt::Key_End},
    };
}

bool PSEDiagramm::hovered(const QPointF& position, const Leinwand& leinwand)
{
    const auto element = nearestElement(layout(leinwand).bild, position.x());
    const int pointed = element ? static_cast<int>(*element) : -1;
    return std::exchange(m_zeiger, pointed) != pointed;
}

bool PSEDiagramm::left() { return std::exchange(m_zeiger, -1) >= 0; }

bool PSEDiagramm::keyPressed(int key, const Leinwand&)
{
    m_zeiger = -1; // the keys take over
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
        moveCursor(static_cast<int>(m_elemente.elemente.size()) - 1);
        return true;
    default:
        return false;
    }
}

void PSEDiagramm::moveCursor(int element)
{
    if (!m_elemente.elemente.empty())
        m_cursor = std::clamp(element, 0, static_cast<int>(m_elemente.elemente.size()) - 1);
}

void PSEDiagramm::clearCursor() { m_cursor = -1; }

std::vector<Diagramm::Command> PSEDiagramm::commands()
{
    std::vector<Command> commands{
        {QStringLiteral("Symbole"), [this] { m_ansicht.symbole = !m_ansicht.symbole; }, m_ansicht.symbole}};
    if (m_elemente.hatKristallin())
        commands.push_back({QStringLiteral("Auch kristallin"), [this] { m_ansicht.kristallin = !m_ansicht.kristallin; },
            m_ansicht.kristallin});
    if (const std::string table = luecken(); !table.empty())
        commands.push_back({QStringLiteral("Lücken kopieren"), [table] { copyToClipboard(toQt(table)); }});
    return commands;
}

} // namespace zerna
