#pragma once

#include <CLI/CLI.hpp>

#include <span>
#include <string>
#include <vector>

#include "core/ElementCollection.h"
#include "model/Anteilseinheit.h"
#include "model/Groessennamen.h"
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

/// Throws Aufruffehler for an alloy that has two components of one element, which a line could not tell apart.
void requireDistinct(std::span<const Legierungskomponente> alloy);

/// A whole number behind an option. Throws Aufruffehler for any other text.
struct Ganzzahl {
    CLI::Option* define(CLI::App& befehl, const char* name, const char* beschreibung);
    int wert() const;

    std::string name;
    std::string text;
};

/// What the help says of it.
inline constexpr const char* Groessenhilfe = "Name oder Kennzahl der Größe (alle: zerna-cli kennzahlen)";

/// A quantity behind an option, by its code or its name.
struct Groessenangabe : Ganzzahl {
    CLI::Option* define(CLI::App& befehl, const char* name, const char* beschreibung);

    /// Its code. Throws Aufruffehler for what is none of that kind.
    int kennzahl(Groessenart art) const;

    /// Throws Aufruffehler for what is neither a number nor a quantity of any kind; suggests those of one.
    void check(Groessenart vorgeschlagen) const;
};

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
