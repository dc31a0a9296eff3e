#pragma once

#include <QWidget>

#include <string>
#include <vector>

#include "bild/PSEGeometrie.h"
#include "model/PSEReihe.h"
#include "programm/Programm.h"
#include "ui/platform/Dialoge.h"
#include "ui/ternary/Ternaerdiagramm.h"

namespace zerna {

class conDisplay;

/// The diagram area: it shows the concentration diagram that lies in it, the ternary diagram, which the mouse and the
/// keys turn and zoom, the element-property diagram, or why there is no diagram. Whatever is shown can be copied, saved
/// and printed.
class Diagrammflaeche : public QWidget {
    Q_OBJECT

public:
    Diagrammflaeche(Programm& programm, Dialoge dialoge, QWidget* parent = nullptr);

    /// The concentration diagram, which is shown after showKonzentration.
    conDisplay& display() { return *m_display; }

    void showKonzentration();

    /// Shows an element property; `symbols` names the elements of the series for the read-out.
    void showPSE(PSEReihe reihe, std::vector<std::string> symbols);

    /// Shows a ternary diagram; `current` is the alloy's own composition.
    void showTernaer(Ternaergitter gitter, const Anteile3& current);

    /// Shows that the diagram could not be computed and why.
    void showFehler(const QString& grund);

    /// Shows a plain hint instead of a diagram.
    void showHinweis(const QString& hinweis);

    /// Puts what is shown on the clipboard, at the screen's full resolution.
    void copyPicture();

    /// Asks for a name and saves the values or the bitmap of what is shown.
    void save();

signals:
    /// What is under the mouse or the cursor; empty for nothing.
    void positionChanged(const QString& text);

protected:
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
    enum class Inhalt { Konzentration, Ternaer, PSE, Meldung };

    void showContent(Inhalt inhalt);
    PSEBild layOutPSEFor(const QSize& size, QFont& font) const;
    void paintPicture(QPainter& painter, const QSize& size) const;
    void paintPSE(QPainter& painter, const PSEBild& bild, const QFont& font) const;
    void paintMeldung(QPainter& painter, const QSize& size) const;
    void pointAt(std::size_t element);
    void moveCursor(QKeyEvent& event);
    void turnView(QKeyEvent& event);
    void turnBy(double tilt, double turn);
    void changeView(const Ansicht& ansicht);
    std::string values() const;

    Programm& m_programm;
    Dialoge m_dialoge;
    conDisplay* m_display = nullptr;
    Inhalt m_inhalt = Inhalt::Meldung;
    QString m_meldung;
    PSEReihe m_reihe;
    std::vector<std::string> m_symbole;
    PSEBild m_bild; // at the current size
    QFont m_bildFont;
    Ternaerdiagramm m_ternaer;
    bool m_dragging = false;
    QPointF m_lastPosition; // of the mouse while dragging
    int m_marked = -1; // element under the keyboard cursor, -1 for none
};

} // namespace zerna
