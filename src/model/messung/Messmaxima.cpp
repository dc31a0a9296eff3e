#include "model/messung/Messmaxima.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "model/messung/Ausgleichspolynom.h"

namespace zerna {

namespace {

constexpr std::size_t MostBlocks = 4096; // what a maximum is looked for in
constexpr double Smallest = 0.02; // of the range: lower bumps are no maxima
constexpr std::size_t Narrowest = 2; // points on either side of a top
constexpr double WidestWindow = 0.7; // of the width at half height, fitted on either side

/// A maximum between two minima, as indices.
struct Gipfel {
    std::size_t left = 0;
    std::size_t top = 0;
    std::size_t right = 0;
};

/// The curve with runs of points averaged, so that a million of them take no longer than some thousand.
std::vector<double> averagedRuns(std::span<const Messpunkt> punkte, std::size_t run)
{
    std::vector<double> values;
    for (std::size_t i = 0; i < punkte.size(); i += run) {
        const auto part = punkte.subspan(i, std::min(run, punkte.size() - i));
        double sum = 0;
        for (const Messpunkt& punkt : part)
            sum += punkt.y;
        values.push_back(sum / static_cast<double>(part.size()));
    }
    return values;
}

/// Standard deviation of what changes from value to value: fourth differences hardly know the curve itself.
double noiseOf(const std::vector<double>& y)
{
    constexpr double MedianOfNormal = 0.6745; // of amounts, in standard deviations
    constexpr std::size_t Fewest = 16; // fewer show the curve rather than its noise
    const double gain = std::sqrt(70.0); // 1 + 16 + 36 + 16 + 1
    std::vector<double> differences;
    for (std::size_t i = 2; i + 2 < y.size(); ++i)
        differences.push_back(std::abs(y[i - 2] - 4 * y[i - 1] + 6 * y[i] - 4 * y[i + 1] + y[i + 2]));
    if (differences.size() < Fewest)
        return 0;
    const auto middle = differences.begin() + std::ssize(differences) / 2;
    std::ranges::nth_element(differences, middle);
    return *middle / (MedianOfNormal * gain);
}

/// Each value averaged with `reach` ones on both sides, as far as there are any.
std::vector<double> smoothed(const std::vector<double>& y, std::size_t reach)
{
    if (reach == 0)
        return y;
    std::vector<double> sums{0};
    for (const double value : y)
        sums.push_back(sums.back() + value);
    std::vector<double> means;
    for (std::size_t i = 0; i < y.size(); ++i) {
        const std::size_t from = i - std::min(reach, i);
        const std::size_t to = std::min(i + reach + 1, y.size());
        means.push_back((sums[to] - sums[from]) / static_cast<double>(to - from));
    }
    return means;
}

/// The maxima that rise by more than `least` from the minima on both sides.
std::vector<Gipfel> gipfelIn(const std::vector<double>& y, double least)
{
    std::vector<Gipfel> found;
    Gipfel next;
    bool rises = false;
    for (std::size_t i = 0; i < y.size(); ++i) {
        if (rises) {
            if (y[i] > y[next.top])
                next.top = i;
            if (y[i] < y[next.top] - least) {
                next.right = i;
                found.push_back(next);
                next.left = i;
                rises = false;
            }
            continue;
        }
        if (y[i] < y[next.left]) {
            next.left = i;
            if (!found.empty())
                found.back().right = i;
        }
        if (y[i] > y[next.left] + least) {
            next.top = i;
            rises = true;
        }
    }
    return found;
}

double hoehe(const std::vector<double>& y, const Gipfel& gipfel)
{
    return y[gipfel.top] - std::max(y[gipfel.left], y[gipfel.right]);
}

/// Values between the places at which a maximum has come down by half its height.
double breite(const std::vector<double>& y, const Gipfel& gipfel)
{
    const double half = y[gipfel.top] - hoehe(y, gipfel) / 2;
    std::size_t left = gipfel.top;
    while (left > gipfel.left && y[left] > half)
        --left;
    std::size_t right = gipfel.top;
    while (right < gipfel.right && y[right] > half)
        ++right;
    return static_cast<double>(right - left);
}

/// What a maximum must rise by in a curve averaged over 2·reach + 1 values, so that noise alone hardly makes one.
double leastRise(const std::vector<double>& y, double noise, std::size_t reach)
{
    constexpr double Safety = 2.5; // 2 reach from the lowest to the highest value; the noise is not exactly known
    const auto [low, high] = std::ranges::minmax(y);
    const double extreme = std::sqrt(2 * std::log(static_cast<double>(y.size()))); // of so many values, in deviations
    return std::max(Smallest * (high - low), Safety * extreme * noise / std::sqrt(static_cast<double>(2 * reach + 1)));
}

struct Suche {
    std::vector<double> y; // as it was looked through
    std::vector<Gipfel> gipfel;
};

Suche suche(const std::vector<double>& y, double noise, std::size_t reach)
{
    Suche suche{smoothed(y, reach), {}};
    suche.gipfel = gipfelIn(suche.y, leastRise(suche.y, noise, reach));
    return suche;
}

/// Smooths until something stands out of the noise, then as the strongest maximum bears it.
Suche sucheGipfel(const std::vector<double>& y)
{
    constexpr std::size_t FewestWindows = 8; // in the curve
    constexpr double Part = 8; // of the width, on either side
    const double noise = noiseOf(y);
    Suche first = suche(y, noise, 0);
    for (std::size_t reach = 1; first.gipfel.empty() && reach < y.size() / FewestWindows; reach *= 2)
        first = suche(y, noise, reach);
    if (first.gipfel.empty())
        return first;
    const auto strongest =
        std::ranges::max_element(first.gipfel, {}, [&](const Gipfel& gipfel) { return hoehe(first.y, gipfel); });
    return suche(y, noise, static_cast<std::size_t>(breite(first.y, *strongest) / Part));
}

/// The vertex of the parabola through three points with x ascending; the middle one is the highest.
Messpunkt scheitel(const Messpunkt& left, const Messpunkt& middle, const Messpunkt& right)
{
    const double a = middle.x - left.x;
    const double b = right.x - middle.x;
    const double rise = (middle.y - left.y) / a;
    const double fall = (right.y - middle.y) / b;
    const double curvature = (fall - rise) / (a + b);
    if (!(curvature < 0))
        return middle;
    const double slope = (rise * b + fall * a) / (a + b); // at the middle
    const double way = std::clamp(-slope / (2 * curvature), -a, b);
    return {middle.x + way, middle.y + way * (slope + curvature * way)};
}

/// A top as a window shows it.
struct Ort {
    Messpunkt scheitel;
    double bend = 0; ///< of the curve there, upside down: the second derivative along x
    double slopeError = 0; ///< what noise does to the slope there, as a standard deviation
    double heightError = 0; ///< what it does to the height
    double half = 0; ///< of the window's length

