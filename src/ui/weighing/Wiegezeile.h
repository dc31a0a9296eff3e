#pragma once

#include <QObject>

#include <array>
#include <string>

class QGridLayout;
class QLabel;

namespace zerna {

class Massenfeld;
struct Einwaagezeile;

/// One row of the weighing table: the target mass of a component, the mass weighed, and what that comes to.
class Wiegezeile : public QObject {
    Q_OBJECT

public:
    /// Makes the controls, hidden, on `panel`; `row` counts from 0.
    Wiegezeile(int row, QWidget* panel);

    /// Makes the heads of the columns on `panel` and puts them into the first row of a grid.
    static void layOutHeads(QGridLayout& grid, QWidget* panel);
    void layOut(QGridLayout& grid, int gridRow);

    /// Shows the row for a component of that name.
    void zeige(const QString& komponente);
    void hide();

    /// The mass weighed in mg; Unbekannt while its field holds none.
    float istmasse() const;
    bool istGewogen() const; ///< something has been typed, be it valid or not

    /// Says at the field of the mass weighed why the masses give no at%; empty if they do. An empty field that is to
    /// blame is marked as missing.
    void zeigeMangel(const QString& grund, bool istSchuld);

    void zeigeSollmasse(const QString& text);

    /// The share in a total mass, in percent; `bezug` says in which.
    void zeigeMassenanteil(const QString& text, const QString& bezug);

    /// The at% that the masses weighed give, beside the wanted ones.
    void zeigeAtomprozent(float ist, float soll);

    void clearAtomprozent();

    /// The row of the protocol for a component and its wanted at%, all other texts as shown.
    Einwaagezeile einwaage(std::string symbol, std::string prozent) const;

signals:
    void istmasseEntered();
    void istmasseLeft();
    void returnPressed(); ///< in the field of the mass weighed

private:
    std::array<QWidget*, 6> widgets() const;

    QLabel* m_label = nullptr;
    QLabel* m_sollmasse = nullptr;
    Massenfeld* m_istmasse = nullptr;
    QLabel* m_istProzent = nullptr;
    QLabel* m_abweichung = nullptr;
    QLabel* m_massProzent = nullptr;
};

} // namespace zerna
