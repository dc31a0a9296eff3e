#include "ui/diagram/Ternaerdiagramm.h"

#include <QPainter>

#include <cmath>
#include <utility>

#include "core/Unbekannt.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/platform/QtText.h"
#include "ui/platform/Zwischenablage.h"

namespace zerna {

namespace {

constexpr double ZoomStep = 1.1; // of a key or a notch of the wheel

} // namespace

void Ternaerdiagramm::setAngaben(Ternaerangaben angaben)
{
    if (!m_inhalt || m_inhalt->gitter != angaben.gitter) // other at% have the same surface
        m_inhalt = std::make_shared<const Ternaerinhalt>(std::move(angaben.gitter));
    m_groesse = std::move(angaben.groesse);
    m_beiwerk.titel = std::move(angaben.titel);
    m_beiwerk.untertitel = std::move(angaben.untertitel);
    m_beiwerk.legierung = istZusammensetzung(angaben.legierung) ? std::optional(angaben.legierung) : std::nullopt;
    findZiellinien();
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

std::string Ternaerdiagramm::values() const { return m_inhalt ? ternaerdatei(m_inhalt->gitter) : std::string(); }

std::vector<Exportart> Ternaerdiagramm::exportarten(const Leinwand& leinwand) const
{
    if (!m_inhalt || !istEinerBekannt(m_inhalt->gitter.werte))
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

bool Ternaerdiagramm::keyPressed(int key, const Leinwand&)
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
    case Qt::Key_Plus:
        return wheelTurned(1);
    case Qt::Key_Minus:
        return wheelTurned(-1);
    default:
        return false;
    }
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
