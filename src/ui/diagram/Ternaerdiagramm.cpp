#include "ui/diagram/Ternaerdiagramm.h"

#include <QPainter>

#include <cmath>
#include <utility>

#include "core/Unbekannt.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/platform/Farben.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

constexpr double ZoomStep = 1.1; // of a key or a notch of the wheel

} // namespace

bool Ternaerdiagramm::setAngaben(Ternaerangaben angaben)
{
    const auto before = std::pair(m_inhalt, m_beiwerk);
    if (!m_inhalt || m_inhalt->gitter != angaben.gitter) // other at% have the same surface
        m_inhalt = std::make_shared<const Ternaerinhalt>(std::move(angaben.gitter));
    if (m_kreuz && m_kreuz->i + m_kreuz->j > m_inhalt->gitter.n)
        m_kreuz.reset(); // of a finer grid
    m_groesse = std::move(angaben.groesse);
    m_beiwerk.titel = std::move(angaben.titel);
    m_beiwerk.untertitel = std::move(angaben.untertitel);
    m_beiwerk.legierung = istZusammensetzung(angaben.legierung) ? std::optional(angaben.legierung) : std::nullopt;
    findZiellinien();
    return before != std::pair(m_inhalt, m_beiwerk);
}

void Ternaerdiagramm::setZiel(std::optional<float> ziel)
{
    m_beiwerk.ziel = ziel;
    findZiellinien();
}

std::string Ternaerdiagramm::zielpunkte() const
{
    return m_inhalt ? punktetext(m_inhalt->gitter, m_beiwerk.ziellinien) : std::string();
}

void Ternaerdiagramm::findZiellinien()
{
    m_beiwerk.ziellinien.clear();
    if (m_beiwerk.ziel && m_inhalt)
        m_beiwerk.ziellinien = hoehenlinien(m_inhalt->gitter, m_inhalt->triangles, *m_beiwerk.ziel, m_groesse);
}

const Ternaerbild& Ternaerdiagramm::bild(const Leinwand& leinwand) const
{
    m_bild.zeige(
        {m_inhalt, m_beiwerk, m_ansicht, leinwand.size, leinwand.font, leinwand.devicePixelRatio, leinwand.stil});
    return m_bild;
}

void Ternaerdiagramm::paint(QPainter& painter, const Leinwand& leinwand) const
{
    painter.fillRect(QRect(QPoint(0, 0), leinwand.size), Qt::white); // the picture's own as well: saved files keep both
    if (m_inhalt && !leinwand.size.isEmpty())
        bild(leinwand).paint(painter);
}

bool Ternaerdiagramm::hatWerte() const { return m_inhalt && istEinerBekannt(m_inhalt->gitter.werte); }

std::string Ternaerdiagramm::values() const { return m_inhalt ? ternaerdatei(m_inhalt->gitter) : std::string(); }

std::vector<Exportart> Ternaerdiagramm::exportarten(const Leinwand& leinwand) const
{
    if (!hatWerte())
        return {};
    return {textdatei("Daten 3D (*.3dd)", "*.3dd", ".3dd", [this] { return values(); }), bitmap(maler(), leinwand)};
}

QString Ternaerdiagramm::positionText(const QPointF& position, const Leinwand& leinwand) const
{
    const bool hasPicture = m_inhalt && !leinwand.size.isEmpty();
    return hasPicture ? bild(leinwand).positionText(position) : QString();
}

void Ternaerdiagramm::turnBy(double tilt, double turn)
{
    if (!m_ansicht.flach)
        m_ansicht = rotated(m_ansicht, tilt, turn);
}

/// Where the crosshair is; across the whole picture it would hide the lines of the surface.
void Ternaerdiagramm::paintCursor(QPainter& painter, const Leinwand& leinwand) const
{
    constexpr double Ring = 6;
    if (!m_kreuz || !m_inhalt || leinwand.size.isEmpty())
        return;
    const auto place = bild(leinwand).stelle(anteileBei(m_inhalt->gitter, *m_kreuz));
    if (!place)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [colour, width] : {std::pair(QColor(Qt::white), 4.0), std::pair(QColor(Cursorfarbe), 2.0)}) {
        painter.setPen(QPen(colour, width));
        painter.drawEllipse(*place, Ring, Ring);
    }
    painter.restore();
}

