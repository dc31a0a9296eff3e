#include <cmath>
#include <cstdint>
#include <string>

#include "Elemente.h"
#include "Pruefung.h"
#include "core/Zeichensatz.h"
#include "model/eingabe/Formeltext.h"
#include "model/eingabe/Legierungsformel.h"

using namespace zerna;

namespace {

/// What is read can be entered, written out as a formula and read again.
void readBack(const Legierungsformel& formel, const ElementCollection& elements)
{
    Eingabe eingabe(elements);
    eingabe.setAnzahl(static_cast<int>(formel.komponenten().size()));
    for (std::size_t i = 0; i < formel.komponenten().size(); ++i) {
        eingabe.waehleElement(static_cast<int>(i), formel.komponenten()[i].element->symbol());
        eingabe.setProzentOhneAusgleich(static_cast<int>(i), formel.prozenttext(i));
    }
    for (const auto schrift : {Formelschrift::Einfach, Formelschrift::Tiefgestellt, Formelschrift::LaTeX}) {
        const std::string text = formeltext(eingabe, schrift);
        const Formellesung again = legierungsformel(text, elements);
        require(!text.empty() && !again.fehler);
        for (std::size_t i = 0; i < formel.komponenten().size(); ++i)
            require(std::abs(again.formel.komponenten()[i].prozent - formel.komponenten()[i].prozent) <= 2e-4);
    }
}

} // namespace

/// Reads the bytes as an alloy's formula: an error has a reason and a place, an alloy has 100 % and can be written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    Elemente elements;
    for (const char* const symbol : {"Al", "B", "C", "Cu", "Co", "Fe", "Mg"})
        elements.add(symbol, 1);

    const auto [formel, fehler] = legierungsformel(text, *elements);
    require(elements.boxes.shown.empty());
    if (fehler) {
        require(!fehler->grund.empty() && fehler->stelle <= zeichenzahl(text) + 1);
        return 0;
    }
    double sum = 0;
    for (const Formelkomponente& komponente : formel.komponenten())
        sum += komponente.prozent;
    require(std::abs(sum - 100) <= 1e-4);
    readBack(formel, *elements);
    return 0;
}
