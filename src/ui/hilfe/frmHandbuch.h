#pragma once

#include <QWidget>

#include <utility>
#include <vector>

#include "core/Settings.h"
#include "ui/hilfe/Handbuch.h"

class QLabel;
class QSplitter;
class QTextBrowser;
class QTextDocument;
class QTreeWidget;

namespace zerna {

class Handbuchsuche;
class StyledButton;

/// The manual in a window of its own beside the others: contents at the left, the text at the right, above it the way
/// back and forward and the search. Made when it is first asked for; remembers its size, place and the size of its
/// letters.
class frmHandbuch : public QWidget {
    Q_OBJECT

public:
    explicit frmHandbuch(Settings& settings, QWidget* parent = nullptr);

    /// Shows the section with that anchor, the beginning for an unknown one.
    void zeigeAbschnitt(const QString& anker);

    /// Shows what is said about a message, or the chapter about messages.
    void zeigeMeldung(const QString& meldung);

    /// The sections in their order.
    const std::vector<Handbuchabschnitt>& abschnitte() const { return m_abschnitte; }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent*) override { m_neu = true; }
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createControls();
    void connectControls();
    void addTasten();
    void layOut();
    int zeilenbreite() const;
    void setze();
    void passeEin();
    void fuelleInhalt();
    void zeigeGanzeTitel(const QString& text);
    void zeigeInhaltsstelle();
    void oeffne(int position);
    void springe(int position);
    void folge(const QString& verweis);
    void geh(std::vector<int>& dort, std::vector<int>& hier);
    void rolle(int position);
    void zeigeTreffer(int position);
    int stelle() const;
    void setZoom(int prozent);

    Settings& m_settings;
    QSplitter* m_teile = nullptr;
    QTreeWidget* m_inhalt = nullptr;
    QTextBrowser* m_text = nullptr;
    QTextDocument* m_dokument = nullptr; // null until the manual is first shown
    Handbuchsuche* m_suche = nullptr;
    StyledButton* m_cmdZurueck = nullptr;
    StyledButton* m_cmdVor = nullptr;
    QLabel* m_lblZoom = nullptr;
    std::vector<Handbuchabschnitt> m_abschnitte;
    std::vector<int> m_zurueck; // positions in the text
    std::vector<int> m_vor;
    std::pair<int, int> m_gerollt{0, -1}; // the position last brought to the top, and where the scroll bar was then
    bool m_neu = true; // nothing asked for since it was closed
    int m_zoom = 100; // percent
    int m_rad = 0; // that the wheel has been turned with Ctrl, less than a notch
    int m_breite = 0; // that the text is set for
};

} // namespace zerna
