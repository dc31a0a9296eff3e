#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/reihen/Konzentrationsreihe.h"
#include "ui/diagram/Kurvendiagramm.h"
#include "ui/diagram/Striche.h"

namespace zerna {

/// The concentration diagram: a series over the at% of one component, 0 to 100, with strokes on it. It shows the series
/// alone, until setBild gives it the whole picture of the series, which may have more curves, titles and notes. Values
/// and bitmap are those of the series.
class Konzentrationsdiagramm : public Kurvendiagramm {
public:
    /// Asks for the step width of saved values, in at%; no value: the user has changed their mind.
    using Schrittfrage = std::function<std::optional<int>()>;

    explicit Konzentrationsdiagramm(Schrittfrage schrittfrage);

    /// The series drawn last, all 0 before the first.
    const Reihe& reihe() const { return m_reihe; }

    /// Sets the axes for a series and draws it in the place of everything else, also of a picture that was set. Errors
    /// of the axes reach the caller, and what was drawn before stays.
    void zeichneReihe(const Reihe& reihe);

    /// Symbol of the component along the axis, and unit of the values.
    void setSymbol(std::string symbol);
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

    void paintPlot(QPainter& painter, const Leinwand& leinwand, Linien linien) const override;

    bool hatWerte() const override;
    std::string values() const override { return values(1); }

    /// The saved file's content for a step width.
    std::string values(int schritt) const;

    std::vector<Exportart> exportarten(const Leinwand& leinwand) const override;

private:
    Kurvenbild seriesOnly() const;
    void paintGiven(QPainter& painter, const QSize& plot) const;
    void paintFault(QPainter& painter, const Leinwand& leinwand) const;

    Schrittfrage m_schrittfrage;
    Reihe m_reihe{};
    std::string m_symbol; // of the component along the axis
    std::string m_einheit;
    std::optional<Bereich> m_y; // none without axes
    bool m_fehler = false; // the error display is shown
    std::vector<Strichzug> m_hintergrund; // beside the series
    std::vector<Strichzug> m_striche;
};

} // namespace zerna
