#pragma once

#include <memory>
#include <optional>

#include "bild/Ternaerangaben.h"
#include "ui/diagram/Diagramm.h"
#include "ui/ternary/Ternaerbild.h"

namespace zerna {

/// The ternary diagram, which mouse and keys turn and zoom. The flat view stands still.
class Ternaerdiagramm : public Diagramm {
public:
    /// Shows another alloy or quantity; view and target stay.
    void setAngaben(Ternaerangaben angaben);

    /// Marks where the quantity has a value, by a line across the surface; none takes the line away.
    void setZiel(std::optional<float> ziel);

    /// The points of that line as a table of at% (tabs, CR LF); empty while there are none.
    std::string zielpunkte() const;

    const Ansicht& ansicht() const { return m_ansicht; }
    void setAnsicht(const Ansicht& ansicht) { m_ansicht = ansicht; }

    void paint(QPainter& painter, const Leinwand& leinwand) const override;
    std::string values() const override;
    std::vector<Exportart> exportarten(const Leinwand& leinwand) const override;
    QString positionText(const QPointF& position, const Leinwand& leinwand) const override;
    bool keyPressed(int key, const Leinwand& leinwand) override;
    bool dragged(const QPointF& way) override;
    bool wheelTurned(double notches) override;

    /// Back to the first view; flat stays flat.
    bool doubleClicked() override;

    /// Flat view and view in space; the points of the target line.
    std::vector<Command> commands() override;

private:
    void findZiellinien();
    const Ternaerbild& bild(const Leinwand& leinwand) const;
    void turnBy(double tilt, double turn);

    std::shared_ptr<const Ternaerinhalt> m_inhalt; // null before the first grid
    Ternaerwert m_groesse;
    Ternaerbeiwerk m_beiwerk;
    Ansicht m_ansicht;
    mutable Ternaerbild m_bild; // as it was wanted last
};

} // namespace zerna
