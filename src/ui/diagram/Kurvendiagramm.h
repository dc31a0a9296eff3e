#pragma once

#include <QRectF>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "bild/Kurvenansicht.h"
#include "ui/diagram/Diagramm.h"
#include "ui/diagram/Kurvenmaler.h"
#include "ui/diagram/LastResult.h"
#include "ui/diagram/Plotinhalt.h"

namespace zerna {

/// A diagram that shows a picture of curves; without a picture it is white. Wheel, rubber band and keys zoom, a
/// crosshair runs along the curves. What is zoomed to stays while only the values change.
class Kurvendiagramm : public Diagramm {
public:
    void setBild(Kurvenbild bild);

    /// Changes what stands around and across the curves, which stay.
    void setBeschriftung(std::string untertitel, std::vector<Linienmarke> marken, std::vector<std::string> hinweise);
    void ohneBild() { m_hatBild = false; }

    /// Shows the whole picture again, without a crosshair: for a picture of something else.
    void beginneNeu();
    bool hatBild() const { return m_hatBild; }
    const Kurvenbild& bild() const { return m_bild; }

    /// Where the axes and the plot lie on a canvas.
    QRect kern(const Leinwand& leinwand) const;
    QRect plot(const Leinwand& leinwand) const;

    /// What the picture shows otherwise than when it was asked last, on the canvas: all where it cannot be told.
    struct Neues {
        QRegion rand; ///< around the axes
        QRegion kern; ///< beside the plot
        QRegion plot;
    };
    Neues neues(const Leinwand& leinwand);
    /// All is new, or the plot, when it is asked next.
    void vergissGezeigtes() { m_gezeigt.reset(); }
    void vergissPlot();

    /// Paint one part of the picture each, or a part of that.
    void paintRand(QPainter& painter, const Leinwand& leinwand, const Bildteil& teil = {}) const;
    void paintAchsen(QPainter& painter, const Leinwand& leinwand, const Bildteil& teil = {}) const;
    virtual void paintPlot(QPainter& painter, const Leinwand& leinwand, Linien linien = Linien::DurchAllePunkte) const;

    void paint(QPainter& painter, const Leinwand& leinwand) const override;

    /// Paints crosshair and rubber band.
    void paintCursor(QPainter& painter, const Leinwand& leinwand) const override;

    QString positionText(const QPointF& position, const Leinwand& leinwand) const override;
    QString cursorText() const override;
    QString name() const override;
    QString beschreibung() const override;
    std::vector<Taste> tasten() const override;
    bool keyPressed(int key, const Leinwand& leinwand) override { return keyPressedWith(key, {}, leinwand); }
    bool keyPressedWith(int key, Qt::KeyboardModifiers held, const Leinwand& leinwand) override;
    void clearCursor() override { m_ansicht.ohneKreuz(); }
    void pressed(const QPointF& position) override { m_druckstelle = position; }
    bool draggedTo(const QPointF& position, const QPointF& way, const Leinwand& leinwand) override;
    bool released(const Leinwand& leinwand) override;
    bool hovered(const QPointF& position, const Leinwand& leinwand) override;
    bool left() override;
    bool wheelTurnedAt(const QPointF& position, double notches, const Leinwand& leinwand) override;
    bool doubleClicked() override { return m_ansicht.zeigeGanz(); }
    void verlassen() override { beginneNeu(); }
    std::vector<Command> commands() override;

protected:
    /// For the part of the axes that is shown.
    const Kurvenlayout& layout(const Leinwand& leinwand) const;
    void setXEinheit(std::string einheit) { m_bild.x.einheit = std::move(einheit); }

private:
    /// What a layout depends on, and what the curves in it.
    struct Grundlage {
        Leinwand leinwand;
        int stand = 0;
        std::optional<Ausschnitt> ausschnitt;
        bool operator==(const Grundlage&) const = default;
    };
    struct Kurvengrundlage {
        int stand = 0;
        double width = 0;
        double height = 0;
        Ausschnitt ausschnitt;
        Linien linien = Linien::DurchAllePunkte;
        bool operator==(const Kurvengrundlage&) const = default;
    };

    const std::vector<Kurvenbahn>& bahnen(const Kurvenlayout& layout, Linien linien) const;
    bool hatZeiger() const { return m_ansicht.kreuz().has_value() || m_band.has_value(); }
    Punkt inPlot(const QPointF& position, const Leinwand& leinwand) const;
    bool zoomed(int key, const Leinwand& leinwand);
    bool moved(int key, int step, const Leinwand& leinwand);

    /// What neues was asked for last.
    struct Gezeigtes {
        Leinwand leinwand;
        Kurvenlayout layout;
        std::optional<Plotinhalt> plot; // none while something else is on it
    };

    Kurvenbild m_bild;
    std::optional<Gezeigtes> m_gezeigt;
    bool m_hatBild = false;
    int m_stand = 0; // of the picture, counted up
    int m_kurvenstand = 0; // of its curves
    Kurvenansicht m_ansicht;
    QPointF m_druckstelle; // where the left button went down
    std::optional<QRectF> m_band; // the rubber band, on the canvas
    bool m_kreuzDerMaus = false; // the crosshair follows the mouse
    LastResult<Grundlage, Kurvenlayout> m_layout;
    LastResult<Kurvengrundlage, std::vector<Kurvenbahn>> m_bahnen;
};

} // namespace zerna
