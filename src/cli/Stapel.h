#pragma once

#include <CLI/CLI.hpp>

#include <span>
#include <string>

#include "model/eingabe/Anteilseinheit.h"

namespace zerna {

class Umgebung;

/// The part of a command that computes alloys by the list instead of one that is given as arguments.
struct Stapel {
    void define(CLI::App& befehl);

    /// Computes all alloys of the files, of standard input if there are none, in their order. What cannot be computed
    /// is said on standard error; throws Datenfehler behind the last line if there was any, Aufruffehler at once.
    void run(Umgebung& umgebung, std::span<const std::string> dateien, Anteilseinheit einheit) const;

    /// Throws Aufruffehler for options that have no meaning without a list.
    void requireUnused() const;

    bool gewaehlt = false;
    bool jsonzeilen = false;
    std::string groessen;
};

} // namespace zerna
