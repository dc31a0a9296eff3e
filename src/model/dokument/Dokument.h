#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/Geteilt.h"
#include "model/eingabe/Eingabe.h"
#include "model/einwaage/Wiegeauskunft.h"
#include "model/messung/Messkurve.h"
#include "model/reihen/Diagrammwahl.h"
#include "model/reihen/GehalteneKurve.h"

namespace zerna {

/// The weighing as it was typed; masses in mg. The rows behind the last one in use keep what they hold.
struct Wiegedaten {
    std::string gewuenscht = "1000"; ///< wanted total mass
    std::array<std::string, MaxKomponenten> gewogen; ///< empty: not weighed
    std::string verlust;
    std::optional<Wiegebezug> bezug; ///< what the target masses were set to match, unless the wanted total

    bool operator==(const Wiegedaten&) const = default;
};

/// An alloy that was kept to be compared with others. It follows no later change.
struct Variante {
    std::string name;
    Eingabe eingabe;
    std::string fremd; ///< keys of a newer program's file, as the text of a JSON object; empty for none

    bool operator==(const Variante&) const = default;
};

inline constexpr std::size_t MaxVarianten = 50;

/// The kept alloys, in the order they are shown in.
struct Vergleich {
    std::vector<Variante> varianten; ///< up to MaxVarianten
    std::size_t referenz = 0; ///< which one the others are compared with

    bool operator==(const Vergleich&) const = default;
};

/// All that a file keeps and that can be undone. A value: copying it is cheap, because what may be large is shared.
struct Dokument {
    explicit Dokument(const ElementCollection& elements)
        : eingabe(elements)
    {
    }

    std::string titel;
    Geteilt<std::string> bemerkung;
    Eingabe eingabe;
    Wiegedaten wiegen;
    Diagrammwahl diagramm;
    Geteilt<Vergleich> vergleich;
    Geteilt<std::vector<GehalteneKurve>> kurven; ///< up to MaxKurven
    Geteilt<std::vector<Messkurve>> messkurven; ///< up to MeisteMesskurven, with MeisteMesspunkte together
    Geteilt<std::string> fremd; ///< keys of a newer program's file, as the text of a JSON object; empty for none

    bool operator==(const Dokument&) const = default;
};

} // namespace zerna
