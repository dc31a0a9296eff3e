#pragma once

#include <QWidget>

#include <array>
#include <functional>
#include <vector>

#include "model/rechnung/Ergebnisse.h"

class QAction;
class QGridLayout;
class QLabel;

namespace zerna {

class StyledButton;
class Wertanzeige;
class Wertfeld;

/// The result lines: captions, values and units in two columns, fields for the values that can be typed, and the
/// Friedel-minimum read-out.
class Ergebnisgitter : public QWidget {
    Q_OBJECT

public:
    /// The values that can be typed, in the order of their lines.
    enum Feld { Valenz, Teilchenzahldichte, Kf2, Felderzahl };

    explicit Ergebnisgitter(QWidget* parent = nullptr);

    Wertfeld& feld(Feld feld) { return *m_felder.at(feld); }
    Wertanzeige& anzeige(int zeile) { return *m_anzeigen.at(static_cast<std::size_t>(zeile)); }

    void zeige(const Ergebnistexte& texte);

    /// The Friedel-minimum read-out: "n = 1" and its line.
    void zeigeFriedel(const QString& index, const QString& text);

    /// Shows whether the value in a field was typed; then there is a way back in it.
    void zeigeGetippt(Feld feld, bool getippt);

    /// Which lines do not count at the moment.
    void zeigeBlass(const std::function<bool(const Groesse&)>& istBlass);

    /// Value and unit of a line as one text; of a line with a field the field's text and the unit.
    QString wertUndEinheitIn(int zeile);

    /// All that takes the keyboard focus: down the left column, down the right one; a field comes before its unit.
    std::vector<QWidget*> tabOrder();

signals:
    void fieldEdited(Ergebnisgitter::Feld feld);
    void zurueckRequested();
    void friedelStepped(int step);
    void menuRequested(int zeile, const QPoint& globalPosition);
    void copyRequested(int zeile);
    /// The details of a line are wanted; the line's value stands in `area`, in screen coordinates.
    void detailsRequested(int zeile, const QRect& area);
    void hintRequested(int zeile, const QPoint& globalPosition);

private:
    void createLine(const Groesse& zeile);
    void createField(const Groesse& zeile);
    void createFriedel();
    void layOut();
    void layOutLine(const Groesse& zeile, int row, int column);
    void layOutFriedel(int row, int column);
    void groupFocus();
    void measure();

    QGridLayout* m_grid = nullptr;
    std::vector<QLabel*> m_beschriftungen; // by result line
    std::vector<Wertanzeige*> m_anzeigen;
    std::vector<Wertfeld*> m_feldOfZeile; // null where nothing can be typed
    std::array<Wertfeld*, Felderzahl> m_felder{};
    std::array<QAction*, Felderzahl> m_zurueck{}; // in the fields
    std::array<StyledButton*, 2> m_cmdKnopf2{};
    QLabel* m_label7 = nullptr;
};

} // namespace zerna
