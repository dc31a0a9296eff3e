#include "model/einwaage/Wiegeauskunft.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/Zahlentext.h"
#include "model/einwaage/Einwaage.h"

namespace zerna {

namespace {

/// "305,5 mg Cu"
std::string mengeText(const clsCalc& calc, int komponente, float masse)
{
    std::string text = massentext(masse);
    if (text.find('E') == std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with(','))
            text.pop_back();
    }
    return text + " mg " + calc.Element_Symbol(komponente);
}

void append(std::string& list, const std::string& entry) { list += (list.empty() ? "" : ", ") + entry; }

/// The masses once every component that has a share was weighed.
std::optional<std::vector<float>> completeMassen(const clsCalc& calc, std::span<const Wiegung> wiegungen)
{
    std::vector<float> massen;
    for (int i = 0; const Wiegung& w : wiegungen) {
        const bool isWanted = calc.Element_Prozente(i++) != 0;
        if (isWanted && !w.ist)
            return std::nullopt;
        massen.push_back(w.ist.value_or(0));
    }
    return massen;
}

/// The largest deviation of at% from the wanted ones.
float largestDeviation(const clsCalc& calc, std::span<const float> prozente)
{
    float largest = 0;
    for (int i = 0; const float prozent : prozente)
        largest = std::max(largest, std::abs(prozent - calc.Element_Prozente(i++)));
    return largest;
}

/// What is missing and what is too much, as lists.
struct Reste {
    std::string missing, tooMuch;
};

Reste resteOf(const clsCalc& calc, std::span<const Wiegung> wiegungen, const std::optional<Wiegebezug>& bezug)
{
    constexpr float Small = 0.001F; // of the target mass
    Reste reste;
    for (int i = 0; const Wiegung& w : wiegungen) {
        const float rest = w.soll - w.ist.value_or(0);
        const bool isReference = bezug && bezug->komponente == i;
        if (!isReference && std::abs(rest) > Small * w.soll)
            append(rest > 0 ? reste.missing : reste.tooMuch, mengeText(calc, i, std::abs(rest)));
        ++i;
    }
    return reste;
}

std::string sentence(const Reste& reste, bool hasReference)
{
    std::string text = reste.missing.empty() ? "" : "Noch " + reste.missing;
    if (reste.tooMuch.empty())
        return text;
    text += (text.empty() ? "" : "; ") + reste.tooMuch + " zu viel";
    return hasReference ? text : text + " (Eingabetaste: die übrigen darauf beziehen)";
}

} // namespace

std::string wiegestand(const clsCalc& calc, std::span<const Wiegung> wiegungen, const std::optional<Wiegebezug>& bezug)
{
    if (wiegungen.empty() || std::ranges::any_of(wiegungen, istUnbekannt, &Wiegung::soll))
        return {};
    const bool hasNegative = std::ranges::any_of(wiegungen, [](const Wiegung& w) { return w.soll < 0; });
    if (const auto hindernis = sollmassenHindernis(calc, static_cast<int>(wiegungen.size())); hasNegative && hindernis)
        return calc.Element_Symbol(hindernis->komponente) + " " + hindernis->grund + ".";
    if (bezug && wiegungen[static_cast<std::size_t>(bezug->komponente)].ist != bezug->masse)
        return "Die Sollmassen beziehen sich noch auf " + mengeText(calc, bezug->komponente, bezug->masse)
            + " (Eingabetaste: neu beziehen)";
    if (const auto massen = completeMassen(calc, wiegungen)) {
        const float deviation = largestDeviation(calc, gewogeneAtomprozente(calc, *massen));
        if (deviation <= Abweichungstoleranz)
            return "Alles eingewogen, größte Abweichung " + fixedText(deviation, 2) + " at%";
    }
    return sentence(resteOf(calc, wiegungen, bezug), bezug.has_value());
}

} // namespace zerna
