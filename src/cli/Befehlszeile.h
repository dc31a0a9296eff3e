#pragma once

namespace zerna {

/// Runs zerna-cli. Exit status: 0, 1 when data or calculation failed, 2 for a wrong call; what went wrong stands on
/// standard error, in German.
int runCommandLine(int argc, char** argv);

} // namespace zerna
