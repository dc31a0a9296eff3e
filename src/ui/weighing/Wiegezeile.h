#pragma once

#include <QObject>

#include <array>
#include <optional>
#include <string>

#include "ui/weighing/Massenablage.h"

class QColor;
class QGridLayout;
class QLabel;
class QPalette;

namespace zerna {

class Massenfeld;
struct Einwaagezeile;

/// Of a deviation that is too large.
QColor abweichungsfarbe(const QPalette& ground);

/// One row of the weighing table: what is wanted of a component, and what was weighed of it.
class Wiegezeile : public QObject {
    Q_OBJECT

public:
    /// Makes the controls, hidden, on `panel`; `row` counts from 0.
    Wiegezeile(int row, QWidget* panel);

    /// Makes the heads of the columns on `panel` and puts them into the first rows of a grid; the row behind them.
    static int layOutHeads(QGridLayout& grid, QWidget* panel);
    void layOut(QGridLayout& grid, int gridRow);

    /// Columns of the grid up to that of the masses weighed.
    static constexpr int BisIstmasse = 6;

    /// Shows the row for a component, or hides it. A mass weighed of another component is taken out and returned.
    std::optional<AbgelegteMasse> zeige(const std::string& symbol, const QString& name);
    std::optional<AbgelegteMasse> hide();

    /// The mass weighed in mg; Unbekannt while its field holds none.
    float istmasse() const;
    QString komponente() const; ///< its name
    bool istGewogen() const; ///< something has been typed, be it valid or not
    QString gewogen() const; ///< as typed
    void setIstmasse(const QString& text); ///< without taking it for typing

    /// Says at the field of the mass weighed why the masses give no at%; empty if they do. An empty field that is to
    /// blame is marked as missing.
    void zeigeMangel(const QString& grund, bool istSchuld);

    /// Marks the row that the others' target masses were set to match; empty for one that is not.
    void zeigeBezug(const QString& hinweis);

    void zeigeSollmasse(const QString& text);
    void zeigeSollanteil(const QString& text); ///< mass percent
    void zeigeMassenanteil(const QString& text);

    /// The at% that the masses weighed give, and how they differ from the wanted ones if that is known yet.
    void zeigeAtomprozent(float ist, std::optional<float> abweichung);

    void clearGewogen();

    /// The row of the protocol for a component and its wanted at%, all other texts as shown.
    Einwaagezeile einwaage(std::string symbol, std::string prozent) const;

signals:
    void istmasseEntered();
    void istmasseLeft();
    void returnPressed(); ///< in the field of the mass weighed

private:
    std::array<QWidget*, 8> widgets() const;
    void nenneSpalten(const QString& name) const;
    std::optional<AbgelegteMasse> takeMasse();

    QLabel* m_label = nullptr;
    QLabel* m_bezug = nullptr;
    QLabel* m_sollmasse = nullptr;
    QLabel* m_sollMassProzent = nullptr;
    Massenfeld* m_istmasse = nullptr;
    QLabel* m_istProzent = nullptr;
    QLabel* m_abweichung = nullptr;
    QLabel* m_massProzent = nullptr;
    std::string m_symbol;
};

} // namespace zerna
