#pragma once

#include <CLI/CLI.hpp>

#include <span>
#include <string>
#include <vector>

#include "core/ElementCollection.h"
#include "model/Anteilseinheit.h"
#include "model/Legierung.h"

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

/// The code of a quantity over compositions. Throws Aufruffehler for any other number.
int reihenkennzahl(const Ganzzahl& groesse);

/// The code of a property of the elements. Throws Aufruffehler for any other number.
int elementkennzahl(const Ganzzahl& groesse);

/// The resolution of a ternary diagram. Throws Aufruffehler for any other number.
int gitteraufloesung(const Ganzzahl& aufloesung);

/// Throws Aufruffehler unless a ternary diagram can be made of so many components.
void requireTernaer(std::size_t anzahl);

/// The component of the alloy that --variabel names, the first one if there are several. Throws Aufruffehler.
std::size_t indexOfVariable(
    const std::string& symbol, const ElementCollection& elements, std::span<const Legierungskomponente> alloy);

/// What is wrong with a call that could not be taken apart, in German.
std::string aufruffehler(const CLI::App& app, const CLI::ParseError& error, int argc, const char* const* argv);

} // namespace zerna
