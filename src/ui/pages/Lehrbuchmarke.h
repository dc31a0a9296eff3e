#pragma once

#include "model/rechnung/Einzelheiten.h"
#include "programm/Programm.h"
#include "ui/button/StyledButton.h"

namespace zerna {

class Ergebnisdetails;

/// The mark beside the quantity of a diagram whose numbers or labels depart from the textbook; hidden beside any other.
/// Its tool tip, and a click, say how, with the textbook's value of the alloy.
class Lehrbuchmarke : public StyledButton {
    Q_OBJECT

public:
    explicit Lehrbuchmarke(Programm& programm, QWidget* parent = nullptr);

    /// Shows or hides itself for the quantity of that code.
    void zeige(int kennzahl);

protected:
    bool event(QEvent* event) override;

private:
    Einzelheiten einzelheiten() const;

    Programm& m_programm;
    int m_zeile = -1; // result line of the quantity
    Ergebnisdetails* m_details = nullptr;
};

} // namespace zerna
