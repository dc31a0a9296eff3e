#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <utility>

#include "core/clsElement.h"

namespace zerna {

/// The largest number of components of an alloy.
inline constexpr int MaxKomponenten = 5;

/// One component of an alloy, its texts read: all that calculations need of it.
struct Legierungskomponente {
    std::shared_ptr<const clsElement> element;
    float prozent = 0; ///< at%
    float dichte = 0; ///< g/cm³
    float valenz = 0; ///< Unbekannt while its text gives none

    /// The element is touched only if it is another one, which it seldom is: counting its users takes longer than all
    /// else here as soon as the program has a second thread.
    template <class Element>
    void setze(const std::shared_ptr<Element>& other, float itsProzent, float itsDichte, float itsValenz)
    {
        if (element != other)
            element = other;
        prozent = itsProzent;
        dichte = itsDichte;
        valenz = itsValenz;
    }
};

/// An alloy of up to MaxKomponenten components.
class Legierung {
public:
    void add(Legierungskomponente komponente) { m_komponenten.at(m_count++) = std::move(komponente); }

    /// Gives it so many components to be set; those that it has keep their values.
    std::span<Legierungskomponente> resize(std::size_t count)
    {
        m_count = count;
        return std::span(m_komponenten).first(m_count);
    }

    std::span<const Legierungskomponente> komponenten() const { return std::span(m_komponenten).first(m_count); }

private:
    std::array<Legierungskomponente, MaxKomponenten> m_komponenten;
    std::size_t m_count = 0;
};

} // namespace zerna
