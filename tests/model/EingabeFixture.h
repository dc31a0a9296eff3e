#pragma once

#include <functional>

#include "model/eingabe/Eingabe.h"
#include "support/RechnerTest.h"

namespace zerna {

/// Aluminium and copper of the shipped table, 50 at% each; a step is one operation.
struct EingabeFixture : RechnerTest {
    using Schritt = std::function<Aenderung(Eingabe&)>;

    EingabeFixture()
    {
        addElements();
        eingabe.setAnzahl(2);
        eingabe.waehleElement(0, "Al");
        eingabe.waehleElement(1, "Cu");
    }

    static Schritt anzahl(int n)
    {
        return [=](Eingabe& e) { return e.setAnzahl(n); };
    }
    static Schritt element(int row, const char* key)
    {
        return [=](Eingabe& e) { return e.waehleElement(row, key); };
    }
    static Schritt prozent(int row, const char* text)
    {
        return [=](Eingabe& e) { return e.setProzent(row, text); };
    }
    static Schritt dichte(int row, const char* text)
    {
        return [=](Eingabe& e) { return e.waehleDichte(row, AndereWahl), e.setDichte(row, text); };
    }
    static Schritt valenz(int row, const char* text)
    {
        return [=](Eingabe& e) { return e.waehleValenz(row, ValenzAndere), e.setValenz(row, text); };
    }

    Eingabe eingabe{elements};
};

} // namespace zerna
