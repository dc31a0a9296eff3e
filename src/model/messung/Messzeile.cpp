#include "model/messung/Messzeile.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/Kuerzung.h"
#include "core/Laufzeitfehler.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr std::string_view Leerzeichen = " \t";

/// One way to write a line. Blanks as separators stand for tabs too, as many as there are.
struct Schreibweise {
    char trenner = ' ';
    char dezimal = '.';
};

/// Where a line can be read in several ways they mean the same, except for the two with commas between the columns.
constexpr std::array<Schreibweise, 8> Schreibweisen{
    {{'\t', ','}, {'\t', '.'}, {';', ','}, {';', '.'}, {' ', ','}, {' ', '.'}, {',', '.'}, {',', ','}}};
constexpr unsigned NurKommas = 1U << 7U; // the last of them, unmistakable in quotation marks only

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Takes the next cell off a line.
std::string_view nimmZelle(std::string_view& rest, char trenner)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(trenner == '\t' ? " " : Leerzeichen), rest.size()));
    std::string_view cell;
    if (const std::size_t end = rest.starts_with('"') ? rest.find('"', 1) : std::string_view::npos;
        end != std::string_view::npos) {
        cell = rest.substr(1, end - 1);
        rest.remove_prefix(end + 1);
        if (!ohneRand(rest.substr(0, rest.find(trenner))).empty())
            cell = {}; // something follows the closing mark
    } else {
        cell = rest.substr(0, trenner == ' ' ? rest.find_first_of(Leerzeichen) : rest.find(trenner));
        rest.remove_prefix(cell.size());
    }
    rest.remove_prefix(
        std::min(trenner == ' ' ? rest.size() : rest.find(trenner) + 1, std::min<std::size_t>(1, rest.size())));
    return ohneRand(cell);
}

/// Whether it is a number and nothing else, however large.
bool istZahl(std::string_view text)
{
    try {
        return !text.starts_with('&') && numberIn(text).has_value();
    } catch (const Laufzeitfehler&) {
        return true;
    }
}

bool liesZahl(std::string_view cell, char dezimal, double& value)
{
    if (cell.empty() || cell.front() == '&' || cell.find(dezimal == ',' ? '.' : ',') != std::string_view::npos)
        return false;
    const std::size_t comma = cell.find(',');
    if (comma != std::string_view::npos
        && (comma == 0 || !isDigit(cell[comma - 1]) || comma + 1 == cell.size() || !isDigit(cell[comma + 1])))
        return false; // a comma beside a blank separates
    try {
        return readNumber(cell, value) && std::abs(value) <= GroessterMesswert;
    } catch (const Laufzeitfehler&) { // too large
        return false;
    }
}

bool liesZeile(std::string_view line, const Schreibweise& weise, Messpunkt& punkt)
{
    const bool isPlain = weise.trenner != ',' || weise.dezimal != ',' || line.find('"') != std::string_view::npos;
    if (!isPlain && line.find_first_of(Leerzeichen) != std::string_view::npos)
        return false; // "1, 2": two whole numbers
    Messpunkt read;
    if (!liesZahl(nimmZelle(line, weise.trenner), weise.dezimal, read.x)
        || !liesZahl(nimmZelle(line, weise.trenner), weise.dezimal, read.y))
        return false;
    punkt = read;
    return true;
}

/// What seems to stand between the columns.
char trennerIn(std::string_view line)
{
    for (const char c : {';', '\t', ' '})
        if (line.find(c) != std::string_view::npos)
            return c;
    return ',';
}

} // namespace

std::string_view ohneRand(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

bool Messzeilen::lies(std::string_view zeile, Messpunkt& punkt)
{
    unsigned still = 0;
    for (std::size_t i = 0; i < Schreibweisen.size(); ++i) {
        Messpunkt read;
        if ((m_moeglich >> i & 1U) == 0 || !liesZeile(zeile, Schreibweisen.at(i), read))
            continue;
        if (still == 0)
            punkt = read;
        still |= 1U << i;
    }
    if (still != 0)
        m_moeglich = still;
    return still != 0;
}

bool Messzeilen::istMehrdeutig() const { return (m_moeglich & NurKommas) != 0 && m_moeglich != NurKommas; }

std::string Messzeilen::grund(std::string_view zeile) const
{
    const bool isFirst = std::all_of(Schreibweisen.begin(), Schreibweisen.end(),
        [this, i = 0U](const Schreibweise&) mutable { return (m_moeglich >> i++ & 1U) != 0; });
    char trenner = trennerIn(zeile);
    for (std::size_t i = 0; i < Schreibweisen.size() && !isFirst; ++i) {
        Messpunkt read;
        if ((m_moeglich >> i & 1U) != 0)
            trenner = Schreibweisen.at(i).trenner;
        else if (liesZeile(zeile, Schreibweisen.at(i), read))
            return "Hier stehen andere Trenn- oder Dezimalzeichen als in den Zeilen davor";
    }
    std::string_view rest = zeile;
    const std::string_view x = nimmZelle(rest, trenner);
    const std::string_view y = nimmZelle(rest, trenner);
    if (istZahl(x) && y.empty())
        return "Hier steht nur eine Spalte; gebraucht werden zwei";
    for (const std::string_view cell : {x, y})
        if (!istZahl(cell))
            return zitiert(cell) + " ist keine Zahl";
        else if (double value = 0; !liesZahl(cell, '.', value) && !liesZahl(cell, ',', value))
            return "Die Zahl " + zitiert(cell) + " ist zu groß";
    return zitiert(zeile) + " lässt sich nicht als zwei Zahlen lesen";
}

bool beginntWieMesspunkt(std::string_view zeile)
{
    return std::ranges::any_of(std::string_view(";\t ,"), [&](char trenner) {
        std::string_view rest = zeile;
        const std::string_view first = nimmZelle(rest, trenner);
        return istZahl(first) && !ohneRand(rest).empty();
    });
}

} // namespace zerna
