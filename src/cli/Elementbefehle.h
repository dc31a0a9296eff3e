#pragma once

namespace CLI {
class App;
}

namespace zerna {

class Umgebung;

/// Adds what tells the names that the other commands take: of quantities ("kennzahlen") and of elements, whose table
/// can be written and read ("elemente").
void defineElementbefehle(CLI::App& app, Umgebung& umgebung);

} // namespace zerna
