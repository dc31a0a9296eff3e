#pragma once

#include <CLI/CLI.hpp>

#include <memory>

namespace zerna {

class Umgebung;

/// Adds a command. A `Befehl` says with define(CLI::App&) which options it has and carries them out with
/// run(Umgebung&), which throws Aufruffehler, Datenfehler or Laufzeitfehler.
template <class Befehl>
void addBefehl(CLI::App& parent, Umgebung& umgebung, const char* name, const char* beschreibung)
{
    CLI::App& app = *parent.add_subcommand(name, beschreibung);
    app.option_defaults()->group("Optionen");
    app.group("Befehle");
    const auto befehl = std::make_shared<Befehl>();
    befehl->define(app);
    app.callback([&umgebung, befehl] { befehl->run(umgebung); });
}

/// What "bild" is.
inline constexpr const char* Bildname = "bild";
inline constexpr const char* Bildbeschreibung = "Diagramm als Bilddatei";

} // namespace zerna
