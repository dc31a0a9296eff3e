#pragma once

#include <filesystem>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"
#include "model/Ergebnisse.h"
#include "model/Konzentrationsreihe.h"
#include "model/clsCalc.h"
#include "parser/clsParser.h"

namespace zerna {

/// A component as it is written on a command line: SYMBOL=ATPERCENT[:dichte=…][:valenz=…].
struct Komponentenangabe {
    std::string text; ///< as written, for messages
    std::string symbol;
    std::string prozent; ///< a number, as written
    std::string dichte; ///< a number, "amorph", "fluessig" or "kristallin"; empty: the first known of these
    std::string valenz; ///< a formula; empty: the element's valence
};

/// An argument that is not written as it must be; what() says in German what is wrong and names it.
class Aufruffehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Data that are not there or a calculation that cannot be done; what() says in German which and why.
class Datenfehler : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Takes a component text apart. Throws Aufruffehler.
Komponentenangabe komponentenangabe(std::string_view text);

/// Element data, parser and calculator without any window, settings or files of their own.
class Rechenkern {
public:
    explicit Rechenkern(MessageBoxes& boxes);

    /// Replaces the elements by those of a data file. Throws Datenfehler.
    void loadFile(const std::filesystem::path& file);

    /// Replaces the elements by the built-in table.
    void loadBuiltIn();

    /// Makes the alloy of one to five components the calculator's and returns its rows as the results text names them.
    /// At% are taken as given. Throws Aufruffehler or Datenfehler.
    std::vector<Komponentenzeile> setAlloy(std::span<const Komponentenangabe> angaben);

    /// The components of the last setAlloy as a series takes them.
    const std::vector<Reihenkomponente>& komponenten() const { return m_komponenten; }

    const ElementCollection& elements() const { return m_elements; }
    clsParser& parser() { return m_parser; }
    clsCalc& calc() { return m_calc; }

private:
    void load(int number, const std::string& name);
    Komponentenzeile setElement(const Komponentenangabe& angabe);
    void setDichte(clsElement& element, const Komponentenangabe& angabe, Komponentenzeile& zeile);
    void setValenz(clsElement& element, const Komponentenangabe& angabe, Komponentenzeile& zeile);

    MessageBoxes& m_boxes;
    Dateinummern m_files;
    ElementCollection m_elements;
    int m_komponentenzahl = 0;
    std::vector<Reihenkomponente> m_komponenten;
    clsParser m_parser;
    clsCalc m_calc;
};

} // namespace zerna
