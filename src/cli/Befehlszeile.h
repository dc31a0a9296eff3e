#pragma once

namespace CLI {
class App;
}

namespace zerna {

class Umgebung;

/// Runs the command line with these commands, whose parsing carries out the chosen one. Exit status: 0, 1 when data or
/// calculation failed, 2 for a wrong call; what went wrong stands on standard error, in German.
int runCommandLine(int argc, char** argv, void (*defineCommands)(CLI::App&, Umgebung&));

} // namespace zerna
