#include "bild/Ternaergeometrie.h"

#include <algorithm>
#include <cmath>

#include "core/Unbekannt.h"

namespace zerna {

namespace {

constexpr double BaseLine = -TriangleHeight / 3; // y of the first two corners

double radians(double degrees) { return degrees * std::numbers::pi / 180; }

double wrapped(double degrees)
{
    const double turns = std::fmod(degrees + 180, 360);
    return (turns < 0 ? turns + 360 : turns) - 180;
}

} // namespace

Ansicht rotated(Ansicht ansicht, double tilt, double turn)
{
    ansicht.tilt = std::clamp(ansicht.tilt + tilt, -90.0, 90.0);
    ansicht.turn = wrapped(ansicht.turn + turn);
    return ansicht;
}

Ansicht zoomed(Ansicht ansicht, double factor)
{
    ansicht.zoom = std::clamp(ansicht.zoom * factor, 0.5, 3.0);
    return ansicht;
}

Projektion::Projektion(const Ansicht& ansicht, const Rechteck& part)
    : m_centreX(part.mitte().x)
    , m_centreY(part.mitte().y)
    , m_middle(SurfaceHeight / 2)
{
    const double tilt = radians(ansicht.flach ? 90 : ansicht.tilt);
    // Turning the view one way turns the diagram the other way.
    const double turn = radians(ansicht.flach ? 0 : -ansicht.turn);
    m_sinTilt = std::sin(tilt);
    m_cosTilt = std::cos(tilt);
    m_sinTurn = std::sin(turn);
    m_cosTurn = std::cos(turn);
    // The cylinder in which the diagram turns; of the flat one, which stands still, the triangle.
    constexpr double Diameter = 2 / std::numbers::sqrt3;
    const double width = ansicht.flach ? 1 : Diameter;
    const double height =
        ansicht.flach ? TriangleHeight : Diameter * std::abs(m_sinTilt) + SurfaceHeight * std::abs(m_cosTilt);
    m_scale = ansicht.zoom * std::max(1.0, std::min(part.width / width, part.height / height));
    if (ansicht.flach) // the triangle's middle, not its centre
        m_centreY += m_scale * (TriangleHeight / 2 - TriangleHeight / 3);
}

Bildpunkt Projektion::project(const Raumpunkt& point) const
{
    const double right = point.x * m_cosTurn - point.y * m_sinTurn;
    const double away = point.x * m_sinTurn + point.y * m_cosTurn;
    const double z = point.z - m_middle;
    const double up = z * m_cosTilt + away * m_sinTilt;
    const double depth = z * m_sinTilt - away * m_cosTilt;
    return {m_centreX + right * m_scale, m_centreY - up * m_scale, depth};
}

Raumpunkt Projektion::unproject(const Bildpunkt& point) const
{
    const double right = (point.x - m_centreX) / m_scale;
    const double up = (m_centreY - point.y) / m_scale;
    const double away = up * m_sinTilt - point.depth * m_cosTilt;
    const double z = up * m_cosTilt + point.depth * m_sinTilt;
    return {right * m_cosTurn + away * m_sinTurn, away * m_cosTurn - right * m_sinTurn, z + m_middle};
}

Raumpunkt placeOf(const Anteile3& anteile, double z)
{
    return {(anteile[1] - anteile[0]) / 2, BaseLine + anteile[2] * TriangleHeight, z};
}

std::optional<Anteile3> compositionAt(const Raumpunkt& place)
{
    constexpr double Tolerance = 1e-6;
    const double third = (place.y - BaseLine) / TriangleHeight;
    const Anteile3 anteile{(1 - third) / 2 - place.x, (1 - third) / 2 + place.x, third};
    if (std::ranges::any_of(anteile, [](double a) { return a < -Tolerance; }))
        return std::nullopt;
    return anteile;
}

double heightShare(double value, const Wertebereich& range)
{
    const double width = static_cast<double>(range.max) - range.min;
    return width > 0 ? (value - range.min) / width : 0.5;
}

std::vector<Gitterdreieck> triangulate(const Ternaergitter& gitter)
{
    std::vector<Gitterdreieck> triangles;
    triangles.reserve(static_cast<std::size_t>(gitter.n) * static_cast<std::size_t>(gitter.n));
    const auto add = [&](std::size_t a, std::size_t b, std::size_t c) {
        const bool complete =
            !istUnbekannt(gitter.werte[a]) && !istUnbekannt(gitter.werte[b]) && !istUnbekannt(gitter.werte[c]);
        if (complete)
            triangles.push_back({{a, b, c}});
    };
    for (int i = 0; i < gitter.n; ++i) {
        for (int j = 0; i + j < gitter.n; ++j) {
            add(gitter.position(i, j), gitter.position(i + 1, j), gitter.position(i, j + 1));
            if (i + j + 2 <= gitter.n)
                add(gitter.position(i + 1, j), gitter.position(i + 1, j + 1), gitter.position(i, j + 1));
        }
    }
    return triangles;
}

bool istZusammensetzung(const Anteile3& anteile)
{
    constexpr double Rounding = 1e-5; // of at% as they are typed
    return std::ranges::all_of(anteile, [](double share) { return share >= 0 && share <= 1; })
        && std::abs(anteile[0] + anteile[1] + anteile[2] - 1) <= Rounding;
}

std::optional<double> interpolated(const Ternaergitter& gitter, const Anteile3& anteile)
{
    const double a = std::clamp(anteile[0], 0.0, 1.0) * gitter.n;
    const double b = std::clamp(anteile[1], 0.0, 1.0) * gitter.n;
    const int i = std::min(static_cast<int>(a), gitter.n - 1);
    const int j = std::clamp(static_cast<int>(b), 0, gitter.n - 1 - i);
    const double u = a - i;
    const double v = b - j;
    const auto mixed = [](std::initializer_list<std::pair<double, float>> parts) -> std::optional<double> {
        double sum = 0;
        for (const auto& [share, value] : parts) {
            if (istUnbekannt(value))
                return std::nullopt;
            sum += share * value;
        }
        return sum;
    };
    if (u + v <= 1 || i + j + 2 > gitter.n)
        return mixed({{1 - u - v, gitter.wert(i, j)}, {u, gitter.wert(i + 1, j)}, {v, gitter.wert(i, j + 1)}});
    return mixed(
        {{u + v - 1, gitter.wert(i + 1, j + 1)}, {1 - v, gitter.wert(i + 1, j)}, {1 - u, gitter.wert(i, j + 1)}});
}

std::vector<double> axisTicks(const Wertebereich& range)
{
    const double width = static_cast<double>(range.max) - range.min;
    if (!(width > 0))
        return {range.min};
    constexpr std::size_t Fewest = 5;
    constexpr std::size_t Most = 10;
    constexpr double RoundingError = 1e-9;
    const double magnitude = std::pow(10.0, std::floor(std::log10(width)));
    std::vector<double> ticks;
    for (const double share : {2.0, 1.0, 0.5, 0.2, 0.25, 0.1}) {
        const double step = share * magnitude;
        ticks.clear();
        const double first = std::ceil(range.min / step - RoundingError);
        const double last = std::floor(range.max / step + RoundingError);
        const auto count = static_cast<int>(last - first) + 1;
        for (int k = 0; k < count; ++k)
            ticks.push_back((first + k) * step);
        if (ticks.size() >= Fewest && ticks.size() <= Most)
            break;
    }
    return ticks;
}

} // namespace zerna
