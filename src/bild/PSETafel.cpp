#include "bild/PSETafel.h"

#include <cmath>
#include <cstdlib>

#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr double Left = 1;
constexpr double Top = 1;
constexpr double Width = 19.2 - Left;
constexpr double Height = 11.2 - Top;

bool isByte(double value) { return value >= 0 && value < 256; }

} // namespace

Tafelmassstab::Tafelmassstab(double width, double height)
    : m_cellWidth(width / Width)
    , m_cellHeight(height / Height)
{
}

Rechteck Tafelmassstab::cell(double column, double row) const
{
    return {(column - Left) * m_cellWidth, (row - Top) * m_cellHeight, m_cellWidth, m_cellHeight};
}

double Tafelmassstab::columnAt(double x) const { return m_cellWidth > 0 ? x / m_cellWidth + Left : -1; }

double Tafelmassstab::rowAt(double y) const { return m_cellHeight > 0 ? y / m_cellHeight + Top : -1; }

std::shared_ptr<clsElement> elementAt(const ElementCollection& elements, double column, double row)
{
    if (!isByte(column) || !isByte(row))
        return nullptr;
    for (const auto& element : elements) {
        if (element->X() == static_cast<int>(column) && element->Y() == static_cast<int>(row))
            return element;
    }
    return nullptr;
}

std::shared_ptr<clsElement> nextElement(const ElementCollection& elements, const clsElement& from, int dx, int dy)
{
    constexpr int SideCost = 100; // a cell in the same line comes before any beside it
    std::shared_ptr<clsElement> best;
    int bestCost = 0;
    for (const auto& element : elements) {
        const int right = element->X() - from.X();
        const int down = element->Y() - from.Y();
        const int along = right * dx + down * dy;
        const int aside = std::abs(right * dy) + std::abs(down * dx);
        if (along <= 0)
            continue;
        const int cost = dx != 0 && aside != 0 ? -1 : along + aside * SideCost;
        if (cost >= 0 && (!best || cost < bestCost)) {
            best = element;
            bestCost = cost;
        }
    }
    return best;
}

std::shared_ptr<clsElement> elementWithPrefix(const ElementCollection& elements, std::string_view letters)
{
    const std::string wanted = lowerCase(letters);
    if (auto exact = elements.find(letters, true))
        return exact;
    for (const auto& element : elements) {
        if (lowerCase(element->symbol()).starts_with(wanted))
            return element;
    }
    return nullptr;
}

} // namespace zerna
