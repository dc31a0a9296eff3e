#pragma once

#include <string>
#include <vector>

#include "bild/PSEGeometrie.h"
#include "ui/diagram/Diagramm.h"
#include "ui/diagram/LastResult.h"
#include "ui/diagram/PSEmaler.h"

namespace zerna {

/// The element-property diagram: a property over the atomic number. The cursor goes from element to element, and where
/// one has no value it says why.
class PSEDiagramm : public Diagramm {
public:
    /// Replaces the values; what is shown beside them stays.
    void setElemente(Elementdiagramm elemente);

    const PSEAnsicht& ansicht() const { return m_ansicht; }
    void setAnsicht(const PSEAnsicht& ansicht) { m_ansicht = ansicht; }

    /// The elements without a value and what is missing, as a table; empty if all have one.
    std::string luecken() const { return lueckentabelle(m_elemente, m_ansicht.kristallin); }

    void paint(QPainter& painter, const Leinwand& leinwand) const override;
    void paintCursor(QPainter& painter, const Leinwand& leinwand) const override;
    bool hatWerte() const override;
    std::string values() const override;
    std::vector<Exportart> exportarten(const Leinwand& leinwand) const override;
    QString positionText(const QPointF& position, const Leinwand& leinwand) const override;
    QString cursorText() const override;
    QString name() const override { return toQt(m_elemente.titel); }
    QString beschreibung() const override;
    std::vector<Taste> tasten() const override;
    bool keyPressed(int key, const Leinwand& leinwand) override;
    void clearCursor() override;
    bool hovered(const QPointF& position, const Leinwand& leinwand) override;
    bool left() override;
    std::vector<Command> commands() override;

private:
    /// What the layout depends on besides the values.
    struct Aufnahme {
        Leinwand leinwand;
        PSEAnsicht ansicht;
        bool operator==(const Aufnahme&) const = default;
    };

    const PSELayout& layout(const Leinwand& leinwand) const;
    void moveCursor(int element);
    QString elementText(std::size_t element) const;

    Elementdiagramm m_elemente;
    PSEAnsicht m_ansicht;
    int m_cursor = -1; // element under the keyboard cursor, -1 for none
    int m_zeiger = -1; // element at which the mouse points, -1 for none
    LastResult<Aufnahme, PSELayout> m_layout;
};

} // namespace zerna
