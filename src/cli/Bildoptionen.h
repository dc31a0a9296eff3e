#pragma once

#include <CLI/CLI.hpp>

#include <array>
#include <optional>
#include <string>

#include "bild/Bildvorgabe.h"
#include "bild/Konzentrationsbild.h"
#include "cli/Argumente.h"
#include "model/dokument/Dokument.h"

namespace zerna {

class Rechenkern;

/// The options of the command "bild": which diagram of an alloy becomes which file, and how it looks.
struct Bildoptionen {
    void define(CLI::App& befehl);

    /// How the picture is to look; the kind follows from the file's name. Throws Aufruffehler.
    Bildvorgabe vorgabe() const;

    /// Throws Aufruffehler for options that have no meaning together; what needs no data is checked.
    void check() const;

    /// The chosen diagram of an alloy, which is computed; what was not chosen is as in the file that it comes from, if
    /// it does. Throws Aufruffehler.
    Diagrammwahl wahl(const std::optional<Dokument>& file, const Rechenkern& kern) const;

    std::string art;
    Groessenangabe groesse;
    Groessenangabe zweite;
    std::string variabel;
    bool varianten = false;
    Kurvenschalter schalter;
    bool kristallin = false;
    bool ohneSymbole = false;
    Ganzzahl schritte;
    bool flach = false;
    std::array<std::string, 5> masse; ///< in the order of bildmasse(); empty: the default
    std::string schrift; ///< empty: the default
    std::string dezimal;
    bool grau = false;
    bool ohneTitel = false;
    bool ohneLegende = false;
    bool gegebeneTeilung = false;
    std::string ziel;
    Komponenten komponenten;

private:
    std::optional<Diagrammtyp> typ() const;
    void checkOptions(Diagrammtyp chosen) const;
    void choose(Diagrammwahl& result, const Rechenkern& kern) const;
};

} // namespace zerna
