#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "bild/Geometrie.h"

/// Geometry of the concentration diagram: everything that conDisplay paints, as numbers. Lengths are logical pixels,
/// origin at the top left, y downwards.
namespace zerna {

/// The plot area on a control of the given inner size: 60 pixels on the left and 30 below are left for labels. Empty
/// (width or height 0) if the control is too small.
Rechteck plotArea(int width, int height);

/// Range of an axis in data units.
struct Bereich {
    double min = 0;
    double max = 0;
    bool operator==(const Bereich&) const = default;
};

/// The smaller and the larger value of a series' ends; where an end is unknown, of the nearest known value. Error 5 for
/// a series without any value.
/// Intended: what lies between the ends does not count, so a curve may leave the plot.
std::pair<float, float> endValues(std::span<const float> reihe);

/// The y range for the smallest and the largest value.
/// Intended: the margin is 5 % of the largest value, above and below alike. Error 11 for an empty range.
Bereich yBereich(float smallest, float largest);

/// A tick with its label, which is empty where there is no room for it.
struct Achsenmarke {
    double position = 0; ///< of the tick along its axis
    std::string label;
    double labelStart = 0; ///< left edge (x axis) or top edge (y axis) of the label
};

/// Text of a y label: "0,000", or scientific when |ln |v|| exceeds 7; 0 is "0,000".
std::string yLabel(double value);

/// Y labels are printed from this column on.
inline constexpr double LabelColumn = 5;
inline constexpr double TickLength = 7;
inline constexpr double LabelGap = 2; ///< between a label and the tick beside it

/// The ticks of the y axis from below: ten divisions without the topmost, every second one on a control lower than 300
/// pixels. A label that would touch the one below it is left out.
std::vector<Achsenmarke> yMarken(const Rechteck& plot, int controlHeight, const Bereich& y, double labelHeight);

/// The eleven ticks of the x axis. Labels stay within the control's width; one that would touch the one before it or
/// the last one is left out, so that both ends are named as long as there is room for two.
std::vector<Achsenmarke> xMarken(const Rechteck& plot, int controlWidth, const Bereich& x, const Textbreite& width);

/// Top edge of the x labels.
double xLabelTop(const Rechteck& plot, double labelHeight);

/// The factor (at most 1) by which the labels' font must be scaled so that the widest y label fits beside the plot and
/// the x labels fit below it.
double labelScale(
    const std::vector<Achsenmarke>& yMarken, const Rechteck& plot, const Textbreite& width, double labelHeight);

/// Room for a y label between its column and the ticks.
inline double labelRoom(const Rechteck& plot) { return plot.left - LabelColumn - TickLength - LabelGap; }

/// Pixels of the plot area and data units, there and back.
class Abbildung {
public:
    Abbildung() = default;

    /// Error 11 for an empty range.
    Abbildung(double width, double height, const Bereich& x, const Bereich& y);

    /// Whole pixels, halves to even.
    double column(double x) const;
    double row(double y) const;

    /// Between pixels.
    Punkt punkt(double x, double y) const { return {(x - m_x.min) * m_xScale, m_height - (y - m_y.min) * m_yScale}; }

    double x(double column) const;
    double y(double row) const;

private:
    double m_width = 0;
    double m_height = 0;
    Bereich m_x;
    Bereich m_y;
    double m_xScale = 1; // pixels per data unit
    double m_yScale = 1;
};

} // namespace zerna
