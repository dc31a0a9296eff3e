#include "cli/Befehlszeile.h"

#include <exception>
#include <iostream>
#include <memory>

#include "cli/Argumente.h"
#include "cli/Befehl.h"
#include "cli/Umgebung.h"
#include "core/Plattform.h"

namespace zerna {

namespace {

constexpr int Fehlgeschlagen = 1;
constexpr int Aufruf = 2;

/// German words in the help of the program and, handed down to them, of all commands that are added later; these have
/// no help flag of CLI11's own.
void translate(CLI::App& app)
{
    const auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Aufruf");
    formatter->label("OPTIONS", "OPTIONEN");
    formatter->label("SUBCOMMAND", "BEFEHL");
    formatter->label("SUBCOMMANDS", "BEFEHLE");
    formatter->label("Subcommands", "Befehle");
    formatter->label("Options", "Optionen");
    formatter->label("Positionals", "Argumente");
    formatter->label("REQUIRED", "(nötig)");
    app.formatter(formatter);
    app.set_help_flag();
}

int fail(int status, const std::string& reason)
{
    melde(reason);
    return status;
}

} // namespace

int runCommandLine(int argc, char** argv, void (*defineCommands)(CLI::App&, Umgebung&))
try {
    surviveFileSizeLimit();
    CLI::App app("Modell freier Elektronen für metallische Legierungen", "zerna-cli");
    Umgebung umgebung;
    umgebung.aufruf.assign(argv + 1, argv + argc);
    app.option_defaults()->group("Optionen");
    refuseEmpty(*app.add_option("--daten", umgebung.daten, "Elementdatei statt elemente.dat neben dem Programm")
                     ->option_text("DATEI"));
    app.allow_windows_style_options(false); // a path may begin with a slash there too
    app.require_subcommand(1);
    translate(app);
    defineCommands(app, umgebung);
    addHilfe(app, "");
    try {
        refuseNothingBehindEquals(umgebung.aufruf);
        app.parse(argc, argv);
        std::cout.flush();
        return std::cout ? 0 : fail(Fehlgeschlagen, "Die Standardausgabe kann nicht geschrieben werden");
    } catch (const CLI::CallForHelp&) {
        const auto commands = app.get_subcommands();
        std::cout << (commands.empty() ? app.help() : commands.front()->help("zerna-cli"));
        return 0;
    } catch (const CLI::ParseError& error) {
        return fail(Aufruf, aufruffehler(app, error, argc, argv) + Hilfehinweis);
    } catch (const Aufruffehler& error) {
        return fail(Aufruf, error.what());
    }
} catch (const std::exception& error) { // data that are not there, a calculation that fails, no memory
    return fail(Fehlgeschlagen, error.what());
}

} // namespace zerna
