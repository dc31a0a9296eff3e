#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/ElementCollection.h"
#include "model/eingabe/Eingabe.h"
#include "model/rechnung/clsCalc.h"
#include "parser/clsParser.h"
#include "programm/Komponentenangabe.h"

namespace zerna {

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

/// Takes a component text apart, its part, in that unit, is a number. Throws Aufruffehler.
Komponentenangabe komponentenangabe(std::string_view text, Anteilseinheit einheit = Anteilseinheit::Atom);

/// Element data, parser and calculator without any window, settings or files of their own.
class Rechenkern {
public:
    explicit Rechenkern(MessageBoxes& boxes);

    /// Replaces the elements by those of a data file. Throws Datenfehler, also for a file that is cut off: half a table
    /// would give wrong numbers.
    void loadFile(const std::filesystem::path& file);

    /// Replaces the elements by the built-in table.
    void loadBuiltIn();

    /// Makes the alloy of one to five components, their parts in that unit, the calculator's. They are taken as given,
    /// the last one too; components of one element share the density and the valence of the last of them. Throws
    /// Aufruffehler or Datenfehler.
    void setAlloy(std::span<const Komponentenangabe> angaben, Anteilseinheit einheit = Anteilseinheit::Atom);

    /// Makes an entered alloy of these elements the calculator's. Throws Datenfehler if it cannot be computed.
    void setAlloy(Eingabe eingabe);

    /// What is to be said of how these components were taken; empty if nothing is.
    const std::string& hinweis() const { return m_hinweis; }

    /// The alloy of the last setAlloy as it was entered, and as numbers.
    const Eingabe& eingabe() const { return m_eingabe; }
    std::span<const Legierungskomponente> komponenten() const { return m_legierung.komponenten(); }

    const ElementCollection& elements() const { return m_elements; }
    clsParser& parser() { return m_parser; }
    clsCalc& calc() { return m_calc; }

private:
    /// Notices when a record cannot be read.
    class Satzfehler : public MessageBoxes {
    public:
        void show(Icon, std::string_view, std::string_view) override { gemeldet = true; }
        bool gemeldet = false;
    };

    void load(int number, const std::string& name);
    void compute(std::span<const std::string_view> texte);
    void checkAnteile(std::span<const Komponentenangabe> angaben) const;
    void enterElement(int zeile, const Komponentenangabe& angabe);
    std::optional<Eingabe::Arbeitswerte> inKraftFor(const clsElement& element, int zeile) const;

    MessageBoxes& m_boxes;
    Satzfehler m_satzfehler;
    Dateinummern m_files;
    ElementCollection m_elements;
    int m_komponentenzahl = 0;
    Eingabe m_eingabe{m_elements};
    Legierung m_legierung;
    std::string m_hinweis;
    clsParser m_parser;
    clsCalc m_calc;
};

} // namespace zerna
