#pragma once

#include <memory>
#include <string_view>

#include "bild/Geometrie.h"
#include "core/ElementCollection.h"

/// The periodic table as a drawing: where the cells lie and which element is where. Table coordinates run from (1, 1)
/// at the top left to (19.2, 11.2) at the bottom right; an element's cell is the unit square from (X, Y) on.
namespace zerna {

/// Table coordinates and pixels of an area of that size.
class Tafelmassstab {
public:
    Tafelmassstab(double width, double height);

    /// The area of a cell, in pixels.
    Rechteck cell(double column, double row) const;

    double columnAt(double x) const;
    double rowAt(double y) const;

private:
    double m_cellWidth;
    double m_cellHeight;
};

/// The first element of the collection whose cell is under a point in table coordinates; null if there is none.
std::shared_ptr<clsElement> elementAt(const ElementCollection& elements, double column, double row);

/// The next element from `from` in a direction (one of dx, dy is -1 or 1): in the same row or column over gaps, else
/// the nearest one on that side; null at the edge.
std::shared_ptr<clsElement> nextElement(const ElementCollection& elements, const clsElement& from, int dx, int dy);

/// The first element whose symbol begins with these letters, whatever their case; null if there is none.
std::shared_ptr<clsElement> elementWithPrefix(const ElementCollection& elements, std::string_view letters);

} // namespace zerna
