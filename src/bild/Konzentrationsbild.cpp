#include "bild/Konzentrationsbild.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "bild/Konzentrationstexte.h"
#include "bild/Kurvenfarben.h"
#include "core/Anzeigetext.h"
#include "core/CheckedArithmetic.h"
#include "model/rechnung/Werttext.h"
#include "model/reihen/Anteile.h"

namespace zerna {

namespace {

constexpr Farbe Legierungsfarbe{200, 0, 0};
constexpr Farbe Zweitfarbe{90, 90, 90};
constexpr std::size_t MeisteVarianten = 8; // drawn at once

/// Of singles that two ways of computing the same leave apart.
constexpr double Gleich = 1e-5;

std::vector<Punkt> punkte(const Reihe& reihe)
{
    std::vector<Punkt> result;
    result.reserve(reihe.size());
    for (std::size_t i = 0; i < reihe.size(); ++i)
        result.push_back({static_cast<double>(i),
            istUnbekannt(reihe.at(i)) ? std::numeric_limits<double>::quiet_NaN() : static_cast<double>(reihe.at(i))});
    return result;
}

bool sindGleich(const Reihe& a, const Reihe& b)
{
    double largest = 0;
    double difference = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (istUnbekannt(a.at(i)) != istUnbekannt(b.at(i)))
            return false;
        if (istUnbekannt(a.at(i)))
            continue;
        largest = std::max(largest, std::abs(static_cast<double>(a.at(i))));
        difference = std::max(difference, std::abs(static_cast<double>(a.at(i)) - b.at(i)));
    }
    return difference <= Gleich * largest;
}

/// None where the series cannot be computed, though that of the alloy can.
template <class Make>
std::optional<Reihe> orNothing(Make&& make)
{
    try {
        return make();
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

/// The values of the curves on one side; none without any.
std::optional<Bereich> wertebereich(const std::vector<Kurve>& kurven, bool rechts)
{
    std::optional<Bereich> range;
    for (const Kurve& kurve : kurven) {
        for (const Punkt& punkt : kurve.punkte) {
            if (kurve.rechts != rechts || std::isnan(punkt.y))
                continue;
            if (!range)
                range = Bereich{punkt.y, punkt.y};
            range->min = std::min(range->min, punkt.y);
            range->max = std::max(range->max, punkt.y);
        }
    }
    return range;
}

/// The range for all values, with the margin of the given one.
Bereich ganzerBereich(const std::vector<Kurve>& kurven, bool rechts)
{
    const Bereich values = wertebereich(kurven, rechts).value_or(Bereich());
    if (values.min == 0 && values.max == 0)
        return {-1, 1};
    return yBereich(static_cast<float>(values.min), static_cast<float>(values.max));
}

/// Puts the parts of a diagram together, one after the other.
class Bildner {
public:
    Bildner(const clsCalc& calc, const Eingabe& eingabe, const Diagrammwahl& wahl, const Kurvenschalter& schalter)
        : m_calc(calc)
        , m_eingabe(eingabe)
        , m_legierung(eingabe.legierung().value())
        , m_wahl(wahl)
        , m_groesse(reihengroesse(wahl.groesse))
        , m_symbol(eingabe.zeile(wahl.komponente).element->symbol())
        , m_art(schalter.mischungsreihe ? Reihenart::Summe100 : Reihenart::Gegeben)
    {
    }

    Konzentrationsbild bild(bool ganzeKurve, const Vergleichskurven& vergleich)
    {
        m_result.reihe = reihe(m_groesse.kennzahl, m_art);
        m_result.bild.titel = groessentitel(m_groesse) + " über at% " + m_symbol;
        m_result.bild.untertitel = legierungstext(m_eingabe);
        m_result.bild.x = {"at% " + m_symbol, {0, 100}, "at% " + m_symbol};
        m_result.bild.y = {groessentitel(m_groesse), {}, ableseeinheit(m_groesse)};
        add({reihenname(m_groesse, m_art), punkte(m_result.reihe), kurvenaussehen(0).farbe});
        addMischung();
        addZweite();
        addGehaltene(vergleich.gehaltene);
        addVarianten(vergleich.varianten);
        addLegierung();
        setRanges(ganzeKurve);
        return std::move(m_result);
    }

private:
    Mischungsreihe rechner(int groesse, Reihenart art) const
    {
        return {m_calc, m_legierung.komponenten(), m_wahl.komponente, groesse, art};
    }

    Reihe reihe(int groesse, Reihenart art) const { return rechner(groesse, art).reihe(); }

    /// Each curve is a series of its own.
    void add(Kurve kurve)
    {
        kurve.reihe = static_cast<int>(m_result.bild.kurven.size());
        m_result.bild.kurven.push_back(std::move(kurve));
    }

    void sageAmBildschirm(std::string hinweis) { m_result.bild.bildschirmhinweise.push_back(std::move(hinweis)); }
    void sage(std::string hinweis) { m_result.bild.hinweise.push_back(std::move(hinweis)); }

    /// The mixture where the given series is another curve.
    void addMischung()
    {
        if (m_art == Reihenart::Summe100)
            return;
        const auto mischung = orNothing([&] { return reihe(m_groesse.kennzahl, Reihenart::Summe100); });
        if (!mischung)
            return;
        if (sindGleich(m_result.reihe, *mischung)) {
            m_result.bild.kurven.front().name = reihenname(m_groesse, Reihenart::Summe100);
            return;
        }
        add({reihenname(m_groesse, Reihenart::Summe100), punkte(*mischung), kurvenaussehen(0).farbe,
            Linienart::Gestrichelt});
        sage(abweichungsgrund(m_groesse, m_eingabe, m_wahl.komponente, m_art));
    }

    void addZweite()
    {
        const Groesse* const zweite = m_wahl.zweiteGroesse ? findReihengroesse(*m_wahl.zweiteGroesse) : nullptr;
        if (zweite == nullptr || zweite == &m_groesse)
            return;
        const auto werte = orNothing([&] { return reihe(zweite->kennzahl, m_art); });
        if (!werte)
            return sage(std::string(zweite->name) + " hat hier keine Werte.");
        m_result.bild.rechts = Achse{groessentitel(*zweite), {}, ableseeinheit(*zweite)};
        m_result.bild.rechts->rund = true;
        add({std::string(zweite->name) + std::string(RechteAchse), punkte(*werte), Zweitfarbe, Linienart::Strichpunkt,
            Punktzeichen::Keines, true});
        m_result.bild.kurven.back().reihe = m_result.bild.kurven.front().reihe;
    }

    void addGehaltene(std::span<const GehalteneKurve> kurven)
    {
        int hidden = 0;
        for (const GehalteneKurve& kurve : kurven) {
            const bool isRight = m_result.bild.rechts && kurve.groesse == m_wahl.zweiteGroesse;
            const Kurvenaussehen look = kurvenaussehen(++m_looks);
            if (!isRight && kurve.groesse != m_groesse.kennzahl) {
                ++hidden;
                continue;
            }
            add({kurvenname(kurve), punkte(kurve.werte), look.farbe, look.linie, Punktzeichen::Keines, isRight});
            if (kurve.symbol != m_symbol) {
                m_result.bild.kurven.back().einheit = "at% " + kurve.symbol;
                m_result.bild.x.titel = "at%"; // of whichever component
            }
        }
        if (hidden > 0)
            sageAmBildschirm(hidden == 1
                    ? "Eine festgehaltene Kurve zeigt eine andere Größe und ist verborgen."
                    : std::to_string(hidden) + " festgehaltene Kurven zeigen andere Größen und sind verborgen.");
    }

    /// Those that can be computed and have the component of the axis.
    void addVarianten(std::span<const Variante> varianten)
    {
        std::size_t drawn = 0;
        for (const Variante& variante : varianten) {
            const auto values = drawn < MeisteVarianten ? variantenreihe(variante.eingabe) : std::nullopt;
            if (!values)
                continue;
            const Kurvenaussehen look = kurvenaussehen(++m_looks);
            add({variante.name, punkte(*values), look.farbe, look.linie});
            ++drawn;
        }
        if (const std::size_t missing = varianten.size() - drawn; missing > 0)
            sageAmBildschirm(missing == 1 ? "Eine Variante ist nicht gezeichnet."
                                          : std::to_string(missing) + " Varianten sind nicht gezeichnet.");
    }

    std::optional<Reihe> variantenreihe(const Eingabe& eingabe) const
    {
        int row = 0;
        while (
            row < eingabe.anzahl() && !(eingabe.zeile(row).element && eingabe.zeile(row).element->symbol() == m_symbol))
            ++row;
        if (row == eingabe.anzahl() || !eingabe.istVollstaendig() || eingabe.hindernis())
            return std::nullopt;
        return orNothing([&] {
            const Legierung legierung = eingabe.legierung().value();
            return Mischungsreihe(m_calc, legierung.komponenten(), row, m_groesse.kennzahl, m_art).reihe();
        });
    }

    /// The alloy as the results have it.
    void addLegierung()
    {
        const double x = m_eingabe.prozentInKraft(m_wahl.komponente).wert;
        const bool isDichte = m_groesse.kennzahl == GroesseDichte;
        const float value = orUnbekannt([&] { return isDichte ? mittlereDichte() : eigenerWert(); });
        if (istUnbekannt(value) || x < 0 || x > 100)
            return;
        nenneAbweichung(orUnbekannt([&] { return rechner(m_groesse.kennzahl, Reihenart::Summe100).wert(x); }), value);
        add({legierungsname(m_eingabe) + ": " + anzeigetext(werttext(value, m_groesse.einheit)), {{x, value}},
            Legierungsfarbe, Linienart::Keine, Punktzeichen::Kreis});
    }

    /// Says why the mixture does not lead through the alloy.
    void nenneAbweichung(float mischung, float legierung)
    {
        const auto [smallest, largest] = endValues(m_result.reihe);
        const double size = std::max({std::abs(legierung), std::abs(smallest), std::abs(largest)});
        if (istUnbekannt(mischung) || std::abs(mischung - legierung) <= Gleich * size)
            return;
        if (m_groesse.kennzahl != GroesseDichte)
            sage("Die Mischungsreihe führt nicht durch die Legierung: Deren Anteile ergeben zusammen nicht 100 %, oder "
                 "die der anderen Komponenten heben sich auf.");
        else if (m_art == Reihenart::Summe100)
            sage(abweichungsgrund(m_groesse, m_eingabe, m_wahl.komponente, m_art));
    }

    /// With the at% as they are entered, also where these do not sum up to 100.
    float eigenerWert() const
    {
        const auto komponenten = m_legierung.komponenten();
        std::array<double, MaxKomponenten> prozente{};
        std::ranges::transform(komponenten, prozente.begin(), &Legierungskomponente::prozent);
        const auto teile = anteile(komponenten);
        clsCalc scratch = m_calc;
        setComposition(scratch, std::span(teile).first(komponenten.size()), prozente);
        return wert(m_groesse, scratch);
    }

    /// Intended: by at%, as in the results.
    float mittlereDichte() const
    {
        float sum = 0;
        for (const Legierungskomponente& k : m_legierung.komponenten())
            sum = toSingle(sum + static_cast<double>(k.dichte) * k.prozent);
        return toSingle(sum / 100.0);
    }

    void setRanges(bool ganzeKurve)
    {
        Kurvenbild& bild = m_result.bild;
        if (bild.rechts)
            bild.rechts->bereich = ganzerBereich(bild.kurven, true);
        const auto [smallest, largest] = endValues(m_result.reihe);
        bild.y.bereich = ganzeKurve ? ganzerBereich(bild.kurven, false) : yBereich(smallest, largest);
        const Bereich values = wertebereich(bild.kurven, false).value_or(bild.y.bereich);
        m_result.laeuftHinaus = values.min < bild.y.bereich.min || values.max > bild.y.bereich.max;
    }

    const clsCalc& m_calc;
    const Eingabe& m_eingabe;
    Legierung m_legierung;
    const Diagrammwahl& m_wahl;
    const Groesse& m_groesse;
    std::string m_symbol; // of the component along the axis
    Reihenart m_art;
    std::size_t m_looks = 0; // of the last curve beside that of the alloy
    Konzentrationsbild m_result;
};

} // namespace

Konzentrationsbild konzentrationsbild(const clsCalc& calc, const Eingabe& eingabe, const Diagrammwahl& wahl,
    const Kurvenschalter& schalter, const Vergleichskurven& vergleich)
{
    return Bildner(calc, eingabe, wahl, schalter).bild(schalter.ganzeKurve, vergleich);
}

GehalteneKurve gehalteneKurve(
    const Konzentrationsbild& bild, const Eingabe& eingabe, const Diagrammwahl& wahl, const Kurvenschalter& schalter)
{
    return {legierungsname(eingabe), eingabe.zeile(wahl.komponente).element->symbol(), wahl.groesse,
        schalter.mischungsreihe ? Reihenart::Summe100 : Reihenart::Gegeben, bild.reihe};
}

} // namespace zerna
