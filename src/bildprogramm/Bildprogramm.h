#pragma once

namespace zerna {

/// The program that makes pictures for the command line, from its arguments to its exit status.
int runBildprogramm(int argc, char** argv);

} // namespace zerna
