#pragma once

#include <functional>
#include <string_view>

/// Places and measures on a picture, in logical pixels, origin at the top left, y downwards.
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

    double right() const { return left + width; }
    double bottom() const { return top + height; }
    Punkt mitte() const { return {left + width / 2, top + height / 2}; }
    bool operator==(const Rechteck&) const = default;
};

/// Width of a text in some font.
using Textbreite = std::function<double(std::string_view)>;

/// How texts measure in some font.
struct Textmasse {
    Textbreite width;
    double height = 0;
};

} // namespace zerna
