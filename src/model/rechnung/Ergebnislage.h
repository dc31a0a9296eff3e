#pragma once

#include <optional>
#include <string>

#include "model/rechnung/Befund.h"
#include "model/rechnung/Groessen.h"

namespace zerna {

/// How the results that are shown stand to what is entered: what there is to say above them, which of them do not
/// count, and what is to be asked before they are copied or saved.
struct Ergebnislage {
    std::optional<Befund> befund = {}; ///< of the rows or of their means
    std::string befundtext = {};
    int mittelzeile = -1; ///< result line of the mean that is to blame; -1 for none
    std::string gehoertZu = {}; ///< the composition of the results while it is not the entered one
    std::string getippt = {}; ///< names of the values that were typed over computed ones
    std::string tippfehler = {}; ///< what is wrong with them
    bool kf2Getippt = false;

    bool istFehler() const;

    /// The line above the results; empty if there is nothing to say.
    std::string text() const;

    /// Whether a result means something as things stand.
    bool zaehlt(const Groesse& groesse) const;

    /// What is to be asked before the results leave the panel; empty for nothing.
    std::string kopierfrage() const;
    std::string speicherfrage() const;
};

/// The state of the results of `gerechnet`, which the calculator has, while `eingabe` is entered.
Ergebnislage ergebnislage(const Eingabe& eingabe, const Eingabe& gerechnet, const clsCalc& calc);

} // namespace zerna
