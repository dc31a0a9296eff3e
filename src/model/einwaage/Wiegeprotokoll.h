#pragma once

#include <span>
#include <string>
#include <vector>

namespace zerna {

/// One row of the weighing protocol, all texts as shown.
struct Einwaagezeile {
    std::string symbol;
    std::string prozent; ///< wanted at%
    std::string sollmasse; ///< mg
    std::string sollanteil; ///< mass percent
    std::string istmasse; ///< mg
    std::string istprozent; ///< at%
    std::string abweichung; ///< at%
    std::string istanteil; ///< mass percent
};

/// What was wanted and weighed, all texts as shown.
struct Wiegeprotokoll {
    std::string datum;
    std::vector<Einwaagezeile> zeilen;
    std::string gewuenscht; ///< total mass in mg; empty if the target masses refer to another
    std::string gewogen; ///< total mass in mg; empty for none
    std::string bezug; ///< what the target masses refer to, a sentence; empty for the wanted total
    std::vector<std::string> verlust; ///< the loss list; empty unless a loss was entered
};

/// Whether there is a mass in the rows, wanted or weighed.
bool istEineMasseBekannt(std::span<const Einwaagezeile> zeilen);

/// The protocol as a file: tab-separated lines with decimal points, CR LF, units in the header; behind them the loss
/// list if there is one. Until something is weighed the mass percent are the wanted ones.
std::string wiegeprotokoll(const Wiegeprotokoll& protokoll);

} // namespace zerna
