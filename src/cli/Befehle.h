#pragma once

namespace CLI {
class App;
}

namespace zerna {

class Umgebung;

/// Defines all commands of zerna-cli; parsing a call carries out the chosen one, which throws Aufruffehler, Datenfehler
/// or Laufzeitfehler.
void defineBefehle(CLI::App& app, Umgebung& umgebung);

} // namespace zerna
