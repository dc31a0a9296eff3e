#pragma once

#include <memory>

#include "ui/diagram/Diagramm.h"
#include "ui/diagram/LastResult.h"
#include "ui/ternary/Ternaerbild.h"

namespace zerna {

/// The ternary diagram, which mouse and keys turn and zoom. The flat view stands still.
class Ternaerdiagramm : public Diagramm {
public:
    /// Replaces the grid; the view stays. `current` is the alloy's own composition, shown if it lies in the triangle.
    void setGitter(Ternaergitter gitter, const Anteile3& current);

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

    /// Flat view and view in space.
    std::vector<Command> commands() override;

private:
    /// What the rendered picture depends on.
    struct Aufnahme {
        std::shared_ptr<const Ternaerinhalt> inhalt;
        Ansicht ansicht;
        Leinwand leinwand;
        bool operator==(const Aufnahme&) const = default;
    };

    const Ternaerbild& bild(const Leinwand& leinwand) const;
    void turnBy(double tilt, double turn);

    std::shared_ptr<const Ternaerinhalt> m_inhalt; // null before the first grid
    Ansicht m_ansicht;
    LastResult<Aufnahme, Ternaerbild> m_bild;
};

} // namespace zerna
