#include "model/eingabe/Komposition.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/eingabe/Legierung.h"

namespace zerna {

namespace {

struct Dichteart {
    std::string_view text;
    float (clsElement::*value)() const;
};

constexpr std::array<Dichteart, 3> Dichtearten{{
    {"amorph", &clsElement::Dichte_Amorph},
    {"flüssig", &clsElement::Dichte_Fluessig},
    {"kristallin", &clsElement::Dichte_Kristallin},
}};

/// Electrons of an orbital group; 0 for a damaged record whose counts cannot be added.
float electronsOf(const clsElement& element, int orbital)
{
    return valueOr(0, [&] { return static_cast<float>(element.Orbital_L_Elektronen(orbital)); });
}

} // namespace

std::vector<std::string_view> dichtearten()
{
    std::vector<std::string_view> choices;
    for (const Dichteart& art : Dichtearten)
        choices.push_back(art.text);
    return choices;
}

bool hatDichte(const clsElement& element, std::string_view choice)
{
    return std::ranges::count(dichteauswahl(element), choice) > 0;
}

std::vector<std::string_view> dichteauswahl(const clsElement& element)
{
    std::vector<std::string_view> choices;
    for (const Dichteart& art : Dichtearten) {
        if (!istUnbekannt((element.*art.value)()))
            choices.push_back(art.text);
    }
    choices.push_back(AndereWahl);
    return choices;
}

float dichteFor(const clsElement& element, std::string_view choice)
{
    const auto* const art = std::ranges::find(Dichtearten, choice, &Dichteart::text);
    return art == Dichtearten.end() ? 0 : (element.*art->value)();
}

std::vector<Valenzeintrag> valenzauswahl(const clsElement& element)
{
    std::vector<Valenzeintrag> choices{{"Standard", ValenzStandard}};
    for (int orbital = 0; orbital <= 3; ++orbital) {
        if (electronsOf(element, orbital) != 0)
            choices.push_back({OrbitalLabel(orbital), orbital});
    }
    choices.push_back({AndereWahl, ValenzAndere});
    return choices;
}

float valenzFor(const clsElement& element, int code)
{
    if (code == ValenzStandard)
        return element.Valenz();
    return code == ValenzAndere ? 0 : electronsOf(element, code);
}

int naechsteKomponentenzahl(int count, int step)
{
    const int next = count + step;
    if (next > MaxKomponenten)
        return 1;
    return next < 1 ? MaxKomponenten : next;
}

int gespeicherteKomponentenzahl(std::string_view setting)
{
    constexpr int Standard = 2;
    const bool valid = setting.size() == 1 && setting.front() >= '0' && setting.front() <= '0' + MaxKomponenten;
    return valid ? setting.front() - '0' : Standard;
}

Eingabefeld ausgleich(std::span<const float> prozente)
{
    Eingabefeld feld;
    readAusgleich(feld, prozente);
    return feld;
}

void readAusgleich(Eingabefeld& feld, std::span<const float> prozente)
{
    constexpr int Stellen = 7;
    constexpr float Klein = 0.01F;
    constexpr float FirstWithExponent = 1e15F;
    float sum = 0;
    for (const float prozent : prozente)
        sum = toSingle(static_cast<double>(sum) + prozent);
    const float rest = toSingle(100.0 - sum);
    // Mostly the shortest text is short enough, and reads back as what it was made of.
    const std::string text = textOfSingle(rest);
    const bool isPlain = rest == 0 || (std::abs(rest) >= Klein && std::abs(rest) < FirstWithExponent);
    if (isPlain && text.size() <= Stellen)
        writeZahl(feld, text, rest);
    else
        readZahl(feld, textWithDigits(rest, Stellen));
}

} // namespace zerna
