#pragma once

#include <array>
#include <iterator>
#include <string_view>

#include "core/Elementdatei.h"
#include "model/rechnung/clsCalc.h"
#include "model/reihen/Anteile.h"
#include "parser/clsParser.h"

/// What the benchmarks share: the shipped element table, a parser and a calculator.
namespace zerna {

/// The data file that the build has made.
inline constexpr std::string_view Datenpfad = ZERNA_BENCH_DATA;

inline constexpr int FermienergieCode = 8; ///< code of the quantity that diagrams are measured with

/// Nobody looks at messages while time is taken.
class StummeMeldungen : public MessageBoxes {
public:
    void show(Icon, std::string_view, std::string_view) override { }
};

/// An alloy of up to five components is put into `calc`; `komponentenzahl` says how many of them count.
struct Aufbau {
    Aufbau()
    {
        const int number = files.freeNumber();
        files.open(number, pathFromUtf8(Datenpfad), Zugriff::Binaer);
        loadElements(files, number, boxes, elements);
        files.close(number);
        for (const auto& element : elements) {
            element->setDichte(element->Dichte_Kristallin());
            element->setValenz_Temp("2");
        }
    }

    /// Gives the components their valence texts.
    void setValenztexte(const std::array<std::string_view, MaxKomponenten>& texte) const
    {
        for (std::size_t i = 0; i < texte.size(); ++i)
            elements.Item(Symbole.at(i))->setValenz_Temp(texte.at(i));
    }

    /// Enters the first komponentenzahl components, as an edit of the composition does.
    void enterAlloy(const std::array<float, MaxKomponenten>& prozente)
    {
        for (int i = 0; i < komponentenzahl; ++i)
            calc.Element_Add(i, std::data(Symbole)[i], std::data(prozente)[i]);
    }

    /// One component as a series takes it.
    Legierungskomponente komponente(std::size_t i, float prozent)
    {
        return gelesen(elements.Item(Symbole.at(i)), prozent, parser);
    }

    static constexpr std::array<std::string_view, MaxKomponenten> Symbole{"Al", "Cu", "Zn", "Mg", "Ni"};

    StummeMeldungen boxes;
    Dateinummern files;
    ElementCollection elements;
    clsParser parser{elements, boxes};
    int komponentenzahl = MaxKomponenten;
    clsCalc calc{elements, komponentenzahl, parser};
};

} // namespace zerna