QString Ternaerdiagramm::cursorText() const
{
    if (!m_kreuz || !m_inhalt)
        return {};
    const Ternaergitter& gitter = m_inhalt->gitter;
    return toQt(ternaerablesung(gitter, anteileBei(gitter, *m_kreuz), gitter.wert(m_kreuz->i, m_kreuz->j)));
}

std::vector<Diagramm::Taste> Ternaerdiagramm::tasten() const
{
    const auto& symbole = m_inhalt ? m_inhalt->gitter.symbole : std::array<std::string, 3>();
    const auto more = [&](std::size_t k) { return QStringLiteral("Ablesen: mehr %1").arg(toQt(symbole.at(k))); };
    return {
        {more(0), Qt::Key_Left, Qt::ShiftModifier},
        {more(1), Qt::Key_Right, Qt::ShiftModifier},
        {more(2), Qt::Key_Up, Qt::ShiftModifier},
        {QStringLiteral("Ablesen: weniger %1").arg(toQt(symbole.at(2))), Qt::Key_Down, Qt::ShiftModifier},
        {QStringLiteral("Ablesen: eingetragene Zusammensetzung"), Qt::Key_Home},
        {QStringLiteral("Bild vergrößern"), Qt::Key_Plus},
        {QStringLiteral("Bild verkleinern"), Qt::Key_Minus},
    };
}

bool Ternaerdiagramm::keyPressedWith(int key, Qt::KeyboardModifiers held, const Leinwand&)
{
    const bool reads = m_ansicht.flach || held.testFlag(Qt::ShiftModifier);
    if (key == Qt::Key_Plus || key == Qt::Key_Minus)
        return wheelTurned(key == Qt::Key_Plus ? 1 : -1);
    if (key == Qt::Key_Home || reads)
        return moved(key);
    return turned(key);
}

bool Ternaerdiagramm::turned(int key)
{
    constexpr double Step = 5; // degrees
    switch (key) {
    case Qt::Key_Left:
        turnBy(0, Step);
        return true;
    case Qt::Key_Right:
        turnBy(0, -Step);
        return true;
    case Qt::Key_Up:
        turnBy(-Step, 0);
        return true;
    case Qt::Key_Down:
        turnBy(Step, 0);
        return true;
    default:
        return false;
    }
}

/// The crosshair begins at the entered composition, or in the middle.
bool Ternaerdiagramm::moved(int key)
{
    const bool isArrow = key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
    if (!m_inhalt || (!isArrow && key != Qt::Key_Home))
        return false;
    const Ternaergitter& gitter = m_inhalt->gitter;
    if (!m_kreuz || key == Qt::Key_Home) {
        constexpr double Third = 1.0 / 3;
        m_kreuz = kreuzBei(gitter, m_beiwerk.legierung.value_or(Anteile3{Third, Third, Third}));
        return true;
    }
    const int right = key == Qt::Key_Right ? 1 : key == Qt::Key_Left ? -1 : 0;
    const int up = key == Qt::Key_Up ? 1 : key == Qt::Key_Down ? -1 : 0;
    m_kreuz = nachbar(gitter, *m_kreuz, right, up);
    return true;
}

bool Ternaerdiagramm::dragged(const QPointF& way)
{
    turnBy(way.y(), -way.x());
    return true;
}

bool Ternaerdiagramm::wheelTurned(double notches)
{
    m_ansicht = zoomed(m_ansicht, std::pow(ZoomStep, notches));
    return true;
}

bool Ternaerdiagramm::doubleClicked()
{
    const bool flach = m_ansicht.flach;
    m_ansicht = {};
    m_ansicht.flach = flach;
    return true;
}

std::vector<Diagramm::Command> Ternaerdiagramm::commands()
{
    std::vector<Command> commands{
        {QStringLiteral("Draufsicht"), [this] { m_ansicht.flach = true; }, m_ansicht.flach},
        {QStringLiteral("Räumlich"), [this] { m_ansicht.flach = false; }, !m_ansicht.flach},
    };
    if (!m_beiwerk.ziellinien.empty())
        commands.push_back(
            {QStringLiteral("Punkte der Ziellinie kopieren"), [text = toQt(zielpunkte())] { copyToClipboard(text); }});
    return commands;
}

} // namespace zerna
