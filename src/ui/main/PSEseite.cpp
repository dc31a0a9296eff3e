#include "ui/main/PSEseite.h"

#include "model/PSEReihe.h"
#include "ui/diagram/Diagrammflaeche.h"

namespace zerna {

std::span<const int> PSEseite::groessen() const { return psegroessen(); }

void PSEseite::zeichne(const Eingabe&)
{
    try {
        std::vector<std::string> symbols;
        for (const auto& element : programm().ElementCollection())
            symbols.push_back(element->symbol());
        flaeche().showPSE(
            pseReihe(programm().ElementCollection(), programm().Calc(), wahl().groesse), std::move(symbols));
    } catch (const Laufzeitfehler& error) {
        zeigeFehler(error);
    }
}

} // namespace zerna
