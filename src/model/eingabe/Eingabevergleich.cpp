#include "model/eingabe/Eingabevergleich.h"

namespace zerna {

Aenderung unterschied(const Eingabe& vorher, const Eingabe& nachher)
{
    Aenderung aenderung{.anzahl = vorher.anzahl() != nachher.anzahl()};
    for (int row = 0; row < std::min(vorher.anzahl(), nachher.anzahl()); ++row) {
        const Eingabe::Zeile& before = vorher.zeile(row);
        const Eingabe::Zeile& after = nachher.zeile(row);
        aenderung.element |= before.element != after.element;
        aenderung.anteil |= vorher.prozentInKraft(row) != nachher.prozentInKraft(row);
        aenderung.dichte |= before.dichte != after.dichte || before.inKraft.dichte != after.inKraft.dichte;
        aenderung.valenz |= before.valenz != after.valenz || before.inKraft.valenz != after.inKraft.valenz;
    }
    return aenderung;
}

} // namespace zerna
