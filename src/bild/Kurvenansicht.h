#pragma once

#include <optional>

#include "bild/Kurvenablesung.h"

namespace zerna {

/// How a picture of curves is looked at: the part of its axes that is shown, and a crosshair on one of its curves.
/// Positions are pixels from the plot's corner. Operations that answer bool say whether something has changed.
class Kurvenansicht {
public:
    /// What is shown if it is not the whole.
    const std::optional<Ausschnitt>& ausschnitt() const { return m_ausschnitt; }

    const std::optional<Kurvenpunkt>& kreuz() const { return m_kreuz; }

    /// Goes over to a picture with other values: what is shown stays as long as it meets the new axes, and the
    /// crosshair stays at its x.
    void passeAn(const Kurvenbild& bild);

    /// Shows a smaller part (a larger one for negative notches) around what stays where it is.
    void zoome(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& position, double notches);

    /// Shows what lies between two corners; a band of a few pixels zooms along one axis only, a spot not at all.
    bool zoomeAuf(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& a, const Punkt& b);

    bool zeigeGanz();

    /// Puts the crosshair onto the curve at a position.
    void zeigeAuf(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& position);

    /// Moves it along its curve; without one it goes to the first point. What is shown follows it.
    bool gehe(const Kurvenbild& bild, const Kurvenlayout& layout, int steps);
    bool geheAnsEnde(const Kurvenbild& bild, const Kurvenlayout& layout, bool last);

    /// Moves it to the next curve at the same x, or to the previous one.
    bool wechsle(const Kurvenbild& bild, const Kurvenlayout& layout, int way);

    bool ohneKreuz();

private:
    void setAusschnitt(const Kurvenbild& bild, const Ausschnitt& ausschnitt);
    void follow(const Kurvenbild& bild);

    std::optional<Ausschnitt> m_ausschnitt;
    std::optional<Kurvenpunkt> m_kreuz;
};

} // namespace zerna
