#pragma once

#include <QWidget>

#include "model/Drittelement.h"
#include "programm/Programm.h"

namespace zerna {

class Befundzeile;
class StyledButton;
class Suchliste;
class Wertfeld;

/// Which further element brings the entered alloy nearest to a wanted value: a ranking, an element of which can be
/// taken over as a row.
class Drittelementseite : public QWidget {
    Q_OBJECT

public:
    explicit Drittelementseite(Programm& programm, QWidget* parent = nullptr);

    /// Ranks the elements; where that is not possible it says why.
    void suche(int groesse, const Eingabefeld& ziel);

    /// Puts the focus on the ranking, if there is one.
    void gehZuAntworten();

signals:
    void uebernommen(const Eingabe& eingabe, const QString& symbol);

private:
    void createControls();
    void layOut();
    std::string hindernis() const;
    void rank();
    void uebernehme();

    Programm& m_programm;
    int m_groesse = 0;
    Eingabefeld m_ziel;
    Rangliste m_rangliste;
    Wertfeld* m_txtProzent = nullptr;
    Suchliste* m_liste = nullptr;
    Befundzeile* m_lblSatz = nullptr;
    StyledButton* m_cmdUebernehmen = nullptr;
    StyledButton* m_cmdKopieren = nullptr;
};

} // namespace zerna
