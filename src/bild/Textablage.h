#pragma once

#include <vector>

#include "bild/Geometrie.h"

namespace zerna {

/// Places texts in an area so that none is cut off or lies over another; who comes first gets the room.
class Textablage {
public:
    explicit Textablage(const Rechteck& area)
        : m_area(area)
    {
    }

    /// Whether a box lies within the area and touches none of those kept.
    bool istFrei(const Rechteck& box) const;

    /// Keeps a box if it is free; whether it was.
    bool belege(const Rechteck& box);

    /// Keeps a box wherever it lies.
    void sperre(const Rechteck& box) { m_boxes.push_back(box); }

private:
    Rechteck m_area;
    std::vector<Rechteck> m_boxes;
};

/// The box of that size around a point.
inline Rechteck boxAround(const Punkt& centre, double width, double height)
{
    return {centre.x - width / 2, centre.y - height / 2, width, height};
}

} // namespace zerna
