#include "model/eingabe/Anteilseinheit.h"

#include <algorithm>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/eingabe/Massenprozent.h"

namespace zerna {

namespace {

std::vector<Eingabefeld> ohneWert(std::size_t count, const Eingabefehler& fehler)
{
    return std::vector(count, Eingabefeld{{}, Unbekannt, fehler});
}

bool lacksMass(const Anteilsangabe& angabe)
{
    return angabe.element != nullptr && istUnbekannt(angabe.element->Masse());
}

/// Why the parts cannot be converted at all; empty if they can.
std::vector<Eingabefeld> hindernis(std::span<const Anteilsangabe> angaben)
{
    if (std::ranges::any_of(angaben, [](const auto& angabe) { return angabe.anteil->fehler.has_value(); }))
        return ohneWert(angaben.size(), {"Es sind nicht alle Anteile eingetragen"});
    if (const auto found = std::ranges::find_if(angaben, lacksMass); found != angaben.end()) {
        auto felder = ohneWert(angaben.size(), {"Die Masse von " + found->element->Name() + " ist nicht bekannt"});
        for (std::size_t i = 0; i < felder.size(); ++i) {
            if (lacksMass(angaben[i]))
                felder[i].fehler = {
                    "Masse % und at% hängen über die Masse des Elements zusammen, die nicht bekannt ist", 0,
                    "at% eintragen oder ein anderes Element wählen."};
        }
        return felder;
    }
    if (std::ranges::any_of(angaben, [](const auto& angabe) { return angabe.element == nullptr; }))
        return ohneWert(angaben.size(), {"Es ist nicht für jede Komponente ein Element gewählt"});
    return {};
}

} // namespace

std::string_view einheitenname(Anteilseinheit einheit) { return einheit == Anteilseinheit::Atom ? "at%" : "Masse %"; }

std::vector<Eingabefeld> umgerechnet(std::span<const Anteilsangabe> angaben, Anteilseinheit einheit)
{
    std::vector<Eingabefeld> felder = hindernis(angaben);
    if (!felder.empty())
        return felder;
    std::vector<double> anteile;
    std::vector<float> massen;
    for (const auto& [anteil, element] : angaben) {
        anteile.push_back(anteil->wert);
        massen.push_back(element->Masse());
    }
    constexpr int Stellen = 7;
    const bool toAtoms = einheit == Anteilseinheit::Atom;
    for (const double prozent : toAtoms ? atomprozente(anteile, massen) : massenprozente(anteile, massen)) {
        const auto wert = static_cast<float>(prozent);
        if (istUnbekannt(wert))
            return ohneWert(angaben.size(),
                {"Zusammen ergeben die Anteile keine Legierung", 0,
                    std::string(einheitenname(andere(einheit))) + " ändern."});
        felder.push_back({textWithDigits(wert, Stellen), wert});
    }
    return felder;
}

} // namespace zerna
