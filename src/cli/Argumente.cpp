#include "cli/Argumente.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>

#include "core/Kuerzung.h"
#include "core/Namensnaehe.h"

namespace zerna {

namespace {

/// The command that was chosen, subcommands included.
const CLI::App& chosen(const CLI::App& app)
{
    const std::vector<CLI::App*> commands = app.get_subcommands();
    return commands.empty() ? app : chosen(*commands.front());
}

/// The option that a token of the call names; null for any other token.
const CLI::Option* optionOf(const CLI::App& app, const std::string& token)
{
    if (!token.starts_with('-'))
        return nullptr;
    const CLI::Option* const option = chosen(app).get_option_no_throw(token);
    return option != nullptr ? option : app.get_option_no_throw(token);
}

/// The option of the call behind which there is no value; empty if each has one.
std::string optionWithoutValue(const CLI::App& app, const std::vector<std::string>& call)
{
    for (std::size_t i = 0; i < call.size(); ++i) {
        const CLI::Option* const option = optionOf(app, call[i]);
        const bool takesValue = option != nullptr && option->get_items_expected_min() > 0;
        if (takesValue && (i + 1 == call.size() || optionOf(app, call[i + 1]) != nullptr))
            return call[i];
    }
    return {};
}

/// The whole number that a text is.
std::optional<int> wholeNumber(const std::string& text)
{
    int value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    return read.ec == std::errc() && read.ptr == end ? std::optional(value) : std::nullopt;
}

/// Whether a text names any quantity.
bool isName(const std::string& text)
{
    constexpr std::array Alle{Groessenart::Ergebnis, Groessenart::Legierung, Groessenart::Element};
    return std::ranges::any_of(Alle, [&](Groessenart art) { return findeGroesse(text, art) != nullptr; });
}

/// The names of the commands, or the long options, that can stand where the call went wrong.
std::vector<std::string> known(const CLI::App& app, bool isCommand)
{
    std::vector<std::string> names;
    const CLI::App& befehl = chosen(app);
    if (isCommand) {
        for (const CLI::App* const command : befehl.get_subcommands({}))
            names.push_back(command->get_name());
        return names;
    }
    for (const CLI::App* const level : {&befehl, &app}) {
        for (const CLI::Option* const option : level->get_options())
            std::ranges::transform(
                option->get_lnames(), std::back_inserter(names), [](const std::string& name) { return "--" + name; });
    }
    return names;
}

/// Each element once.
std::vector<std::string> symbolsOf(std::span<const Legierungskomponente> alloy)
{
    std::vector<std::string> symbols;
    for (const Legierungskomponente& komponente : alloy) {
        if (std::ranges::find(symbols, komponente.element->symbol()) == symbols.end())
            symbols.push_back(komponente.element->symbol());
    }
    return symbols;
}

/// The first required argument of the command that is not there; empty if all are.
std::string missingArgument(const CLI::App& befehl)
{
    for (const CLI::Option* const option : befehl.get_options()) {
        if (option->get_required() && option->count() == 0)
            return option->get_name();
    }
    return {};
}

} // namespace

Aufruffehler fehlendesArgument(const std::string& name)
{
    Aufruffehler fehler("Es fehlt das Argument " + name + Hilfehinweis);
    return fehler;
}

Aufruffehler unerwartet(const std::string& option, const std::string& given, const std::string& erwartet)
{
    Aufruffehler fehler(option + " " + gekuerzt(given) + ": erwartet wird " + erwartet);
    return fehler;
}

void refuseEmpty(CLI::Option& option)
{
    option.each([name = option.get_name()](const std::string& text) {
        if (text.empty())
            throw Aufruffehler(name + ": der Dateiname ist leer");
    });
}

void refuseNothingBehindEquals(std::span<const std::string> call)
{
    for (const std::string& argument : call) {
        if (argument == "--") // only components, formulas and file names follow
            return;
        if (argument.starts_with("--") && argument.ends_with('='))
            throw Aufruffehler(gekuerzt(argument) + ": hinter dem Gleichheitszeichen steht nichts");
    }
}

CLI::Option* Komponenten::define(CLI::App& befehl)
{
    befehl.add_flag("--massenprozent", massenprozent, "ATPROZENT sind Massenprozent");
    return befehl
        .add_option("komponenten", texte,
            "SYMBOL=ATPROZENT[:dichte=ZAHL|amorph|fluessig|kristallin][:valenz=s|p|d|f|TEXT], eine bis fünf; oder eine "
            "Legierung wie Al60Cu40, Cu2MgAl oder \"Al-4Cu-1Mg wt%\"; oder eine Datei *.zerna, *.png, *.svg, *.pdf, "
            "die eine Legierung enthält")
        ->required()
        ->option_text("KOMPONENTE ...");
}

void Ausgabe::define(CLI::App& befehl)
{
    CLI::Option* const option =
        befehl.add_option("--ausgabe", datei, "Datei, die geschrieben wird, statt der Standardausgabe");
    refuseEmpty(*option->option_text("DATEI"));
}

void Tabellenform::define(CLI::App& befehl) { befehl.add_flag("--json", json, "als JSON"); }

CLI::Option* Ganzzahl::define(CLI::App& befehl, const char* optionName, const char* beschreibung)
{
    name = optionName;
    return befehl.add_option(optionName, text, beschreibung)->option_text("ZAHL");
}

int Ganzzahl::wert(int kleinste, int groesste) const
{
    const auto value = wholeNumber(text);
    if (!value)
        throw Aufruffehler("Ungültiger Wert: " + name + " = " + gekuerzt(text) + Hilfehinweis);
    if (*value < kleinste || *value > groesste)
        throw unerwartet(name, std::to_string(*value), std::to_string(kleinste) + " bis " + std::to_string(groesste));
    return *value;
}

CLI::Option* Zahl::define(CLI::App& befehl, const char* optionName, const char* beschreibung)
{
    name = optionName;
    return befehl.add_option(optionName, text, beschreibung)->option_text("ZAHL");
}

float Zahl::wert() const
{
    const Eingabefeld feld = zahlenfeld(text);
    if (feld.fehler)
        throw Aufruffehler(name + " " + gekuerzt(text) + ": keine gültige Zahl");
    return feld.wert;
}

CLI::Option* Groessenangabe::define(CLI::App& befehl, const char* optionName, const char* beschreibung)
{
    return Ganzzahl::define(befehl, optionName, beschreibung)->option_text("GROESSE");
}

int Groessenangabe::kennzahl(Groessenart art) const
{
    const auto number = wholeNumber(text); // "08" is one, too
    if (const Groesse* const groesse = findeGroesse(number ? std::to_string(*number) : text, art))
        return groesse->kennzahl;
    const std::string near = number ? std::string() : satzende(vorschlag(text, eingabenamen(art)));
    if (!number && !isName(text))
        throw Aufruffehler("Ungültiger Wert: " + name + " = " + gekuerzt(text) + near + Hilfehinweis);
    const std::string given = name + " " + (number ? std::to_string(*number) : text);
    if (art == Groessenart::Element)
        throw Aufruffehler(given + ": keine Eigenschaft der Elemente" + near);
    throw Aufruffehler(given
        + (number ? ": erwartet wird " + reihenkennzahlen()
                  : ": keine Größe von Zusammensetzungen (alle: zerna-cli kennzahlen)"));
}

void Groessenangabe::check(Groessenart vorgeschlagen) const
{
    if (!wholeNumber(text) && !isName(text))
        kennzahl(vorgeschlagen);
}

void requireTernaer(std::size_t anzahl)
{
    if (anzahl != 3)
        throw Aufruffehler("Ein ternäres Diagramm hat drei Komponenten, angegeben sind " + std::to_string(anzahl));
}

void requireDistinct(std::span<const Legierungskomponente> alloy)
{
    for (const Legierungskomponente& komponente : alloy) {
        if (std::ranges::count(alloy, komponente.element, &Legierungskomponente::element) > 1)
            throw Aufruffehler("Element " + zitiert(komponente.element->symbol())
                + " steht mehrmals in der Legierung, erwartet wird eine Komponente je Element");
    }
}

std::size_t indexOfVariable(
    const std::string& symbol, const ElementCollection& elements, std::span<const Legierungskomponente> alloy)
{
    const auto& wanted = elements.find(symbol, true);
    const auto found = std::ranges::find(alloy, wanted, &Legierungskomponente::element);
    if (!wanted || found == alloy.end())
        throw Aufruffehler("--variabel " + gekuerzt(symbol) + ": keine Komponente der Legierung, erwartet wird "
            + aufzaehlung(symbolsOf(alloy)));
    return static_cast<std::size_t>(found - alloy.begin());
}

std::string aufruffehler(const CLI::App& app, const CLI::ParseError& error, int argc, const char* const* argv)
{
    const std::string missingValue = optionWithoutValue(app, {argv + 1, argv + argc});
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr && !missingValue.empty())
        return "Falsche Zahl von Werten für " + missingValue;
    const CLI::App& befehl = chosen(app);
    const bool lacksCommand = befehl.get_require_subcommand_min() > 0;
    if (const std::vector<std::string> unknown = app.remaining(true); !unknown.empty()) {
        const std::string& first = unknown.front();
        const bool isOption = first.starts_with('-');
        const bool isCommand = lacksCommand && !isOption;
        const std::string near =
            isOption || isCommand ? vorschlag(first.substr(0, first.find('=')), known(app, isCommand)) : std::string();
        return (isCommand ? "Unbekannter Befehl " : "Unbekanntes Argument ") + gekuerzt(first) + satzende(near);
    }
    if (const std::string missing = missingArgument(befehl); !missing.empty())
        return "Es fehlt das Argument " + missing;
    return lacksCommand ? "Es fehlt ein Befehl" : "Der Aufruf ist nicht zu verstehen";
}

} // namespace zerna
