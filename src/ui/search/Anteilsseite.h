#pragma once

#include <array>

#include "model/suche/Anteilssuche.h"
#include "ui/search/Suchseite.h"

class QCheckBox;
class QComboBox;

namespace zerna {

/// At which part of a component the entered alloy has a wanted value: all answers, and which of them is taken over.
class Anteilsseite : public Suchseite {
    Q_OBJECT

public:
    explicit Anteilsseite(Programm& programm, QWidget* parent = nullptr);

    void suche(int groesse, const Eingabefeld& ziel) override;

    void setKomponente(int row);
    void setMischungsreihe(bool an);

    const Anteilsfrage& frage() const { return m_frage; }
    const Zielantwort& antwort() const { return m_antwort; }

signals:
    void komponenteChosen(int row);
    void mischungsreiheChosen(bool an);
    void uebernommen(const Eingabe& eingabe);

protected:
    void uebernehme() override;

private:
    void createControls();
    void listKomponenten();
    void showState(const std::string& hindernis);
    std::array<double, MaxKomponenten> gewaehlteAnteile() const;
    void satzClicked();

    Anteilsfrage m_frage;
    Zielantwort m_antwort;
    QComboBox* m_cmbKomponente = nullptr;
    QCheckBox* m_chkMischungsreihe = nullptr;
};

} // namespace zerna
