#pragma once

#include <CLI/CLI.hpp>

#include <memory>

#include "cli/Beispiele.h"
#include "cli/Umgebung.h"

namespace zerna {

/// Has the option that shows the help, which ends with examples.
inline void addHilfe(CLI::App& app, const char* befehl)
{
    app.set_help_flag("-h,--hilfe,--help", "Diese Hilfe zeigen")->group("Optionen");
    app.footer([befehl] { return beispiele(befehl); });
}

/// Adds a command. A `Befehl` says with define(CLI::App&) which options it has and carries them out with
/// run(Umgebung&), which throws Aufruffehler, Datenfehler or Laufzeitfehler. Without its name in the call nobody asks
/// for the options, which take longer to define than most calls to be carried out.
template <class Befehl>
void addBefehl(CLI::App& parent, Umgebung& umgebung, const char* name, const char* beschreibung)
{
    CLI::App& app = *parent.add_subcommand(name, beschreibung);
    app.group("Befehle");
    if (!umgebung.nennt(name))
        return;
    app.option_defaults()->group("Optionen");
    const auto befehl = std::make_shared<Befehl>();
    befehl->define(app);
    addHilfe(app, name);
    app.callback([&umgebung, befehl] { befehl->run(umgebung); });
}

/// Adds a name with commands of its own, which the last argument adds.
template <class AddBefehle>
void addGruppe(
    CLI::App& parent, const Umgebung& umgebung, const char* name, const char* beschreibung, AddBefehle&& addBefehle)
{
    CLI::App& app = *parent.add_subcommand(name, beschreibung);
    app.group("Befehle");
    if (!umgebung.nennt(name))
        return;
    app.require_subcommand(1);
    addHilfe(app, name);
    addBefehle(app);
}

/// What "bild" is.
inline constexpr const char* Bildname = "bild";
inline constexpr const char* Bildbeschreibung = "Diagramm als Bilddatei";

} // namespace zerna
