#pragma once

#include "programm/Dokumentverwaltung.h"
#include "support/FakeServices.h"
#include "support/RechnerTest.h"

namespace zerna {

/// The program's document, aluminium and copper of the shipped table, and the files that the user chooses for it.
struct DateienFixture : RechnerTest {
    DateienFixture()
    {
        addElements();
        for (const auto& element : elements)
            programm.ElementCollection().Add(element, element->symbol());
        programm.Eingabe().setAnzahl(2);
        programm.Eingabe().waehleElement(0, "Al");
        programm.Eingabe().waehleElement(1, "Cu");
    }

    KeptCurrentFolder kept;
    FakeSettings settings;
    Programm programm{boxes, settings, folder.path()};
    FakeSaveDialog save;
    FakeOpenDialog open;
    Dokumentverwaltung dateien{programm, save, open};
};

} // namespace zerna
