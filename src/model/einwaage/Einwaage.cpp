#include "model/einwaage/Einwaage.h"

#include <algorithm>
#include <cmath>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

bool hasAtommasse(const clsCalc& calc, int i)
{
    const float masse = calc.Element_Masse(i);
    return !istUnbekannt(masse) && masse != 0;
}

/// Mass of component i in g/mol; error 5 if the element has none.
double atommasse(const clsCalc& calc, int i)
{
    if (!hasAtommasse(calc, i))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return calc.Element_Masse(i);
}

/// Whether component i of an incomplete alloy has no element or no at%.
bool fehltAnteil(const clsCalc& calc, int i)
{
    return istUnbekannt(calc.Element_Prozente(i)) || calc.Element_Symbol(i).empty();
}

/// Share of component i times its mass: the mass of i in one mole of the alloy, in g.
double massOf(const clsCalc& calc, int i)
{
    const double prozent = calc.Element_Prozente(i);
    if (fehltAnteil(calc, i))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return prozent == 0 ? 0 : prozent / 100 * atommasse(calc, i);
}

/// The first component that is used (has a share, or was weighed) without an atomic mass.
template <class Used>
std::optional<Wiegehindernis> missingAtommasse(const clsCalc& calc, int komponentenzahl, const Used& used)
{
    for (int i = 0; i < komponentenzahl; ++i) {
        if (used(i) && !hasAtommasse(calc, i))
            return Wiegehindernis{i, "hat keine bekannte Atommasse"};
    }
    return std::nullopt;
}

/// FormatValue has no text for 0.
std::string massenangabe(float masse) { return masse == 0 ? "0 mg" : FormatValue(masse, "mg"); }

/// The at% of all components as one line, or why there are none.
std::string prozentzeile(const clsCalc& calc, std::span<const float> massen)
{
    if (const auto hindernis = atomprozentHindernis(calc, massen))
        return "nicht berechenbar: " + calc.Element_Symbol(hindernis->komponente) + " " + hindernis->grund;
    try {
        std::string line;
        for (int j = 0; const float prozent : gewogeneAtomprozente(calc, massen))
            line += calc.Element_Symbol(j++) + ": " + FormatValue(prozent, "at% ");
        return line;
    } catch (const Laufzeitfehler& error) {
        return std::string("nicht berechenbar: ") + error.what();
    }
}

} // namespace

std::vector<float> sollmassen(const clsCalc& calc, int komponentenzahl, float gesamtmasse)
{
    const float q = toSingle(massOf(calc, 0));
    float s = 1;
    for (int i = 1; i < komponentenzahl; ++i)
        s = toSingle(s + quotient(massOf(calc, i), q));
    const float u = toSingle(quotient(gesamtmasse, s));
    std::vector<float> massen;
    for (int i = 0; i < komponentenzahl; ++i)
        massen.push_back(toSingle(quotient(massOf(calc, i) * u, q)));
    return massen;
}

std::vector<float> sollmassenZu(const clsCalc& calc, int komponentenzahl, int referenz, float masse)
{
    const double perMole = quotient(masse, massOf(calc, referenz));
    std::vector<float> massen;
    for (int i = 0; i < komponentenzahl; ++i)
        massen.push_back(toSingle(perMole * massOf(calc, i)));
    return massen;
}

std::vector<float> gewogeneAtomprozente(const clsCalc& calc, std::span<const float> massen)
{
    const auto count = static_cast<int>(massen.size());
    const float q = toSingle(quotient(atommasse(calc, 0), massen.front()));
    float s = 1;
    const auto moles = [&](int i) {
        const float masse = massen[static_cast<std::size_t>(i)];
        return masse == 0 ? 0 : quotient(masse, atommasse(calc, i));
    };
    for (int i = 1; i < count; ++i)
        s = toSingle(s + moles(i) * q);
    const float w = toSingle(quotient(q, s));
    std::vector<float> prozente;
    for (int i = 0; i < count; ++i)
        prozente.push_back(toSingle(moles(i) * w * 100));
    return prozente;
}