    /// What noise does to the place of a top that is so much bent.
    double error(double trueBend) const { return slopeError / trueBend; }
};

/// The top of the polynomial through some points; no value if it has none among them. `noise` is that of a point.
std::optional<Ort> ortIn(std::span<const Messpunkt> punkte, double noise)
{
    const Ausgleichspolynom polynom(punkte);
    const auto fitted = [&](std::size_t i) { return Messpunkt{punkte[i].x, polynom(punkte[i].x)}; };
    std::size_t top = 0;
    for (std::size_t i = 1; i < punkte.size(); ++i)
        if (fitted(i).y > fitted(top).y)
            top = i;
    if (top == 0 || top + 1 == punkte.size())
        return std::nullopt;
    constexpr double SlopeVariance = 9.375; // of a fourth-degree fit to 2·m + 1 points, times m³
    constexpr double Variance = 1.76; // of its value, times m
    const Messpunkt left = fitted(top - 1);
    const Messpunkt right = fitted(top + 1);
    const double step = (right.x - left.x) / 2;
    const double half = static_cast<double>(punkte.size() - 1) / 2;
    return Ort{scheitel(left, fitted(top), right), (2 * fitted(top).y - left.y - right.y) / (step * step),
        noise * std::sqrt(SlopeVariance / (half * half * half)) / step, noise * std::sqrt(Variance / half),
        half * step};
}

/// The points within so many of one of them, between the minima.
std::span<const Messpunkt> fenster(
    std::span<const Messpunkt> punkte, const Gipfel& gipfel, std::size_t middle, std::size_t half)
{
    const std::size_t from = middle - std::min(half, middle - gipfel.left);
    const std::size_t to = middle + std::min(half, gipfel.right - middle);
    return punkte.subspan(from, to - from + 1);
}

/// The top in the widest window that agrees with all narrower ones within their errors: it has the least noise, and
/// misses no more of the curve's shape than noise hides. `gipfel` and `most` count points.
Messpunkt maximum(std::span<const Messpunkt> punkte, Gipfel gipfel, std::size_t most, double noise)
{
    constexpr double Agreeing = 3; // errors
    constexpr double Blind = 0.01;
    gipfel.right = std::min(gipfel.right, punkte.size() - 1);
    std::size_t middle = std::clamp(gipfel.top, gipfel.left + 1, gipfel.right - 1);
    const Messpunkt plain = scheitel(punkte[middle - 1], punkte[middle], punkte[middle + 1]);
    if (const auto first = ortIn(fenster(punkte, gipfel, middle, most), noise)) {
        const auto nearest = std::ranges::lower_bound(punkte, first->scheitel.x, {}, &Messpunkt::x) - punkte.begin();
        middle = std::clamp(static_cast<std::size_t>(nearest), gipfel.left + 1, gipfel.right - 1);
    }
    std::vector<Ort> orte; // the narrowest first
    for (std::size_t half = Narrowest;; half = std::min(most, half + (half + 1) / 2)) {
        if (const auto ort = ortIn(fenster(punkte, gipfel, middle, half), noise))
            orte.push_back(*ort);
        if (half >= most)
            break;
    }
    const auto widest = [&](const auto& agrees) { // the narrowest agrees at least
        return *std::find_if(orte.rbegin(), orte.rend(), [&](const Ort& wide) {
            return std::ranges::all_of(orte, [&](const Ort& ort) {
                const double error = ort.error(wide.bend);
                const bool isBlind = error > Blind * ort.half; // it shows the shape of the noise
                return ort.half >= wide.half || isBlind || agrees(ort, wide, error);
            });
        });
    };
    if (orte.empty())
        return plain;
    const Ort place = widest([](const Ort& narrow, const Ort& wide, double error) {
        return std::abs(narrow.scheitel.x - wide.scheitel.x) <= Agreeing * error;
    });
    const Ort height = widest([](const Ort& narrow, const Ort& wide, double) {
        return std::abs(narrow.scheitel.y - wide.scheitel.y) <= Agreeing * narrow.heightError;
    });
    return {place.scheitel.x, height.scheitel.y};
}

/// Noise of the points: at least what their last digit leaves out, where it makes stairs of the curve.
double noiseOfPoints(std::span<const Messpunkt> punkte)
{
    constexpr std::size_t Stairs = 4; // points on one of them, on average
    std::vector<double> y;
    double quantum = std::numeric_limits<double>::infinity();
    std::size_t steps = 0;
    for (const Messpunkt& punkt : punkte) {
        if (!y.empty() && punkt.y != y.back()) {
            quantum = std::min(quantum, std::abs(punkt.y - y.back()));
            ++steps;
        }
        y.push_back(punkt.y);
    }
    const bool hasStairs = steps > 0 && steps * Stairs < y.size();
    return std::max(noiseOf(y), hasStairs ? quantum / std::sqrt(12.0) : 0);
}

} // namespace

std::vector<Messpunkt> maxima(std::span<const Messpunkt> punkte)
{
    if (punkte.size() < WenigsteMesspunkte)
        return {};
    const std::size_t run = (punkte.size() + MostBlocks - 1) / MostBlocks;
    const Suche suche = sucheGipfel(averagedRuns(punkte, run));
    const double noise = noiseOfPoints(punkte);
    std::vector<Messpunkt> found;
    for (const Gipfel& gipfel : suche.gipfel) {
        const Gipfel inPoints{gipfel.left * run, gipfel.top * run + run / 2, gipfel.right * run + run - 1};
        const double widest = WidestWindow * breite(suche.y, gipfel) * static_cast<double>(run);
        found.push_back(maximum(punkte, inPoints, std::max(Narrowest, static_cast<std::size_t>(widest)), noise));
    }
    return found;
}

} // namespace zerna
