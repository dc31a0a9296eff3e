#pragma once

namespace zerna {

/// How often the program has done something since it started. The linker leads the calls of these functions from one
/// source file to another past the counters, see Zaehlwerk.cmake; the program itself knows nothing of them.
struct Zaehlwerk {
    int zahlen = 0; ///< texts read as numbers
    int rechnungen = 0; ///< alloys calculated
    int diagramme = 0; ///< series and grids computed

    Zaehlwerk operator-(const Zaehlwerk& before) const
    {
        return {zahlen - before.zahlen, rechnungen - before.rechnungen, diagramme - before.diagramme};
    }
};

const Zaehlwerk& zaehlwerk();

} // namespace zerna
