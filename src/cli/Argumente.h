#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

#include "model/Anteilseinheit.h"

namespace zerna {

/// Options that several commands have. Numbers are read by the program's own rules, so they are kept as texts.
struct Komponenten {
    CLI::Option* define(CLI::App& befehl);
    Anteilseinheit einheit() const { return massenprozent ? Anteilseinheit::Masse : Anteilseinheit::Atom; }

    std::vector<std::string> texte;
    bool massenprozent = false;
};

struct Ausgabe {
    void define(CLI::App& befehl);
    std::string datei; ///< empty: standard output
};

struct Tabellenform {
    void define(CLI::App& befehl);
    bool json = false;
};

/// A whole number behind an option. Throws Aufruffehler for any other text.
struct Ganzzahl {
    CLI::Option* define(CLI::App& befehl, const char* name, const char* beschreibung);
    int wert() const;

    std::string name;
    std::string text;
};

/// What is wrong with a call that could not be taken apart, in German.
std::string aufruffehler(const CLI::App& app, const CLI::ParseError& error, int argc, const char* const* argv);

} // namespace zerna
