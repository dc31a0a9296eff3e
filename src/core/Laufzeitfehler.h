#pragma once

#include <stdexcept>
#include <string_view>

namespace zerna {

/// The run-time errors that can occur, by number.
enum class Fehler : int {
    UngueltigesArgument = 5, ///< logarithm, root or power outside its domain; unknown key of a collection
    Ueberlauf = 6, ///< also 0/0, and a double too large for a single
    IndexAusserhalb = 9,
    DivisionDurchNull = 11,
    TypenUnvertraeglich = 13, ///< a text that is no number
    DateinummerFalsch = 52,
    DateiNichtGefunden = 53,
    EinAusgabefehler = 57,
    DatentraegerVoll = 61,
    HinterDateiende = 62,
    ZugriffVerweigert = 70,
    PfadZugriff = 75,
    PfadNichtGefunden = 76,
    ObjektNichtFestgelegt = 91, ///< use of an empty slot
    SchluesselVergeben = 457,
};

/// A run-time error; what() is its German description (UTF-8), behind it in brackets the cause if it is known.
class Laufzeitfehler : public std::runtime_error {
public:
    explicit Laufzeitfehler(Fehler fehler, std::string_view ursache = {});

    int Nummer() const noexcept { return static_cast<int>(m_fehler); }

private:
    Fehler m_fehler;
};

} // namespace zerna
