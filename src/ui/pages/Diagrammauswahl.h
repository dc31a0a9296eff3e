#pragma once

#include <QWidget>

#include <span>
#include <vector>

#include "model/reihen/Diagrammwahl.h"
#include "programm/Programm.h"

class QComboBox;

namespace zerna {

class Diagrammseite;
class Lehrbuchmarke;

/// The lists above the diagram: type, quantity, and component along the axis. What they show is the document's choice.
class Diagrammauswahl : public QWidget {
    Q_OBJECT

public:
    /// `seiten` are the kinds of diagram, in the order of their types; the lists offer what these have.
    Diagrammauswahl(Programm& programm, const std::vector<Diagrammseite*>& seiten, QWidget* parent = nullptr);

    /// The quantities right after the window's load.
    void load();

    /// Shows a type, and of its quantities the chosen one, or the first if it is not among them.
    void setTyp(Diagrammtyp typ);

    /// Lists the elements of the rows; the first one is then chosen.
    void listKomponenten(const Eingabe& eingabe);
    void setKomponente(int row); ///< nothing for one that is not listed

    /// Shows whether the chosen quantity departs from the textbook.
    void zeigeLehrbuch();

    std::vector<QWidget*> tabOrder() const;

signals:
    void typChosen(int position);
    void groesseChosen(const QString& name);
    void komponenteChosen(const QString& symbol);

private:
    QComboBox* makeList(QComboBox* list, const char* name, const QString& accessibleName);
    void layOut();
    void fillQuantities(std::span<const int> quantities);
    Diagrammwahl& wahl() { return m_programm.Dokument().diagramm; }

    Programm& m_programm;
    const std::vector<Diagrammseite*>& m_seiten;
    QComboBox* m_cmbDiagrammTyp = nullptr;
    QComboBox* m_cmbDiagramm = nullptr;
    Lehrbuchmarke* m_lehrbuch = nullptr;
    QComboBox* m_cmbDiagrammElement = nullptr;
};

} // namespace zerna
