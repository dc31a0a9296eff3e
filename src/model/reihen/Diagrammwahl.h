#pragma once

#include <optional>

namespace zerna {

/// How the ternary diagram is looked at. `flach` is the flat diagram: from above, corners in their usual places, no
/// heights.
struct Ansicht {
    double tilt = 25; ///< degrees above the horizon, -90 to 90
    double turn = 45; ///< degrees about the vertical, -180 to 180; no corner stands behind another
    double zoom = 1; ///< 0.5 to 3
    bool flach = false;
    bool operator==(const Ansicht&) const = default;
};

enum class Diagrammtyp { Konzentration = 0, Ternaer = 1, PSE = 2, Messkurve = 3 };

/// Which diagram is shown of an alloy.
struct Diagrammwahl {
    Diagrammtyp typ = Diagrammtyp::Konzentration;
    int groesse = 0; ///< code of the quantity
    std::optional<int> andereGroesse = {}; ///< the one last shown over the elements, or over alloys while these are not
    std::optional<int> zweiteGroesse = {}; ///< on the right axis of a concentration diagram
    bool varianten = false; ///< whether the kept alloys are drawn there, too
    int komponente = 0; ///< row of the component along the axis
    int aufloesung = 5; ///< of the ternary diagram, 1 to FeinsteAufloesung
    Ansicht ansicht = {}; ///< of the ternary diagram
    bool operator==(const Diagrammwahl&) const = default;
};

/// Goes to a type. Elements and alloys keep a quantity each; the first time it is the same.
void wechsleTyp(Diagrammwahl& wahl, Diagrammtyp typ);

/// The choice as it can be shown of an alloy of so many rows: type, quantity or row that there is not become the first
/// one.
Diagrammwahl passendeWahl(Diagrammwahl wahl, int anzahl);

} // namespace zerna
