#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bild/Farbskala.h"
#include "bild/Wertskala.h"
#include "core/clsElement.h"
#include "model/reihen/PSEReihe.h"

/// How the cells of the periodic table are coloured: by group of elements or by a property.
namespace zerna {

/// Tells a group where its colour cannot be told.
enum class Gruppenzeichen { Kreis, Quadrat, Dreieck, Raute };

struct Elementgruppe {
    std::string_view egk; ///< as in the element's record
    std::string_view name;
    Farbe hell; ///< on a light window
    Farbe dunkel;
    Gruppenzeichen zeichen = Gruppenzeichen::Kreis;

    const Farbe& farbe(bool aufDunklem) const { return aufDunklem ? dunkel : hell; }
};

/// All groups in the order of the legend.
std::span<const Elementgruppe> elementgruppen();

/// What fills a cell.
struct Zellfuellung {
    std::optional<Farbe> farbe = std::nullopt; ///< none for an element without group or value: the window decides
    std::optional<Gruppenzeichen> zeichen = std::nullopt; ///< only while coloured by group
    bool fehlt = false; ///< the element lacks the value
    bool operator==(const Zellfuellung&) const = default;
};

/// Colours by group, or by the values of a property.
class Tafelfaerbung {
public:
    Tafelfaerbung() = default;

    /// The values stand in collection order; a series without values colours by group.
    explicit Tafelfaerbung(const PSEReihe& reihe);

    bool nachGruppe() const { return m_werte.empty(); }

    /// The filling of an element; `index` is its place in the collection.
    Zellfuellung fuellung(const clsElement& element, std::size_t index, bool aufDunklem) const;

    /// What the element is coloured by; no value while coloured by group.
    std::optional<float> wert(std::size_t index) const;

    /// The same in words: the group, or title and value; empty for an element without a group.
    std::string beschreibung(const clsElement& element, std::size_t index) const;

    const std::string& titel() const { return m_titel; }
    const Wertskala& skala() const { return m_skala; }

private:
    std::string m_titel;
    std::vector<float> m_werte;
    Wertskala m_skala;
};

} // namespace zerna
