#pragma once

#include <QDialog>

#include <optional>

#include "model/suche/Anteilssuche.h"
#include "programm/Programm.h"
#include "ui/controls/Schritt.h"

class QComboBox;
class QLabel;
class QTabWidget;

namespace zerna {

class Anteilsseite;
class Drittelementseite;
class StyledButton;
class Wertfeld;

/// "Bei welchem Anteil?": looks in the entered alloy for a value of a quantity, by the part of a component and by a
/// further element. It stays open beside the window and follows what is entered and chosen there.
class frmZielsuche : public QDialog {
    Q_OBJECT

public:
    explicit frmZielsuche(Programm& programm, QWidget* parent = nullptr);

    /// Looks again: the alloy or the choice of the diagram may be another one.
    void zeige();

    /// Shows itself with a question about a quantity (-1: that of the diagram, on the page used last) and a value
    /// (empty: the alloy's own).
    void frage(int groesse, const QString& ziel);

signals:
    void markenChanged(const Suchmarken& marken);
    /// The diagram is to show that quantity over that component.
    void wahlRequested(int groesse, int komponente);
    void mischungsreiheChosen(bool an);
    /// The points with the wanted value in the ternary diagram are to be copied.
    void punkteRequested();
    /// An answer is to be entered; `getan` says that it was.
    void uebernommen(const Eingabe& eingabe, const Schritt& schritt, const QString& getan);

protected:
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void createControls();
    void connectSeiten();
    void layOut();
    void showGroesse();
    void verlangeWahl();
    void placeBeside();
    void suche();
    void nenneMarken(std::optional<float> ziel);
    int groesse() const;

    Programm& m_programm;
    QComboBox* m_cmbGroesse = nullptr;
    Wertfeld* m_txtZiel = nullptr;
    QLabel* m_lblEinheit = nullptr;
    QTabWidget* m_seiten = nullptr;
    StyledButton* m_cmdPunkte = nullptr; // while the ternary diagram is shown
    Anteilsseite* m_anteil = nullptr;
    Drittelementseite* m_drittes = nullptr;
};

} // namespace zerna
