#include "bild/Textablage.h"

#include <algorithm>

namespace zerna {

namespace {

bool touch(const Rechteck& a, const Rechteck& b)
{
    return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

} // namespace

bool Textablage::istFrei(const Rechteck& box) const
{
    const bool isInside = box.left >= m_area.left && box.right() <= m_area.right() && box.top >= m_area.top
        && box.bottom() <= m_area.bottom();
    return isInside && std::ranges::none_of(m_boxes, [&](const Rechteck& other) { return touch(box, other); });
}

bool Textablage::belege(const Rechteck& box)
{
    const bool isFree = istFrei(box);
    if (isFree)
        m_boxes.push_back(box);
    return isFree;
}

} // namespace zerna
