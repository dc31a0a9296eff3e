#include "support/Zaehlwerk.h"

#include "model/reihen/Konzentrationsreihe.h"
#include "model/reihen/PSEReihe.h"
#include "model/reihen/Ternaergitter.h"

namespace zerna {

namespace {

Zaehlwerk counters;

} // namespace

const Zaehlwerk& zaehlwerk() { return counters; }

// The linker calls the original __real_NAME and this file's function __wrap_NAME; NAME as the compiler writes it. A
// member function takes its object first.
#define ZERNA_COUNTED(counter, Result, function, name, parameters, arguments)                                          \
    Result real_##function parameters asm("__real_" name);                                                             \
    Result wrap_##function parameters asm("__wrap_" name);                                                             \
    Result wrap_##function parameters                                                                                  \
    {                                                                                                                  \
        ++counters.counter;                                                                                            \
        return real_##function arguments;                                                                              \
    }

// The open extent of a span, a std::size_t.
#ifdef _WIN32
#define ZERNA_OPEN "Ly18446744073709551615E"
#else
#define ZERNA_OPEN "Lm18446744073709551615E"
#endif

using Komponenten = std::span<const Legierungskomponente>;

ZERNA_COUNTED(zahlen, float, single, "_ZN5zerna14singleFromTextESt17basic_string_viewIcSt11char_traitsIcEE",
    (std::string_view text), (text))
ZERNA_COUNTED(zahlen, double, wide, "_ZN5zerna14doubleFromTextESt17basic_string_viewIcSt11char_traitsIcEE",
    (std::string_view text), (text))
ZERNA_COUNTED(zahlen, bool, number, "_ZN5zerna10readNumberESt17basic_string_viewIcSt11char_traitsIcEERd",
    (std::string_view text, double& value), (text, value))
ZERNA_COUNTED(zahlen, bool, plain, "_ZN5zerna15readPlainNumberESt17basic_string_viewIcSt11char_traitsIcEERd",
    (std::string_view text, double& value), (text, value))
ZERNA_COUNTED(zahlen, float, parse, "_ZN5zerna10ParseValueESt17basic_string_viewIcSt11char_traitsIcEE",
    (std::string_view text), (text))
ZERNA_COUNTED(rechnungen, void, alloy,
    "_ZN5zerna7clsCalc16Legierung_SetzenESt4spanIKNS_20LegierungskomponenteE" ZERNA_OPEN "E",
    (clsCalc * calc, Komponenten alloy), (calc, alloy))
ZERNA_COUNTED(rechnungen, void, element, "_ZN5zerna7clsCalc11Element_AddEiSt17basic_string_viewIcSt11char_traitsIcEEf",
    (clsCalc * calc, int index, std::string_view key, float prozent), (calc, index, key, prozent))
ZERNA_COUNTED(diagramme, Reihe, reihe,
    "_ZN5zerna19konzentrationsreiheERKNS_7clsCalcESt4spanIKNS_20LegierungskomponenteE" ZERNA_OPEN "Eii",
    (const clsCalc& calc, Komponenten alloy, int variable, int groesse), (calc, alloy, variable, groesse))
ZERNA_COUNTED(diagramme, Reihe, dichte, "_ZN5zerna11dichtereiheESt4spanIKf" ZERNA_OPEN "Ei",
    (std::span<const float> dichten, int variable), (dichten, variable))
ZERNA_COUNTED(diagramme, Ternaergitter, gitter,
    "_ZN5zerna13ternaergitterERKNS_7clsCalcESt4spanIKNS_20LegierungskomponenteE" ZERNA_OPEN "Eii",
    (const clsCalc& calc, Komponenten alloy, int groesse, int aufloesung), (calc, alloy, groesse, aufloesung))
ZERNA_COUNTED(diagramme, PSEReihe, pse,
    "_ZN5zerna8pseReiheERKNS_17ElementCollectionERKNS_7clsCalcEiSt17basic_string_viewIcSt11char_traitsIcEE",
    (const ElementCollection& elements, const clsCalc& calc, int groesse, std::string_view titel),
    (elements, calc, groesse, titel))

} // namespace zerna
