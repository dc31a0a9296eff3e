#pragma once

#include "model/suche/Drittelement.h"
#include "ui/search/Suchseite.h"

namespace zerna {

class Wertfeld;

/// Which further element brings the entered alloy nearest to a wanted value: a ranking, an element of which can be
/// taken over as a row.
class Drittelementseite : public Suchseite {
    Q_OBJECT

public:
    explicit Drittelementseite(Programm& programm, QWidget* parent = nullptr);

    void suche(int groesse, const Eingabefeld& ziel) override;

signals:
    void uebernommen(const Eingabe& eingabe, const QString& symbol);

protected:
    void uebernehme() override;

private:
    void rank();

    int m_groesse = 0;
    Eingabefeld m_ziel;
    Rangliste m_rangliste;
    Wertfeld* m_txtProzent = nullptr;
};

} // namespace zerna
