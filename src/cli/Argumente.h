#pragma once

#include <CLI/CLI.hpp>

#include <span>
#include <string>
#include <vector>

#include "core/ElementCollection.h"
#include "model/eingabe/Anteilseinheit.h"
#include "model/eingabe/Legierung.h"
#include "model/rechnung/Groessennamen.h"
#include "model/rechnung/Tabelle.h"
#include "programm/Rechenkern.h"

namespace zerna {

/// What a message about a call ends with.
inline constexpr const char* Hilfehinweis = " (Hilfe: zerna-cli --hilfe)";

/// The fault of a call that lacks an argument which it needs only sometimes.
Aufruffehler fehlendesArgument(const std::string& name);

/// The fault of an option that means something else than what may be there.
Aufruffehler unerwartet(const std::string& option, const std::string& given, const std::string& erwartet);

/// Has an option that takes a file refuse an empty name, which would pass for no option at all.
void refuseEmpty(CLI::Option& option);

/// Throws Aufruffehler for an argument such as "--masse=", which would take the next one for its value.
void refuseNothingBehindEquals(std::span<const std::string> call);

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
    std::string text(const Tabelle& tabelle) const { return json ? alsJson(tabelle) : alsText(tabelle); }
    bool json = false;
};

/// Throws Aufruffehler for an alloy that has two components of one element, which a line could not tell apart.
void requireDistinct(std::span<const Legierungskomponente> alloy);

/// A whole number behind an option.
struct Ganzzahl {
    CLI::Option* define(CLI::App& befehl, const char* name, const char* beschreibung);

    /// Throws Aufruffehler for a text that is none and for one outside of these.
    int wert(int kleinste, int groesste) const;

    std::string name;
    std::string text;
};

/// A number behind an option. Throws Aufruffehler for any other text.
struct Zahl {
    CLI::Option* define(CLI::App& befehl, const char* name, const char* beschreibung);
    float wert() const;

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

/// Throws Aufruffehler unless a ternary diagram can be made of so many components.
void requireTernaer(std::size_t anzahl);

/// The component of the alloy that --variabel names, the first one if there are several. Throws Aufruffehler.
std::size_t indexOfVariable(
    const std::string& symbol, const ElementCollection& elements, std::span<const Legierungskomponente> alloy);

/// What is wrong with a call that could not be taken apart, in German.
std::string aufruffehler(const CLI::App& app, const CLI::ParseError& error, int argc, const char* const* argv);

} // namespace zerna