std::optional<Wiegehindernis> sollmassenHindernis(const clsCalc& calc, int komponentenzahl)
{
    for (int i = 0; i < komponentenzahl; ++i) {
        if (calc.Element_Symbol(i).empty())
            return Wiegehindernis{i, "hat kein Element"};
        if (istUnbekannt(calc.Element_Prozente(i)))
            return Wiegehindernis{i, "hat keine lesbaren at%"};
        if (calc.Element_Prozente(i) < 0)
            return Wiegehindernis{i, "hat weniger als 0 at%, das lässt sich nicht einwiegen"};
    }
    if (calc.Element_Prozente(0) == 0)
        return Wiegehindernis{0, "hat 0 at% und ist der Bezug der Rechnung"};
    return missingAtommasse(calc, komponentenzahl, [&](int i) { return calc.Element_Prozente(i) != 0; });
}

std::optional<Wiegehindernis> atomprozentHindernis(const clsCalc& calc, std::span<const float> massen)
{
    if (const auto found = std::ranges::find_if(massen, istUnbekannt); found != massen.end())
        return Wiegehindernis{static_cast<int>(found - massen.begin()), "hat keine gültige Masse"};
    if (massen.front() == 0)
        return Wiegehindernis{0, "hat 0 mg und ist der Bezug der Rechnung"};
    return missingAtommasse(
        calc, static_cast<int>(massen.size()), [&](int i) { return massen[static_cast<std::size_t>(i)] != 0; });
}

std::vector<float> massenprozente(std::span<const float> massen)
{
    const float sum = gesamtmasse(massen);
    std::vector<float> prozente;
    for (const float masse : massen)
        prozente.push_back(toSingle(quotient(masse, sum) * 100));
    return prozente;
}

float gesamtmasse(std::span<const float> massen)
{
    float sum = 0;
    for (const float masse : massen)
        sum = toSingle(static_cast<double>(sum) + masse);
    return sum;
}

std::vector<std::string> verlustliste(const clsCalc& calc, std::span<const float> massen, float verlust)
{
    const bool isReadable = std::ranges::none_of(massen, istUnbekannt);
    std::vector<std::string> lines{
        "abgewogene Gesamtmasse: " + (isReadable ? massenangabe(gesamtmasse(massen)) : std::string()),
        "Masseverlust = " + massenangabe(verlust)};
    for (std::size_t k = 0; k < massen.size(); ++k) {
        lines.emplace_back();
        lines.push_back("Masseverlust komplett bei " + calc.Element_Symbol(static_cast<int>(k)) + ": ");
        std::vector<float> left(massen.begin(), massen.end());
        if (!istUnbekannt(left[k]))
            left[k] = toSingle(static_cast<double>(left[k]) - verlust);
        lines.push_back(prozentzeile(calc, left));
        if (left[k] < 0 && !atomprozentHindernis(calc, left))
            lines.push_back("(mehr, als von " + calc.Element_Symbol(static_cast<int>(k)) + " gewogen wurde)");
    }
    return lines;
}

float wiegezahl(float masse)
{
    if (istUnbekannt(masse))
        throw Laufzeitfehler(Fehler::TypenUnvertraeglich);
    return masse;
}

std::string massentext(float masse)
{
    constexpr double SmallestForDecimals = 0.1;
    constexpr int Digits = 4;
    if (masse == 0 || std::abs(masse) >= SmallestForDecimals)
        return fixedText(masse, 3);
    return textWithDigits(masse, Digits);
}

Tabelle wiegetabelle(const clsCalc& calc, int komponentenzahl, float gesamtmasse)
{
    const std::vector<float> massen = sollmassen(calc, komponentenzahl, gesamtmasse);
    const std::vector<float> prozente = massenprozente(massen);
    const auto text = [](float value) { return textOfSingle(value, Dezimaltrenner::Punkt); };
    Tabelle tabelle{{{"symbol"}, {"prozent", true}, {"sollmasse", true}, {"massenprozent", true}}, {}};
    for (int i = 0; i < komponentenzahl; ++i) {
        const auto k = static_cast<std::size_t>(i);
        tabelle.zeilen.push_back(
            {calc.Element_Symbol(i), text(calc.Element_Prozente(i)), text(massen[k]), text(prozente[k])});
    }
    return tabelle;
}

} // namespace zerna
