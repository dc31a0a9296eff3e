#pragma once

#include <string>
#include <vector>

#include "bild/PSEGeometrie.h"
#include "model/PSEReihe.h"
#include "ui/diagram/Diagramm.h"
#include "ui/diagram/LastResult.h"

namespace zerna {

/// The element-property diagram: a property over the atomic number. The cursor goes from element to element.
class PSEDiagramm : public Diagramm {
public:
    PSEDiagramm() = default;

    /// `symbole` names the elements of the series for the read-out.
    PSEDiagramm(PSEReihe reihe, std::vector<std::string> symbole);

    void paint(QPainter& painter, const Leinwand& leinwand) const override;
    void paintCursor(QPainter& painter, const Leinwand& leinwand) const override;
    std::string values() const override;
    std::vector<Exportart> exportarten(const Leinwand& leinwand) const override;
    QString positionText(const QPointF& position, const Leinwand& leinwand) const override;
    QString cursorText() const override;
    bool keyPressed(int key, const Leinwand& leinwand) override;
    void clearCursor() override;

private:
    struct Layout {
        PSEBild bild;
        QFont labelFont;
    };

    const Layout& layout(const Leinwand& leinwand) const;
    Layout layOut(const Leinwand& leinwand) const;
    void moveCursor(int from, int step, const PSEBild& bild);
    QString elementText(std::size_t element) const;

    PSEReihe m_reihe;
    std::vector<std::string> m_symbole;
    int m_cursor = -1; // element under the keyboard cursor, -1 for none
    LastResult<Leinwand, Layout> m_layout;
};

} // namespace zerna
