#pragma once

namespace CLI {
class App;
}

namespace zerna {

class Umgebung;

/// Defines the command "bild", which paints.
void defineBildbefehl(CLI::App& app, Umgebung& umgebung);

} // namespace zerna
