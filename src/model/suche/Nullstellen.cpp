#include "model/suche/Nullstellen.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace zerna {

namespace {

struct Probe {
    double x = 0;
    double y = 0;

    bool known() const { return std::isfinite(y); }
};

using Proben = std::vector<Probe>;

class Suche {
public:
    Suche(const Funktion& f, const Suchbereich& bereich)
        : m_f(f)
        , m_bereich(bereich)
    {
    }

    Nullstellen run();

private:
    Probe at(double x) const { return {x, m_f(x)}; }
    bool isZero(const Probe& probe) const { return std::abs(probe.y) <= m_bereich.toleranz; }
    std::vector<Proben> pieces() const;
    Probe edge(Probe known, Probe unknown) const;
    Proben withExtrema(const Proben& piece) const;
    Probe nearestBetween(double left, double right, double sign) const;
    std::optional<Probe> bisect(Probe a, Probe b) const;
    double edgeOfZeros(const Probe& zero, double end) const;
    void searchPiece(const Proben& piece);
    void add(const Probe& zero, const Proben& piece);

    const Funktion& m_f;
    const Suchbereich& m_bereich;
    Nullstellen m_found;
};

Nullstellen Suche::run()
{
    for (const Proben& piece : pieces())
        searchPiece(withExtrema(piece));
    return m_found;
}

/// The grid without the gaps, each piece up to its very ends.
std::vector<Proben> Suche::pieces() const
{
    std::vector<Proben> result;
    Probe before{m_bereich.von, std::numeric_limits<double>::quiet_NaN()};
    for (int i = 0; i <= m_bereich.schritte; ++i) {
        const double share = static_cast<double>(i) / m_bereich.schritte;
        const Probe probe = at(std::lerp(m_bereich.von, m_bereich.bis, share));
        if (probe.known() && !before.known()) {
            result.emplace_back();
            if (i > 0)
                result.back().push_back(edge(probe, before));
        }
        if (probe.known())
            result.back().push_back(probe);
        else if (before.known())
            result.back().push_back(edge(before, probe));
        before = probe;
    }
    return result;
}

/// The last point with a value on the way to one without.
Probe Suche::edge(Probe known, Probe unknown) const
{
    for (double x = std::midpoint(known.x, unknown.x); x != known.x && x != unknown.x;
         x = std::midpoint(known.x, unknown.x)) {
        const Probe probe = at(x);
        (probe.known() ? known : unknown) = probe;
    }
    return known;
}

/// The piece with a point more wherever it comes nearest to 0 between its points without changing sign there.
Proben Suche::withExtrema(const Proben& piece) const
{
    Proben result;
    for (std::size_t i = 0; i < piece.size(); ++i) {
        const Probe& left = piece[i == 0 ? 0 : i - 1];
        const Probe& here = piece[i];
        const Probe& right = piece[std::min(i + 1, piece.size() - 1)];
        const double sign = here.y < 0 ? -1 : 1;
        result.push_back(here);
        const bool falls = i == 0 || sign * left.y > sign * here.y;
        if (here.y == 0 || !falls || sign * right.y < sign * here.y)
            continue;
        const Probe nearest = nearestBetween(left.x, right.x, sign);
        if (nearest.x != here.x && sign * nearest.y < sign * here.y)
            result.insert(nearest.x < here.x ? result.end() - 1 : result.end(), nearest);
    }
    return result;
}

/// The minimum of sign · f by golden section, as far as it has one inside.
Probe Suche::nearestBetween(double left, double right, double sign) const
{
    constexpr double Section = 0.6180339887498949;
    constexpr int Enough = 60; // sections: a part in 10^12
    const auto height = [sign](const Probe& probe) {
        return probe.known() ? sign * probe.y : std::numeric_limits<double>::infinity();
    };
    Probe a = at(right - Section * (right - left));
    Probe b = at(left + Section * (right - left));
    for (int i = 0; i < Enough && a.x < b.x; ++i) {
        if (height(a) <= height(b)) {
            right = b.x;
            b = a;
            a = at(right - Section * (right - left));
        } else {
            left = a.x;
            a = b;
            b = at(left + Section * (right - left));
        }
    }
    return height(a) <= height(b) ? a : b;
}

/// The zero between two values of different sign; none for a pole, a jump or a gap.
std::optional<Probe> Suche::bisect(Probe a, Probe b) const
{
    constexpr double Vanishing = 1e-4; // of what a continuous function has left in the end, even one like a root
    const double left = Vanishing * std::max(std::abs(a.y), std::abs(b.y));
    for (double x = std::midpoint(a.x, b.x); x != a.x && x != b.x; x = std::midpoint(a.x, b.x)) {
        const Probe probe = at(x);
        if (!probe.known())
            return std::nullopt;
        if (isZero(probe))
            return probe;
        (std::signbit(probe.y) == std::signbit(a.y) ? a : b) = probe;
    }
    if (std::max(std::abs(a.y), std::abs(b.y)) > left)
        return std::nullopt;
    return std::abs(a.y) < std::abs(b.y) ? a : b;
}

/// How far, from one of them, values that count as 0 go on in the direction of `end`.
double Suche::edgeOfZeros(const Probe& zero, double end) const
{
    double inside = zero.x;
    double outside = end;
    for (double step = (end - zero.x) * 0x1p-30; std::abs(step) < std::abs(end - zero.x); step *= 2) {
        if (!isZero(at(zero.x + step))) {
            outside = zero.x + step;
            break;
        }
        inside = zero.x + step;
    }
    if (isZero(at(outside)))
        return outside;
    for (double x = std::midpoint(inside, outside); x != inside && x != outside; x = std::midpoint(inside, outside))
        (isZero(at(x)) ? inside : outside) = x;
    return inside;
}

void Suche::searchPiece(const Proben& piece)
{
    for (std::size_t i = 0; i < piece.size(); ++i) {
        const Probe& here = piece[i];
        if (!m_found.naechste || std::abs(here.y) < std::abs(m_found.naechste->y))
            m_found.naechste = {here.x, here.y};
        if (isZero(here)) {
            add(here, piece);
            continue;
        }
        const bool crosses = i + 1 < piece.size() && !isZero(piece[i + 1]) && here.y * piece[i + 1].y < 0;
        if (const auto zero = crosses ? bisect(here, piece[i + 1]) : std::nullopt)
            add(*zero, piece);
    }
}

void Suche::add(const Probe& zero, const Proben& piece)
{
    if (!m_found.stellen.empty() && zero.x <= m_found.stellen.back().bis)
        return;
    m_found.naechste = {zero.x, zero.y};
    Nullstelle stelle{zero.x, zero.x};
    if (isZero(zero))
        stelle = {edgeOfZeros(zero, piece.front().x), edgeOfZeros(zero, piece.back().x)};
    if (!m_found.stellen.empty() && stelle.von <= m_found.stellen.back().bis)
        m_found.stellen.back().bis = stelle.bis;
    else
        m_found.stellen.push_back(stelle);
}

} // namespace

Nullstellen nullstellen(const Funktion& f, const Suchbereich& bereich) { return Suche(f, bereich).run(); }

} // namespace zerna
