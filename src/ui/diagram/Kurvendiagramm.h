#pragma once

#include <string>
#include <utility>

#include "ui/diagram/Diagramm.h"
#include "ui/diagram/Kurvenmaler.h"
#include "ui/diagram/LastResult.h"

namespace zerna {

/// A diagram that shows a picture of curves. Without a picture it is white.
class Kurvendiagramm : public Diagramm {
public:
    void setBild(Kurvenbild bild);
    void ohneBild() { m_hatBild = false; }
    bool hatBild() const { return m_hatBild; }
    const Kurvenbild& bild() const { return m_bild; }

    /// Where the axes and the plot lie on a canvas.
    QRect kern(const Leinwand& leinwand) const;
    QRect plot(const Leinwand& leinwand) const;

    /// Paint one part of the picture each.
    void paintRand(QPainter& painter, const Leinwand& leinwand) const;
    void paintAchsen(QPainter& painter, const Leinwand& leinwand) const;
    virtual void paintPlot(QPainter& painter, const Leinwand& leinwand) const;

    void paint(QPainter& painter, const Leinwand& leinwand) const override;

protected:
    /// For the part of the axes that is shown.
    const Kurvenzeichnung& zeichnung(const Leinwand& leinwand) const;
    void setXEinheit(std::string einheit) { m_bild.x.einheit = std::move(einheit); }

private:
    /// What a drawing depends on.
    struct Grundlage {
        Leinwand leinwand;
        int stand = 0;
        bool operator==(const Grundlage&) const = default;
    };

    Kurvenbild m_bild;
    bool m_hatBild = false;
    int m_stand = 0; // of the picture, counted up
    LastResult<Grundlage, Kurvenzeichnung> m_zeichnung;
};

} // namespace zerna
