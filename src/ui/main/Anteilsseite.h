#pragma once

#include <QWidget>

#include "model/Anteilssuche.h"
#include "programm/Programm.h"

class QCheckBox;
class QComboBox;

namespace zerna {

class Befundzeile;
class StyledButton;
class Suchliste;

/// At which part of a component the entered alloy has a wanted value: all answers, and which of them is taken over.
class Anteilsseite : public QWidget {
    Q_OBJECT

public:
    explicit Anteilsseite(Programm& programm, QWidget* parent = nullptr);

    /// Looks for the value; without one, or where there can be no answer, it says why.
    void suche(int groesse, const Eingabefeld& ziel);

    void setKomponente(int row);
    void setMischungsreihe(bool an);

    const Anteilsfrage& frage() const { return m_frage; }
    const Zielantwort& antwort() const { return m_antwort; }

    /// Puts the focus on the answers, if there are any.
    void gehZuAntworten();

signals:
    void komponenteChosen(int row);
    void mischungsreiheChosen(bool an);
    void uebernommen(const Eingabe& eingabe);

private:
    void createControls();
    void layOut();
    void listKomponenten();
    std::string hindernis(const Eingabefeld& ziel) const;
    void showState(const std::string& hindernis);
    std::array<double, MaxKomponenten> gewaehlteAnteile() const;
    void satzClicked();
    void uebernehme();

    Programm& m_programm;
    Anteilsfrage m_frage;
    Zielantwort m_antwort;
    QComboBox* m_cmbKomponente = nullptr;
    QCheckBox* m_chkMischungsreihe = nullptr;
    Suchliste* m_liste = nullptr;
    Befundzeile* m_lblSatz = nullptr;
    StyledButton* m_cmdUebernehmen = nullptr;
    StyledButton* m_cmdKopieren = nullptr;
};

} // namespace zerna
