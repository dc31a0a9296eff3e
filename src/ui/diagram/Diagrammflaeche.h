#pragma once

#include <QWidget>

#include <string>
#include <vector>

#include "programm/Programm.h"
#include "ui/diagram/Diagrammmeldung.h"
#include "ui/diagram/Messdiagramm.h"
#include "ui/diagram/PSEDiagramm.h"
#include "ui/diagram/Ternaerdiagramm.h"
#include "ui/platform/Dialoge.h"

class QMenu;

namespace zerna {

class conDisplay;

/// The diagram area: it shows the concentration diagram that lies in it, the ternary diagram, the element-property
/// diagram, or why there is no diagram. Whatever is shown gets mouse and keys and can be copied, saved and printed.
class Diagrammflaeche : public QWidget {
    Q_OBJECT

public:
    Diagrammflaeche(Programm& programm, Dialoge dialoge, QWidget* parent = nullptr);

    /// The concentration diagram, which is shown after showKonzentration.
    conDisplay& display() { return *m_display; }

    void showKonzentration();

    void showPSE(Elementdiagramm elemente);

    /// What is shown beside an element property, also while another diagram is shown.
    const PSEAnsicht& pseAnsicht() const { return m_pse.ansicht(); }
    void setPSEAnsicht(const PSEAnsicht& ansicht);
    void copyLuecken(); ///< the elements without a value and why

    void showTernaer(Ternaerangaben angaben);

    /// The diagram of measured curves, which is shown after showMesskurven.
    Messdiagramm& messdiagramm() { return m_messung; }
    void showMesskurven() { showDiagramm(m_messung, Qt::StrongFocus); }

    /// Marks where the ternary diagram's quantity has a value, also while another diagram is shown.
    void setTernaerziel(std::optional<float> ziel);
    std::string ternaerzielpunkte() const { return m_ternaer.zielpunkte(); } ///< as a table to copy

    /// How the ternary diagram is looked at, also while another one is shown.
    const Ansicht& ansicht() const { return m_ternaer.ansicht(); }
    void setAnsicht(const Ansicht& ansicht);

    /// Shows that the diagram could not be computed and why.
    void showFehler(const QString& grund);

    /// Shows a plain hint instead of a diagram.
    void showHinweis(const QString& hinweis);

    /// What is shown.
    const Diagramm& diagramm() const { return *m_diagramm; }
    bool zeigtKonzentration() const; ///< and the display in it paints that

    /// Puts what is shown on the clipboard, at the screen's full resolution.
    void copyPicture();

    /// Asks for a name and saves the values or the bitmap of what is shown.
    void save();
    void savePicture(); ///< as PNG, SVG or PDF, with the alloy inside

    void print();

    /// Whether what is shown has values to be saved and printed.
    bool istDiagramm() const { return m_diagramm->hatWerte(); }

signals:
    /// What is under the mouse or the cursor; empty for nothing.
    void positionChanged(const QString& text);
    /// The user has turned or zoomed the ternary diagram; what belongs to one movement has the same name.
    void ansichtChanged(const QString& geste);
    void pseAnsichtChanged();

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    Leinwand leinwand() const { return leinwandOf(*this); }
    bool showDiagramm(Diagramm& diagramm, Qt::FocusPolicy focus, bool isNew = true);
    void nenneAblesung();
    void placeDisplay();
    void takeFocus();
    void updateDiagramm();
    void addCommands(QMenu& menu);
    void addOutputs(QMenu& menu);
    void nenneAnsicht(const QString& geste);
    void copyValues();

    Programm& m_programm;
    Dialoge m_dialoge;
    conDisplay* m_display = nullptr;
    PSEDiagramm m_pse;
    Ternaerdiagramm m_ternaer; // keeps its view from grid to grid
    Messdiagramm m_messung;
    Diagrammmeldung m_meldung;
    Diagramm* m_diagramm = &m_meldung; // what is shown
    Diagramm* m_gezeigt = nullptr; // the diagram that was shown last
    bool m_dragging = false;
    int m_drags = 0; // since the start
    QPointF m_lastPosition{-1, -1}; // of the mouse; outside while it is elsewhere
    bool m_readingIsOld = false; // since the ternary diagram has changed under the mouse
};

} // namespace zerna
