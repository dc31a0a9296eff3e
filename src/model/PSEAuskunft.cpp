#include "model/PSEAuskunft.h"

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"

namespace zerna {

std::string wertMitEinheit(float value, std::string_view unit)
{
    return istUnbekannt(value) ? "?" : textOfSingle(value) + " " + std::string(unit);
}

std::vector<std::string> elementauskunft(const clsElement& element)
{
    return {
        "Symbol: " + element.symbol(),
        "Name: " + element.Name(),
        "Masse: " + wertMitEinheit(element.Masse(), "amu"),
        "Ordnungszahl: " + std::to_string(element.OZ()),
        "Valenz: " + wertMitEinheit(element.Valenz(), ""),
        "Schmelztemperatur: " + wertMitEinheit(element.Schmelztemperatur(), "K"),
        "Siedetemperatur: " + wertMitEinheit(element.Siedetemperatur(), "K"),
        "Dichte (flüssig): " + wertMitEinheit(element.Dichte_Fluessig(), "g/cm³"),
        "Dichte (kristallin): " + wertMitEinheit(element.Dichte_Kristallin(), "g/cm³"),
        "Dichte (amorph): " + wertMitEinheit(element.Dichte_Amorph(), "g/cm³"),
        "Atomradius: " + wertMitEinheit(element.Atomradius(), "pm"),
        "Elektronegativität: " + wertMitEinheit(element.Elektronegativitaet(), ""),
        "Ionisierungsenergie: " + wertMitEinheit(element.Ionisierungsenergie(), "eV"),
        "Elektronenkonfiguration: " + element.Elektronenkonfiguration(),
    };
}

} // namespace zerna
