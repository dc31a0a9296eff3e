#include "model/reihen/Anteile.h"

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Konstanten.h"

namespace zerna {

Legierungskomponente gelesen(std::shared_ptr<const clsElement> element, float prozent, clsParser& parser)
{
    const std::string valenz = parser.Parse(element->Valenz_Temp());
    if (parser.LastError())
        throw Laufzeitfehler(static_cast<Fehler>(parser.LastError()->Nummer));
    const float dichte = element->Dichte();
    return {std::move(element), prozent, dichte, singleFromText(valenz)};
}

std::array<Anteil, MaxKomponenten> anteile(std::span<const Legierungskomponente> komponenten)
{
    std::array<Anteil, MaxKomponenten> result;
    for (std::size_t j = 0; j < komponenten.size(); ++j) {
        const Legierungskomponente& k = komponenten[j];
        const float masse = k.element->Masse();
        if (istUnbekannt(k.dichte) || istUnbekannt(masse) || istUnbekannt(k.valenz))
            throw Laufzeitfehler(Fehler::UngueltigesArgument);
        result.at(j) = {k.valenz, quotient(masse, k.dichte)};
    }
    return result;
}

void setComposition(clsCalc& calc, std::span<const Anteil> anteile, std::span<const double> prozente)
{
    double valenz = 0;
    float volumen = 0;
    for (std::size_t j = 0; j < anteile.size(); ++j) {
        valenz += prozente[j] * anteile[j].valenz;
        volumen = toSingle(volumen + prozente[j] * anteile[j].molvolumen);
    }
    const float density = volumen == 0 ? 0 : toSingle(AvogadroProKubikmeter / (volumen / 100.0));
    calc.setBasis(density, toSingle(valenz / 100));
}

} // namespace zerna
