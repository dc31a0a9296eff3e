#include "parser/Formelwert.h"

#include "core/Zahlentext.h"
#include "parser/Auswertung.h"

namespace zerna {

namespace {

/// Passes the formula without its blanks on character by character: put(character, place in the formula).
template <class Put>
void withoutBlanks(std::string_view formula, Put&& put)
{
    std::size_t next = 0;
    for (std::size_t i = 1; i < formula.size() && next < formula.size(); ++i) {
        if (formula[next] == ' ')
            ++next; // the character that moves to this place is passed over
        if (next < formula.size()) {
            put(formula[next], next);
            ++next;
        }
    }
    for (; next < formula.size(); ++next)
        put(formula[next], next);
}

/// The character (from 1) of the formula at which byte `compact` of the formula without blanks stands.
std::size_t characterOf(std::string_view formula, std::size_t compact)
{
    std::size_t place = formula.size();
    std::size_t written = 0;
    withoutBlanks(formula, [&](char, std::size_t from) {
        if (written++ == compact)
            place = from;
    });
    return zeichenzahl(formula.substr(0, place)) + 1;
}

Formelfehler formelfehler(const Abbruch& abbruch, std::string_view formula)
{
    return {static_cast<int>(abbruch.fehler), abbruch.grund, characterOf(formula, abbruch.position)};
}

} // namespace

Formelwert formelwert(std::string_view formula, const ElementCollection& elements, std::vector<Valenzbezug>* bezuege)
{
    Formelwert result;
    if (readPlainNumber(formula, result.wert)) { // worth a shorter way: most valences
        result.text = textOfDouble(result.wert);
        return result;
    }
    const bool hasBlanks = formula.find(' ') != std::string_view::npos;
    const std::string compact = hasBlanks ? removeBlanks(formula) : std::string();
    Auswertung auswertung(hasBlanks ? compact : formula, elements, bezuege);
    try {
        const double value = auswertung.evaluate();
        result.text = auswertung.hexadecimal() ? "0x" + hexDigits(value) : textOfDouble(value);
        result.wert = value;
        result.hexadezimal = auswertung.hexadecimal();
    } catch (const Abbruch& abbruch) {
        result.fehler = formelfehler(abbruch, formula);
    } catch (const Laufzeitfehler& error) { // a hexadecimal result that is too large
        result.fehler = Formelfehler{error.Nummer(), error.what(), 1};
    }
    if (const std::optional<Abbruch>& unknown =
            auswertung.unknownFunction()) // it came before what ended the evaluation
        result.fehler = formelfehler(*unknown, formula);
    result.meldungen = auswertung.takeMessages();
    return result;
}

std::string removeBlanks(std::string_view formula)
{
    std::string compact;
    compact.reserve(formula.size());
    withoutBlanks(formula, [&](char c, std::size_t) { compact += c; });
    return compact;
}

} // namespace zerna
