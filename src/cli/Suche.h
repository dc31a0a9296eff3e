#pragma once

#include <CLI/CLI.hpp>

#include <string>

#include "cli/Argumente.h"

namespace zerna {

class Umgebung;

/// The command that asks at which at% of a component, or with which further element, an alloy has a value.
struct Suche {
    void define(CLI::App& befehl);

    /// Throws Aufruffehler for a question that cannot be asked, Datenfehler for one without an answer.
    void run(Umgebung& umgebung) const;

private:
    void searchPart(Umgebung& umgebung, int kennzahl, float wanted) const;
    void rankElements(Umgebung& umgebung, int kennzahl, float wanted) const;

    Groessenangabe groesse;
    Zahl ziel;
    std::string variabel;
    bool mischungsreihe = false;
    Zahl dritte;
    Tabellenform form;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

} // namespace zerna
