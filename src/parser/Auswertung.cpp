#include "parser/Auswertung.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/CheckedArithmetic.h"
#include "core/Kuerzung.h"
#include "core/Zahlentext.h"
#include "parser/Formelfunktionen.h"

namespace zerna {

namespace {

/// Parentheses and function calls may stand this deep inside each other.
constexpr int MaxDepth = 200;
constexpr int MaxArguments = 100;

/// Nobody reads more messages about one formula.
constexpr std::size_t MaxMessages = 10;

[[noreturn]] void abort(Fehler fehler, std::string grund, std::size_t position)
{
    throw Abbruch{fehler, std::move(grund), position};
}

/// The value of the arithmetic, whose run-time errors get a place in the formula.
template <class Arithmetic>
auto located(std::size_t position, Arithmetic&& arithmetic)
{
    try {
        return arithmetic();
    } catch (const Laufzeitfehler& error) {
        abort(static_cast<Fehler>(error.Nummer()), error.what(), position);
    }
}

bool isOperator(char c) { return c == '+' || c == '-' || c == '*' || c == '/' || c == '^'; }

constexpr char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr bool isLetter(char c) { return lowered(c) >= 'a' && lowered(c) <= 'z'; }

/// Whether a text is an ASCII word, which is given in lower case.
bool isWord(std::string_view text, std::string_view word) { return std::ranges::equal(text, word, {}, lowered); }

/// A part of the formula as it may appear in a message: names whole, nothing absurd.
std::string quoted(std::string_view text)
{
    constexpr std::size_t Longest = 200;
    return gekuerzt(text, Longest);
}

/// Digits with at most one decimal separator: what can stand before the "e" of an exponent.
bool isMantissa(std::string_view text)
{
    bool digits = false;
    int separators = 0;
    for (const char c : text) {
        if (c >= '0' && c <= '9')
            digits = true;
        else if (c == ',' || c == '.')
            ++separators;
        else
            return false;
    }
    return digits && separators <= 1;
}

bool isWholeBelow(double value, double limit) { return value == std::trunc(value) && std::abs(value) < limit; }

/// A value as if it had been written as text (15 significant digits) and read back.
double throughText(double value)
{
    constexpr double ExactIntegers = 1e15;
    return isWholeBelow(value, ExactIntegers) ? value : doubleFromText(textOfDouble(value));
}

/// The same for a single, whose text is the shortest: 0.1F gives 0.1.
double throughText(float value)
{
    constexpr double ExactIntegers = 16777216;
    return isWholeBelow(value, ExactIntegers) ? value : doubleFromText(textOfSingle(value));
}

double combine(double left, char op, double right)
{
    switch (op) {
    case '^':
        return power(left, right);
    case '*':
        return left * right;
    case '/':
        return quotient(left, right);
    case '+':
        return left + right;
    default:
        return left - right;
    }
}

/// Operators of a higher rank bind more tightly.
constexpr std::size_t MaxRank = 2;
constexpr std::size_t rankOf(char op) { return op == '^' ? MaxRank : static_cast<std::size_t>(op == '*' || op == '/'); }

/// Combines terms at the operators of one rank, from left to right; gives those that remain.
std::span<Term> reduced(std::span<Term> terms, std::size_t rank)
{
    std::size_t last = 0;
    for (std::size_t k = 1; k < terms.size(); ++k) {
        const Term& term = terms[k];
        if (rankOf(term.op) != rank)
            terms[++last] = term;
        else
            terms[last].value =
                located(term.position, [&] { return checked(combine(terms[last].value, term.op, term.value)); });
    }
    return terms.first(last + 1);
}

} // namespace

void Termstapel::grow()
{
    std::vector<Term> more(2 * m_size);
    std::ranges::copy(m_terms, more.begin());
    m_many = std::move(more);
    m_terms = m_many;
}

Auswertung::Auswertung(std::string_view text, const ElementCollection& elements, std::vector<Valenzbezug>* bezuege)
    : m_text(text)
    , m_elements(elements)
    , m_bezuege(bezuege)
{
}

double Auswertung::evaluate() { return expression(0, m_text.size()); }

/// The value of the text from begin up to end; 0 if it is blank.
double Auswertung::expression(std::size_t begin, std::size_t end)
{
    if (skipBlanks(begin, end) == end)
        return 0;
    if (++m_depth > MaxDepth)
        abort(Fehler::UngueltigesArgument, "zu tief verschachtelt", begin);
    std::size_t i = begin;
    double value = nextOperand(i, end);
    if (i < end)
        value = chain(value, i, end);
    --m_depth;
    return value;
}

/// The value of an operand and of what follows it from the operator at i up to end.
double Auswertung::chain(double first, std::size_t i, std::size_t end)
{
    const std::size_t base = m_terms.size();
    std::array<bool, MaxRank + 1> ranks{}; // that occur
    m_terms.push(0, first, i);
    while (i < end) {
        const std::size_t position = i++;
        const double value = nextOperand(i, end);
        m_terms.push(m_text[position], value, position);
        ranks[rankOf(m_text[position])] = true;
    }
    std::span<Term> terms = m_terms.from(base);
    for (std::size_t rank = ranks.size(); rank-- > 0;) {
        if (ranks[rank])
            terms = reduced(terms, rank);
    }
    const double value = terms.front().value;
    m_terms.shrink(base);
    return value;
}

/// Reads the operand that begins at i and moves i to the operator behind it or to the end.
double Auswertung::nextOperand(std::size_t& i, std::size_t end)
{
    const std::size_t begin = i;
    while (i < end && m_text[i] != '(' && m_text[i] != ')' && !splitsAt(i, begin))
        ++i;
    const std::string_view text = trimmed(part(begin, i));
    if (i < end && m_text[i] == ')')
        abort(Fehler::TypenUnvertraeglich, "\")\" ohne \"(\"", i);
    if (i == end || m_text[i] != '(') {
        if (text.empty())
            abort(Fehler::TypenUnvertraeglich, "Operand fehlt", i);
        return operand(text, begin);
    }
    const std::size_t open = i;
    const std::size_t close = matchingParenthesis(open, end);
    i = skipBlanks(close + 1, end);
    if (i < end && !isOperator(m_text[i]))
        abort(Fehler::TypenUnvertraeglich, "Operator fehlt", i);
    return text.empty() ? expression(open + 1, close) : function(text, begin, open + 1, close);
}

/// Whether the operator character at i ends the operand that begins at `begin`; the sign of an exponent does not.
bool Auswertung::splitsAt(std::size_t i, std::size_t begin) const
{
    if (!isOperator(m_text[i]))
        return false;
    const bool afterE = i > begin && (m_text[i - 1] == 'e' || m_text[i - 1] == 'E');
    return !afterE || !isMantissa(trimmed(part(begin, i - 1)));
}

std::size_t Auswertung::matchingParenthesis(std::size_t open, std::size_t end) const
{
    int depth = 0;
    for (std::size_t i = open; i < end; ++i) {
        if (m_text[i] == '(')
            ++depth;
        else if (m_text[i] == ')' && --depth == 0)
            return i;
    }
    abort(Fehler::TypenUnvertraeglich, "\")\" fehlt", open);
}

double Auswertung::operand(std::string_view text, std::size_t position) const
{
    double number = 0;
    if (!isLetter(text.front()) && located(position, [&] { return readNumber(text, number); }))
        return number;
    if (isWord(text, "pi"))
        return KonstantePi;
    if (isWord(text, "e"))
        return KonstanteE;
    if (isWord(text.substr(0, 2), "z_"))
        return valenceOf(text.substr(2), position);
    abort(Fehler::TypenUnvertraeglich, "\"" + quoted(text) + "\" ist keine Zahl", position);
}

double Auswertung::valenceOf(std::string_view key, std::size_t position) const
{
    const ElementCollection::Element& element = m_elements.find(key, true);
    if (!element)
        abort(Fehler::UngueltigesArgument, "Element \"" + quoted(key) + "\" ist nicht bekannt", position);
    if (istUnbekannt(element->Valenz()))
        abort(Fehler::UngueltigesArgument, "Valenz von \"" + quoted(key) + "\" ist nicht bekannt", position);
    if (m_bezuege != nullptr)
        m_bezuege->push_back({element, element->Valenz()});
    return located(position, [&] { return throughText(element->Valenz()); });
}

/// The value of a function whose arguments stand from begin up to end.
double Auswertung::function(std::string_view name, std::size_t namePosition, std::size_t begin, std::size_t end)
{
    std::array<double, 2> argument{};
    int count = 0;
    for (std::size_t i = begin; count == 0 || i <= end; ++count) {
        const std::size_t argumentEnd = endOfArgument(i, end);
        if (count == MaxArguments)
            abort(Fehler::IndexAusserhalb, "zu viele Argumente", i);
        if (skipBlanks(i, argumentEnd) == argumentEnd)
            abort(Fehler::TypenUnvertraeglich, "Argument fehlt", i);
        const double value = expression(i, argumentEnd);
        if (count < 2)
            argument.at(static_cast<std::size_t>(count)) = value;
        i = argumentEnd + 1;
    }
    const Formelfunktion* const found = findFunction(lowerCase(name));
    if (found == nullptr)
        return passOverUnknown(name, namePosition);
    if (count < found->arguments)
        abort(Fehler::TypenUnvertraeglich, "Argument fehlt", end);
    return located(namePosition, [&] {
        if (found->value != nullptr)
            return throughText(checked(found->value(argument[0], argument[1])));
        m_hexadecimal = true;
        return doubleFromText("&H" + hexDigits(argument[0]));
    });
}

/// The ";" that ends the argument beginning at i, on the outermost level, or the end.
std::size_t Auswertung::endOfArgument(std::size_t i, std::size_t end) const
{
    for (int depth = 0; i < end; ++i) {
        if (m_text[i] == '(')
            ++depth;
        else if (m_text[i] == ')')
            --depth;
        else if (m_text[i] == ';' && depth == 0)
            break;
    }
    return i;
}

double Auswertung::passOverUnknown(std::string_view function, std::size_t position)
{
    if (m_messages.size() < MaxMessages)
        m_messages.push_back("Fehler in Formel. (Funktion '" + quoted(function) + "' nicht definiert?)");
    if (!m_unknownFunction)
        m_unknownFunction =
            Abbruch{Fehler::UngueltigesArgument, "Funktion \"" + quoted(function) + "\" ist nicht definiert", position};
    return 0;
}

} // namespace zerna
