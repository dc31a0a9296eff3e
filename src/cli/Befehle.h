#pragma once

#include <span>
#include <string>
#include <vector>

namespace zerna {

/// Runs the command line (the program's name and its arguments) and returns the exit status: 0, 1 when data or a
/// calculation failed, 2 when the call itself is wrong. Results go to standard output, errors in German to standard
/// error.
int runCommandLine(int argc, char** argv);

} // namespace zerna
