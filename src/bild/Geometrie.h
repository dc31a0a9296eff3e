#pragma once

/// Places on a picture in logical pixels, origin at the top left, y downwards.
namespace zerna {

struct Punkt {
    double x = 0;
    double y = 0;
    bool operator==(const Punkt&) const = default;
};

struct Rechteck {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

} // namespace zerna
