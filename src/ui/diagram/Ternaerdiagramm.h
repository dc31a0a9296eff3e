#pragma once

#include <memory>
#include <optional>

#include "bild/Ternaerangaben.h"
#include "bild/Ternaerkreuz.h"
#include "ui/diagram/Diagramm.h"
#include "ui/platform/QtText.h"
#include "ui/ternary/Ternaerbild.h"

namespace zerna {

/// The ternary diagram, which mouse and keys turn and zoom. The flat view stands still.
class Ternaerdiagramm : public Diagramm {
public:
    /// Shows another alloy or quantity; view and target stay. Whether the picture is another one then.
    bool setAngaben(Ternaerangaben angaben);

    /// Marks where the quantity has a value, by a line across the surface; none takes the line away.
    void setZiel(std::optional<float> ziel);

    /// The points of that line as a table of at% (tabs, CR LF); empty while there are none.
    std::string zielpunkte() const;

    const Ansicht& ansicht() const { return m_ansicht; }
    void setAnsicht(const Ansicht& ansicht) { m_ansicht = ansicht; }

    void paint(QPainter& painter, const Leinwand& leinwand) const override;
    bool hatWerte() const override;
    std::string values() const override;
    std::vector<Exportart> exportarten(const Leinwand& leinwand) const override;
    QString positionText(const QPointF& position, const Leinwand& leinwand) const override;
    void paintCursor(QPainter& painter, const Leinwand& leinwand) const override;
    QString cursorText() const override;
    void clearCursor() override { m_kreuz.reset(); }
    QString name() const override { return toQt(m_beiwerk.titel); }
    QString beschreibung() const override { return toQt(m_beiwerk.untertitel); }
    std::vector<Taste> tasten() const override;

    /// Turns and zooms; with Shift, or in the flat view, which does not turn, it moves the crosshair from point to
    /// point of the grid.
    bool keyPressedWith(int key, Qt::KeyboardModifiers held, const Leinwand& leinwand) override;
    bool dragged(const QPointF& way) override;
    bool wheelTurned(double notches) override;

    /// Back to the first view; flat stays flat.
    bool doubleClicked() override;

    /// Flat view and view in space; the points of the target line.
    std::vector<Command> commands() override;

private:
    void findZiellinien();
    bool turned(int key);
    bool moved(int key);
    const Ternaerbild& bild(const Leinwand& leinwand) const;
    void turnBy(double tilt, double turn);

    std::shared_ptr<const Ternaerinhalt> m_inhalt; // null before the first grid
    Ternaerwert m_groesse;
    Ternaerbeiwerk m_beiwerk;
    Ansicht m_ansicht;
    std::optional<Ternaerkreuz> m_kreuz; // of the keyboard
    mutable Ternaerbild m_bild; // as it was wanted last
};

} // namespace zerna
