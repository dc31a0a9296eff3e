#include "model/reihen/Elementluecken.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>
#include <vector>

#include "core/Unbekannt.h"

namespace zerna {

namespace {

struct Datum {
    std::string_view name;
    float (clsElement::*wert)() const;
};

constexpr Datum Valenz{"Valenz", &clsElement::Valenz};
constexpr Datum Masse{"Masse", &clsElement::Masse};
constexpr Datum Fluessig{"flüssige Dichte", &clsElement::Dichte_Fluessig};
constexpr Datum Kristallin{"kristalline Dichte", &clsElement::Dichte_Kristallin};

/// What a property of the element itself is made of, by its code.
struct Bedarf {
    int groesse;
    Datum datum;
};

constexpr std::array Tabellenbedarf{
    Bedarf{11, {"Schmelztemperatur", &clsElement::Schmelztemperatur}},
    Bedarf{12, {"Siedetemperatur", &clsElement::Siedetemperatur}},
    Bedarf{13, Fluessig},
    Bedarf{14, Kristallin},
    Bedarf{15, Masse},
    Bedarf{16, {"Atomradius", &clsElement::Atomradius}},
    Bedarf{17, {"erste Ionisierungsenergie", &clsElement::Ionisierungsenergie}},
    Bedarf{18, {"Elektronegativität", &clsElement::Elektronegativitaet}},
    Bedarf{19, Fluessig},
    Bedarf{19, Masse},
    Bedarf{20, Kristallin},
    Bedarf{20, Masse},
    Bedarf{21, Kristallin},
    Bedarf{21, Fluessig},
    Bedarf{21, Masse},
    Bedarf{22, Kristallin},
    Bedarf{22, Fluessig},
};

bool needsElectrons(const Groesse& groesse)
{
    return groesse.elementwert == nullptr && groesse.grundlage != Grundlage::Teilchen;
}

std::vector<Datum> bedarf(const Groesse& groesse, Elementdichte dichte)
{
    std::vector<Datum> daten;
    for (const Bedarf& zeile : Tabellenbedarf) {
        if (zeile.groesse == groesse.kennzahl)
            daten.push_back(zeile.datum);
    }
    if (groesse.elementwert == nullptr)
        daten = {dichte == Elementdichte::Fluessig ? Fluessig : Kristallin, Masse};
    if (needsElectrons(groesse))
        daten.push_back(Valenz);
    return daten;
}

/// "a", "a und b", "a, b und c".
std::string listed(const std::vector<Datum>& daten)
{
    std::string text;
    for (std::size_t i = 0; i < daten.size(); ++i)
        text.append(i == 0 ? "" : i + 1 == daten.size() ? " und " : ", ").append(daten[i].name);
    return text;
}

} // namespace

std::string elementluecke(int groesse, const clsElement& element, Elementdichte dichte)
{
    const Groesse* const eigenschaft = findGroesse(groesse);
    if (eigenschaft == nullptr)
        return {};
    std::vector<Datum> fehlt = bedarf(*eigenschaft, dichte);
    std::erase_if(fehlt, [&](const Datum& datum) { return !istUnbekannt(std::invoke(datum.wert, element)); });
    if (!fehlt.empty())
        return listed(fehlt) + " unbekannt";
    return needsElectrons(*eigenschaft) && element.Valenz() == 0 ? "bei Valenz 0 nicht berechenbar"
                                                                 : "nicht berechenbar";
}

} // namespace zerna
