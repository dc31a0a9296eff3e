#pragma once

#include <QMargins>
#include <QWidget>

#include <array>
#include <optional>
#include <span>
#include <string>

#include "programm/Programm.h"
#include "ui/diagram/Konzentrationsdiagramm.h"
#include "ui/platform/Dialoge.h"

namespace zerna {

class Plotflaeche;

/// The control that computes and shows the concentration diagram: axis labels and ticks stand on the control itself,
/// the curve on the surface `pic` inside it. What was drawn last stays and is laid out anew on resize.
///
/// Set the components with Element_Add, then draw. Errors of the series and of the axes reach the caller of the drawing
/// operations, and what was drawn before stays. Keys and mouse are left to the widget that it lies in.
class conDisplay : public QWidget {
    Q_OBJECT

public:
    conDisplay(Programm& programm, Dialoge dialoge, QWidget* parent = nullptr);

    /// Index (0 to 4) of the component along the axis. Writing refreshes its symbol, too; error 9 outside, error 91 for
    /// an empty slot.
    int VariablesElement() const { return m_variable; }
    void setVariablesElement(int index);

    /// Puts an element and its at% into slot `index`; error 9 outside 0 to 4, error 5 for an unknown key.
    void Element_Add(int index, std::string_view key, float prozent);

    /// One pixel at a point in data units, which becomes the current position.
    void Zeichne_Punkt(float x, float y, std::uint32_t colour);

    /// A line from the current position to a point in data units, which becomes the current position.
    void Zeichne_LinieZu(float x, float y, std::uint32_t colour);

    /// Draws the series of the mean valence without changing unit and component.
    void Zeichne_Valenz();

    /// Clears what was drawn on `pic` since Display_Background.
    void Display_Loeschen();

    /// Makes what is drawn on `pic` its lasting background.
    void Display_Background();

    /// Shows that the diagram could not be computed.
    void Zeichne_Fehler();

    /// Computes and draws quantity `groesse` (0 to 10; any other draws the series as it is) for component `variable`.
    /// Nothing happens while the composition is not ready.
    /// Intended: the y range comes from the two ends of the series, so a curve may leave the plot in between.
    void Zeichne_Diagramm_2D(int groesse, int variable);

    /// Computes the series as Zeichne_Diagramm_2D does, to be shown by setBild.
    void setReihe(int groesse, int variable);

    /// Shows the whole picture of the series drawn last: with the series among its curves, titles, legend and notes.
    /// Units that it leaves open are those of the series. The next drawing of a series takes it away.
    void setBild(Kurvenbild bild);

    /// Where the control lies in the picture that its host paints around it; without a host it has the picture alone.
    void setPlatz(const QRect& place, const QSize& picture);

    /// Asks for a file name and saves the values of the series, or the picture of `pic`.
    void Speichern_Diagramm_2D();

    /// Whether all rows of the composition can be read; kept by the main window.
    void setKompositionBereit(bool bereit) { m_bereit = bereit; }

    /// Which series Zeichne_Diagramm_2D computes; the given one at first.
    void setReihenart(Reihenart art) { m_art = art; }

    /// Fills the slots with a whole alloy, its numbers read already.
    void setLegierung(const Legierung& legierung);

    /// The numbers in the density fields of the rows (g/cm³), for the density series.
    void setDichtefelder(const std::array<float, MaxKomponenten>& dichten) { m_dichtefelder = dichten; }

    /// What is shown, to be painted and saved elsewhere.
    Konzentrationsdiagramm& diagramm() { return m_diagramm; }

    /// Paint anew after a change of how the diagram is looked at, or only of its crosshair.
    void updateAll();
    void updatePlot();

    /// The saved file's content for a step width.
    std::string values(int schritt) const { return m_diagramm.values(schritt); }

signals:
    void PositionInfo(const QString& text);
    /// The picture has other strips around its axes.
    void randChanged();
    /// That part of the strips around its axes is to be painted anew.
    void randVeraltet(const QRegion& teil);

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// One component. Those that Element_Add brings are read from their elements' records whenever a series is
    /// computed.
    struct Platz {
        Legierungskomponente komponente;
        bool gelesen = false;
    };

    Leinwand leinwand() const;
    QPoint pictureOffset(const QPoint& point) const;
    void placePlot();
    void paintFocus(QPainter& painter) const;
    Reihe computeSeries(int groesse) const;
    Legierung components() const;
    std::optional<int> askSchritt() const;

    Programm& m_programm;
    Dialoge m_dialoge;
    Konzentrationsdiagramm m_diagramm;
    Plotflaeche* m_pic = nullptr;
    std::array<Platz, MaxKomponenten> m_komponenten;
    QMargins m_rand;
    int m_variable = 0;
    int m_groesse = -1; // drawn last
    bool m_bereit = false;
    Reihenart m_art = Reihenart::Gegeben;
    std::array<float, MaxKomponenten> m_dichtefelder{};
};

} // namespace zerna
