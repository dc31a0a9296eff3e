#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Laufzeitfehler.h"
#include "parser/Formelwert.h"

namespace zerna {

/// Ends an evaluation; `position` counts bytes of the formula without its blanks, from 0.
struct Abbruch {
    Fehler fehler;
    std::string grund;
    std::size_t position;
};

/// One operand with the operator in front of it; the first of an expression has none.
struct Term {
    char op;
    double value;
    std::size_t position; ///< of the operator
};

/// A stack of terms that asks for memory only when it grows past those of an ordinary formula.
class Termstapel {
public:
    Termstapel() = default;
    Termstapel(const Termstapel&) = delete;
    Termstapel& operator=(const Termstapel&) = delete;

    std::size_t size() const { return m_size; }
    std::span<Term> from(std::size_t i) const { return m_terms.subspan(i, m_size - i); }

    void push(char op, double value, std::size_t position)
    {
        if (m_size == m_terms.size())
            grow();
        Term& term = m_terms[m_size++]; // written in place: copying a term just made stalls
        term.op = op;
        term.value = value;
        term.position = position;
    }

    void shrink(std::size_t size) { m_size = size; }

private:
    void grow();

    std::array<Term, 16> m_few;
    std::vector<Term> m_many;
    std::span<Term> m_terms{m_few}; // either of them
    std::size_t m_size = 0;
};

/// One evaluation of a formula without blanks: evaluate once, then read what else came out.
class Auswertung {
public:
    /// The elements whose valences are taken are added to `bezuege` unless that is null.
    Auswertung(std::string_view text, const ElementCollection& elements, std::vector<Valenzbezug>* bezuege);
    Auswertung(const Auswertung&) = delete;
    Auswertung& operator=(const Auswertung&) = delete;

    /// The formula's value; throws Abbruch.
    double evaluate();

    bool hexadecimal() const { return m_hexadecimal; }
    const std::optional<Abbruch>& unknownFunction() const { return m_unknownFunction; } ///< the first one
    std::vector<std::string> takeMessages() { return std::move(m_messages); }

private:
    double expression(std::size_t begin, std::size_t end);
    double chain(double first, std::size_t i, std::size_t end);
    double nextOperand(std::size_t& i, std::size_t end);
    double operand(std::string_view text, std::size_t position) const;
    double valenceOf(std::string_view key, std::size_t position) const;
    double function(std::string_view name, std::size_t namePosition, std::size_t begin, std::size_t end);
    double passOverUnknown(std::string_view function, std::size_t position);

    std::string_view part(std::size_t begin, std::size_t end) const { return m_text.substr(begin, end - begin); }
    std::size_t skipBlanks(std::size_t i, std::size_t end) const
    {
        while (i < end && m_text[i] == ' ')
            ++i;
        return i;
    }
    bool splitsAt(std::size_t i, std::size_t begin) const;
    std::size_t matchingParenthesis(std::size_t open, std::size_t end) const;
    std::size_t endOfArgument(std::size_t i, std::size_t end) const;

    std::string_view m_text;
    const ElementCollection& m_elements;
    std::vector<Valenzbezug>* m_bezuege;
    Termstapel m_terms;
    int m_depth = 0;
    bool m_hexadecimal = false;
    std::optional<Abbruch> m_unknownFunction;
    std::vector<std::string> m_messages;
};

} // namespace zerna
