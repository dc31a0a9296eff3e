#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bild/Achsen.h"
#include "model/Konzentrationsreihe.h"
#include "ui/diagram/Diagramm.h"
#include "ui/diagram/LastResult.h"
#include "ui/diagram/Striche.h"

namespace zerna {

/// The concentration diagram: a series over the at% of one component, 0 to 100, with strokes on it. Its picture has two
/// parts, the plot and the surface around it with ticks and labels.
class Konzentrationsdiagramm : public Diagramm {
public:
    /// Asks for the step width of saved values, in at%; no value: the user has changed their mind.
    using Schrittfrage = std::function<std::optional<int>()>;

    explicit Konzentrationsdiagramm(Schrittfrage schrittfrage);

    /// The series drawn last, all 0 before the first.
    const Reihe& reihe() const { return m_reihe; }

    /// Sets the axes for a series and draws it in the place of everything else. Errors of the axes reach the caller,
    /// and what was drawn before stays.
    void zeichneReihe(const Reihe& reihe);

    /// Symbol of the component along the axis, and unit of the values.
    void setSymbol(std::string symbol) { m_symbol = std::move(symbol); }
    void setEinheit(std::string_view einheit) { m_einheit = einheit; }

    /// One pixel at a point in data units, which becomes the current position.
    void zeichnePunkt(float x, float y, std::uint32_t colour);

    /// A line from the current position to a point in data units, which becomes the current position.
    void zeichneLinieZu(float x, float y, std::uint32_t colour);

    /// Clears what was drawn since alsHintergrund, which makes it lasting.
    void loeschen();
    void alsHintergrund();

    /// Shows that the diagram could not be computed.
    void zeichneFehler();

    /// Whether a series is shown.
    bool hasAxes() const { return m_y.has_value(); }

    /// Where the plot lies on a canvas.
    static QRect plot(const Leinwand& leinwand);

    /// Paint one part of the picture; the plot's corner comes to the painter's origin.
    void paintSurface(QPainter& painter, const Leinwand& leinwand) const;
    void paintPlot(QPainter& painter, const Leinwand& leinwand) const;

    void paint(QPainter& painter, const Leinwand& leinwand) const override;
    void paintCursor(QPainter& painter, const Leinwand& leinwand) const override;

    std::string values() const override { return values(1); }

    /// The saved file's content for a step width.
    std::string values(int schritt) const;

    std::vector<Exportart> exportarten(const Leinwand& leinwand) const override;

    QString positionText(const QPointF& position, const Leinwand& leinwand) const override;
    QString cursorText() const override;
    bool keyPressed(int key, const Leinwand& leinwand) override;
    void clearCursor() override;

private:
    struct Layout {
        Abbildung abbildung;
        std::vector<Achsenmarke> xMarken;
        std::vector<Achsenmarke> yMarken;
        QFont labelFont;
    };

    /// What a layout depends on.
    struct Grundlage {
        Leinwand leinwand;
        std::optional<Bereich> y;
        bool operator==(const Grundlage&) const = default;
    };

    const Layout& layout(const Leinwand& leinwand) const;
    Layout layOut(const Leinwand& leinwand) const;
    QFont labelFont(const Leinwand& leinwand) const;
    void moveCursor(int prozent);
    QString text(double x, double y) const;

    Schrittfrage m_schrittfrage;
    Reihe m_reihe{};
    std::string m_symbol; // of the component along the axis
    std::string m_einheit;
    std::optional<Bereich> m_y; // none without axes
    bool m_fehler = false; // the error display is shown
    std::vector<Strichzug> m_hintergrund;
    std::vector<Strichzug> m_striche;
    int m_cursor = -1; // at% of the keyboard cursor, -1 for none
    LastResult<Grundlage, Layout> m_layout;
};

} // namespace zerna
