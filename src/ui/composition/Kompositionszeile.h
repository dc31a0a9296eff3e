#pragma once

#include <QObject>

#include <array>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/eingabe/Eingabe.h"
#include "model/rechnung/Befund.h"

class QAbstractItemModel;
class QComboBox;
class QGridLayout;

namespace zerna {

class Elementliste;
class Kurzlabel;
class Wertfeld;

/// The controls of one row of the composition grid: shows the row of an entered alloy and tells what the user
/// chooses and types in it.
class Kompositionszeile : public QObject {
    Q_OBJECT

public:
    /// Makes the controls, hidden, on `panel`; `row` counts from 0. The element lists of all rows share their entries.
    Kompositionszeile(int row, QAbstractItemModel& elemente, QWidget* panel);

    void layOut(QGridLayout& grid, int gridRow);

    // The element list, as start-up fills it.
    void addElement(std::string_view symbol, int itemData);
    void waehleKeines();
    QString elementEntry(int position) const;
    int findElementEntry(std::string_view text) const;

    /// Shows the elements' names in the list.
    void nenneElemente(const ElementCollection& elements);

    /// Whether the element is being chosen letter by letter.
    bool istElementBeimTippen() const;

    /// Whether the keyboard focus is in the density or the valence.
    bool hatWertfokus() const;

    void focusProzent();

    /// Writes what the row holds and marks what is wrong with it; what is shown already is left alone, so that the
    /// cursor of a field stays in its place.
    void zeige(const Eingabe& eingabe, const std::array<std::vector<Eingabefeld>, 2>& anteile,
        std::span<const Befund> befunde);

    /// Puts the keyboard focus there; a field that cannot be typed into gives it to the list of its choices.
    void gehZu(Eingabeort ort);

signals:
    void elementChosen(const QString& key);
    void dichteChosen(const QString& wahl);
    void valenzChosen(int wahl);
    void prozentEntered(const QString& text);
    void prozentConfirmed(); ///< by Enter
    void dichteEntered(const QString& text);
    void valenzEntered(const QString& text);
    void valueFocused(); ///< the keyboard focus has entered the density or the valence
    void prozentLeft();
    void valenzLeft(); ///< the user is done with the valence

private:
    std::array<QWidget*, 8> widgets() const;
    void connectControls();
    QString widest(const QWidget* widget) const;
    void measure(QWidget& widget);
    void zeigeAnteile(const Eingabe& eingabe, const std::array<std::vector<Eingabefeld>, 2>& anteile);
    Wertfeld& typed() const { return m_einheit == Anteilseinheit::Atom ? *m_txtProzent : *m_txtMasse; }
    Wertfeld& computed() const { return m_einheit == Anteilseinheit::Atom ? *m_txtMasse : *m_txtProzent; }
    void mark(const Eingabe& eingabe, std::span<const Befund> befunde);
    void fillChoices(const std::shared_ptr<clsElement>& element);
    void showHerkunft(const Eingabe::Zeile& zeile);

    int m_row;
    Elementliste* m_cmbElement = nullptr;
    Kurzlabel* m_lblElement = nullptr;
    Wertfeld* m_txtProzent = nullptr;
    Wertfeld* m_txtMasse = nullptr;
    Anteilseinheit m_einheit = Anteilseinheit::Atom; // of the part that is typed
    QComboBox* m_cmdDichte = nullptr;
    Wertfeld* m_txtDichte = nullptr;
    QComboBox* m_cmbValenz = nullptr;
    Wertfeld* m_txtValenz = nullptr;
    std::shared_ptr<clsElement> m_element; // whose choices the lists hold
    std::string m_dichtewahl; // whose source the field tells
    int m_valenzwahl = 0;
};

} // namespace zerna
