#pragma once

#include <vector>

#include "bild/Achsen.h"
#include "bild/Geometrie.h"

namespace zerna {

/// The part of a plot on which curves lie, strip by strip: each reaches from the highest to the lowest point in it.
/// That is a fraction of the plot, in few rectangles.
class Kurvenstreifen {
public:
    explicit Kurvenstreifen(const Rechteck& plot);

    /// Adds a line, and what lies that far around it, in pixels from the plot's corner.
    void add(const Punkt& from, const Punkt& to, double around);

    /// What is in the strips, in whole pixels of the picture and inside the plot.
    std::vector<Rechteck> bereiche() const;

private:
    struct Streifen {
        Bereich spalten; // whole pixels from the plot's left edge
        double top = 0;
        double bottom = -1; // above the top: nothing is in it
    };

    Rechteck m_plot;
    std::vector<Streifen> m_streifen;
};

} // namespace zerna
