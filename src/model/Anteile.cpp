#include "model/Anteile.h"

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/Konstanten.h"

namespace zerna {

namespace {

float valenzOf(const clsElement& element, clsParser& parser)
{
    const std::string value = parser.Parse(element.Valenz_Temp());
    if (parser.LastError())
        throw Laufzeitfehler(static_cast<Fehler>(parser.LastError()->Nummer));
    return singleFromText(value);
}

} // namespace

std::array<Anteil, MaxKomponenten> anteile(clsParser& parser, std::span<const Reihenkomponente> komponenten)
{
    std::array<Anteil, MaxKomponenten> result;
    for (std::size_t j = 0; j < komponenten.size(); ++j) {
        const clsElement& element = *komponenten[j].element;
        if (istUnbekannt(element.Dichte()) || istUnbekannt(element.Masse()))
            throw Laufzeitfehler(Fehler::UngueltigesArgument);
        result.at(j) = {valenzOf(element, parser), quotient(element.Masse(), element.Dichte())};
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
