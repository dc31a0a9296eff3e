#pragma once

#include <string>

/// Texts that come out in several places. Those of an alloy are for 60 at% aluminium and 40 at% copper, both
/// crystalline, with their standard valences; the numbers were computed from the textbook formulas and the constants
/// of nature.
namespace zerna::erwartet {

inline const std::string Kopf = "Modell freier Elektronen\r\n\r\n"
                                "Al: Konzentration = 60 at% ,Dichte(kristallin) = 2,7 g/cm³ ,Valenz(Standard) = 3\r\n"
                                "Cu: Konzentration = 40 at% ,Dichte(kristallin) = 8,96 g/cm³ ,Valenz(Standard) = 1"
                                "\r\n\r\n";

/// As it is copied.
inline const std::string Ergebnistext = Kopf
    + "e/a\r\n1/nm³\r\n5,204 g/cm³\r\n1,4667 E-29 m³\r\n-4,1611 E-11 m³/As\r\n-7,1196 E-09 V/K²\r\n14,381 eV\r\n"
      "10,294 eV\r\n1/nm\r\n0,19112 nm\r\nFriedelminima:\r\n"
      // Intended: the wavelength on each line
      "n = 0 r(n) = 0,19112 nm\r\nn = 1 r(n) = 0,19112 nm\r\nn = 2 r(n) = 0,19112 nm\r\nn = 3 r(n) = 0,19112 nm\r\n"
      "n = 4 r(n) = 0,19112 nm\r\nn = 5 r(n) = 0,19112 nm\r\nn = 6 r(n) = 0,19112 nm\r\nn = 7 r(n) = 0,19112 nm\r\n"
      "n = 8 r(n) = 0,19112 nm\r\nn = 9 r(n) = 0,19112 nm\r\nn = 10 r(n) = 0,19112 nm";

/// As it is saved, still UTF-8.
inline const std::string Ergebnisdatei = Kopf
    + "mittlere Valenz: e/a\r\nmittlere Teilchenzahldichte: 1/nm³\r\nmittlere Dichte: 5,204 g/cm³\r\n"
      "mittleres Atomvolumen: 1,4667 E-29 m³\r\nHall - Koeffizient: -4,1611 E-11 m³/As\r\n"
      "Thermokraft: -7,1196 E-09 V/K²\r\nPlasmonenenergie: 14,381 eV\r\nFermienergie: 10,294 eV\r\n"
      "2 kF: 1/nm\r\nFriedelwellenlänge: 0,19112 nm\r\n\r\nFriedelminima:\r\n"
      "n = 0 r(n) = 0,23891 nm\r\nn = 1 r(n) = 0,43003 nm\r\nn = 2 r(n) = 0,62116 nm\r\nn = 3 r(n) = 0,81228 nm\r\n"
      "n = 4 r(n) = 1,0034 nm\r\nn = 5 r(n) = 1,1945 nm\r\nn = 6 r(n) = 1,3857 nm\r\nn = 7 r(n) = 1,5768 nm\r\n"
      "n = 8 r(n) = 1,7679 nm\r\nn = 9 r(n) = 1,959 nm\r\nn = 10 r(n) = 2,1502 nm\r\n";

/// The Friedel-minimum file of a wavelength of a quarter of a nanometre (2kF = 8π/nm).
inline const std::string Friedeldatei = [] {
    std::string text;
    for (const std::string x :
        {"0.3125", "0.5625", "0.8125", "1.0625", "1.3125", "1.5625", "1.8125", "2.0625", "2.3125", "2.5625", "2.8125"})
        text.append(x).append("\t50\r\n").append(x).append("\t55\r\n \t \r\n");
    return text;
}();

} // namespace zerna::erwartet
