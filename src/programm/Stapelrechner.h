#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/eingabe/Legierung.h"
#include "model/eingabe/Legierungsformel.h"
#include "programm/Rechenkern.h"

namespace zerna {

/// Computes one alloy after the other from texts: the same numbers and reasons as Rechenkern::setAlloy. What a
/// component means is remembered without its at% unless it is long, so that an alloy of components met before needs no
/// memory, and a text that is wrong throws nothing.
class Stapelrechner {
public:
    /// Computes with the elements and the calculator of that core; parts of alloys are in that unit.
    explicit Stapelrechner(Rechenkern& kern, Anteilseinheit einheit = Anteilseinheit::Atom);

    /// Makes an alloy the calculator's: one to five components with blanks or tabs between them. False if there is
    /// none; grund() then says why.
    bool rechne(std::string_view legierung);
    const std::string& grund() const { return m_grund; }

    /// What makes the results of the last alloy doubtful; empty if nothing does.
    std::string hinweis();

    const clsCalc& calc() const { return m_kern.calc(); }

private:
    /// A component without its at%.
    struct Bedeutung {
        std::shared_ptr<const clsElement> element;
        float dichte = 0;
        float valenz = 0;
        std::string grund; ///< why it means nothing; empty if it does
    };

    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>()(key); }
    };

    bool readComponents(std::string_view legierung);
    bool readFormula(std::string_view legierung);
    void split(std::string_view legierung);
    bool read(std::string_view text, Legierungskomponente& komponente);
    static void take(const Bedeutung& meaning, Legierungskomponente& komponente);
    bool fail(std::string_view text, std::string_view grund);
    const Bedeutung& bedeutung(std::string_view symbol, std::string_view zusatz);
    Bedeutung lookUp(std::string_view symbol, std::string_view zusatz) const;
    std::vector<Komponentenangabe> angaben() const;
    void shareValues();
    bool convertParts();
    bool looksSound() const;
    std::span<Legierungskomponente> komponenten() { return std::span(m_komponenten).first(m_anzahl); }

    Rechenkern& m_kern;
    const Anteilseinheit m_einheit; // where a formula names no other
    Anteilseinheit m_einheitDerTeile;
    Legierungsformel m_formel; // the last alloy if m_isFormula
    bool m_isFormula = false;
    std::array<std::string_view, MaxKomponenten> m_texte; // of the components
    std::array<Legierungskomponente, MaxKomponenten> m_komponenten;
    std::size_t m_anzahl = 0; // may be more than there is room for
    bool m_typedPartsSound = true;
    bool m_valuesAgree = true; // of the components of one element
    std::string m_grund;
    std::string m_key;
    Bedeutung m_langeBedeutung; // the last one that is not remembered
    std::unordered_map<std::string, Bedeutung, Hash, std::equal_to<>> m_bedeutungen;
};

} // namespace zerna
