#include "bild/Ternaerangaben.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "bild/Konzentrationstexte.h"
#include "core/Zahlentext.h"
#include "model/reihen/Ternaergroesse.h"

namespace zerna {

namespace {

/// "Al: 2,375 g/cm³, z = 3", which no line break tears apart.
std::string textOf(const Legierungskomponente& k)
{
    return ReplaceText(komponententext(k.element->symbol(), k.dichte, k.valenz), " ", "\u00A0");
}

std::string untertitelOf(std::span<const Legierungskomponente> komponenten)
{
    std::string text;
    for (const Legierungskomponente& k : komponenten)
        text += (text.empty() ? "" : " · ") + textOf(k);
    return text;
}

} // namespace

Ternaerangaben ternaerangaben(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, int groesse, int aufloesung)
{
    Ternaerangaben angaben;
    angaben.gitter = ternaergitter(calc, komponenten, groesse, aufloesung);
    std::ranges::transform(
        komponenten, angaben.legierung.begin(), [](const Legierungskomponente& k) { return k.prozent / 100.0; });
    angaben.titel = groessentitel(*findReihengroesse(groesse));
    angaben.untertitel = untertitelOf(komponenten);
    const auto quantity = std::make_shared<Ternaergroesse>(calc, komponenten, groesse);
    angaben.groesse = [quantity](const Anteile3& anteile) {
        return quantity->wert({anteile[0] * 100, anteile[1] * 100, anteile[2] * 100});
    };
    return angaben;
}

} // namespace zerna
