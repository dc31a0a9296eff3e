#pragma once

#include <string>
#include <string_view>

#include "model/messung/Messkurve.h"

namespace zerna {

/// Reads the lines of a measurement, two numbers each, whatever separates the columns (tab, semicolon, blanks or comma)
/// and whether the decimals stand behind comma or point. All lines of a file are written the same way: each one leaves
/// fewer ways possible.
class Messzeilen {
public:
    /// Takes x and y from the first two columns; what stands behind them does not count. False, and nothing changed,
    /// for a line that is not written as those before it.
    bool lies(std::string_view zeile, Messpunkt& punkt);

    /// Whether the commas may as well stand before decimals as between columns, as in "1,5,2,3".
    bool istMehrdeutig() const;

    /// Why lies() said false, a sentence without its full stop.
    std::string grund(std::string_view zeile) const;

private:
    unsigned m_moeglich = ~0U; // a bit for each way
};

/// Whether a line begins as a measured point does: the first of several columns is a number. A number alone is none.
bool beginntWieMesspunkt(std::string_view zeile);

/// The text without blanks and tabs at its ends.
std::string_view ohneRand(std::string_view text);

} // namespace zerna
