#include "model/rechnung/clsCalc.h"

#include <algorithm>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Konstanten.h"

namespace zerna {

clsCalc::clsCalc(const ElementCollection& elements, const int& komponentenzahl, clsParser& parser)
    : m_elements(elements)
    , m_komponentenzahl(komponentenzahl)
    , m_parser(parser)
{
    Class_Initialize();
}

float clsCalc::Raumausfuellung() const
{
    return valueOr(0, [&] {
        const double radius = 5.0 / 4.0 * Friedelwellenlaenge();
        return toSingle(radius * radius * radius * m_teilchenzahldichte * (Pi / 6) * KubiknanometerInKubikmeter);
    });
}

float clsCalc::D_EF() const
{
    return valueOr(0, [&] { return toSingle(quotient(3.0 / 2.0 * m_valenz, Fermienergie())); });
}

float clsCalc::Fermitemperatur() const { return toSingle(quotient(Fermienergie() * ElektronvoltInJoule, m_boltzmann)); }

float clsCalc::Energie_Elektron() const { return toSingle(3.0 / 5.0 * Fermienergie()); }

float clsCalc::Energie_El_System() const
{
    return toSingle(power(Fermienergie() * ElektronvoltInJoule, 5.0 / 2.0) * m_systemFactor
        * (ElektronvoltInJoule / NanometerInMeter));
}

float clsCalc::Kompressionsmodul() const
{
    return toSingle(m_teilchenzahldichte * (2.0 / 3.0) * KubiknanometerInKubikmeter * m_valenz * Fermienergie()
        * ElektronvoltInJoule);
}

float clsCalc::Element_Masse(int index) const
{
    const clsElement* const element = elementAt(index);
    return element != nullptr ? element->Masse() : 0;
}

std::string clsCalc::Element_Name(int index) const
{
    const clsElement* const element = elementAt(index);
    return element != nullptr ? element->Name() : std::string();
}

std::string clsCalc::Element_Symbol(int index) const
{
    const clsElement* const element = elementAt(index);
    return element != nullptr ? element->symbol() : std::string();
}

float clsCalc::Element_Prozente(int index) const
{
    return elementAt(index) != nullptr ? m_komponenten.at(static_cast<std::size_t>(index)).prozent : 0;
}

void clsCalc::Element_Add(int index, std::string_view key, float prozent)
{
    const auto& element = m_elements.Item(key);
    if (index < 0 || index >= MaxKomponenten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    Legierungskomponente& komponente = m_komponenten.at(static_cast<std::size_t>(index));
    komponente.element = element;
    komponente.prozent = prozent;
    Neu_Berechnen();
}

void clsCalc::Legierung_Setzen(std::span<const Legierungskomponente> komponenten)
{
    if (komponenten.empty() || komponenten.size() > m_komponenten.size())
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    for (std::size_t i = 0; const Legierungskomponente& k : komponenten)
        m_komponenten.at(i++).setze(k.element, k.prozent, k.dichte, k.valenz);
    berechne(komponenten);
}

float clsCalc::Fermienergie() const
{
    const double density = electronDensity();
    if (m_lastFermi.elektronendichte != density)
        m_lastFermi = {density, orUnbekannt([&] { return toSingle(m_fermiFactor * power(density, 2.0 / 3.0)); })};
    return m_lastFermi.fermienergie;
}

float clsCalc::HallKoeffizient() const
{
    return orUnbekannt([&] { return toSingle(quotient(1, electronDensity()) * m_hallFactor); });
}

float clsCalc::Thermokraft() const
{
    return orUnbekannt([&] { return toSingle(power(electronDensity(), -2.0 / 3.0) * m_thermoFactor); });
}

float clsCalc::Plasmonenenergie() const
{
    return orUnbekannt([&] { return toSingle(m_plasmonFactor * squareRoot(electronDensity())); });
}

float clsCalc::Teilchenzahldichte() const { return toSingle(m_teilchenzahldichte * KubiknanometerInKubikmeter); }

void clsCalc::setTeilchenzahldichte(float perCubicMetre)
{
    m_teilchenzahldichte = perCubicMetre;
    Kf_2_Berechnen();
}

void clsCalc::setValenz(float electronsPerAtom)
{
    m_valenz = electronsPerAtom;
    Kf_2_Berechnen();
}

void clsCalc::setBasis(float perCubicMetre, float electronsPerAtom)
{
    m_teilchenzahldichte = perCubicMetre;
    m_valenz = electronsPerAtom;
    m_kf2IsDue = true;
}

float clsCalc::Atomvolumen() const
{
    return hasParticles() ? orUnbekannt([&] { return toSingle(quotient(1, m_teilchenzahldichte)); }) : Unbekannt;
}

float clsCalc::Elektrondichte() const
{
    return hasParticles() ? orUnbekannt([&] { return toSingle(m_teilchenzahldichte / 1e27 * m_valenz); }) : Unbekannt;
}

float clsCalc::Friedelwellenlaenge() const
{
    return hasParticles() ? orUnbekannt([&] { return toSingle(quotient(2 * Pi, Kf_2())); }) : Unbekannt;
}

float clsCalc::Friedelminima(int n) const
{
    const float wavelength = Friedelwellenlaenge();
    if (istUnbekannt(wavelength))
        return Unbekannt;
    return toSingle((static_cast<float>(n) + 5.0 / 4.0) * wavelength);
}

/// The element in slot `index`; null if there is no such slot or it is empty.
const clsElement* clsCalc::elementAt(int index) const
{
    const bool valid = index >= 0 && index < MaxKomponenten;
    return valid ? m_komponenten.at(static_cast<std::size_t>(index)).element.get() : nullptr;
}

/// Calculates from the components in the slots, whose densities and valence texts their elements hold.
void clsCalc::Neu_Berechnen()
{
    try {
        if (m_komponentenzahl > MaxKomponenten)
            throw Laufzeitfehler(Fehler::IndexAusserhalb);
        const auto used = std::span(m_komponenten).first(static_cast<std::size_t>(std::max(0, m_komponentenzahl)));
        for (std::size_t i = 0; i < used.size(); ++i) {
            if (!used[i].element)
                throw Laufzeitfehler(Fehler::ObjektNichtFestgelegt);
            used[i].dichte = used[i].element->Dichte();
            used[i].valenz = valenzOf(*used[i].element, m_gelesen.at(i));
        }
        berechne(used);
    } catch (const Laufzeitfehler&) {
        berechnungGescheitert();
    }
}

/// Sums at%-weighted valence, molar volume and density. Any error makes all three unknown and leaves Kf_2 as it was.
/// Intended: at% are not normalised to a sum of 100; the density is weighted by at%, not by mass, and does not enter
/// the particle number density, which comes from the molar volume.
void clsCalc::berechne(std::span<const Legierungskomponente> komponenten)
{
    try {
        float valenz = 0;
        float molvolumen = 0; // cm³/mol, times 100
        float dichte = 0;
        for (const Legierungskomponente& k : komponenten) {
            if (!k.element || istUnbekannt(k.prozent))
                return berechnungGescheitert();
            const double prozent = k.prozent;
            const float masse = k.element->Masse();
            // A missing density or mass weighed by a small at% would pass for a plausible one.
            const bool missing = prozent != 0 && (istUnbekannt(k.dichte) || istUnbekannt(masse));
            if (missing || k.dichte == 0 || istUnbekannt(k.valenz))
                return berechnungGescheitert();
            valenz = toSingle(valenz + k.valenz * prozent);
            molvolumen = toSingle(molvolumen + quotient(prozent * masse, k.dichte));
            dichte = toSingle(dichte + k.dichte * prozent);
        }
        const float valenzProAtom = toSingle(valenz / 100.0);
        const float mittlereDichte = toSingle(dichte / 100.0);
        molvolumen = toSingle(molvolumen / 100.0);
        setBasis(molvolumen == 0 ? Unbekannt : toSingle(AvogadroProKubikmeter / molvolumen), valenzProAtom);
        m_dichte = mittlereDichte;
    } catch (const Laufzeitfehler&) {
        berechnungGescheitert();
    }
}

void clsCalc::berechnungGescheitert()
{
    Kf_2(); // of what it was before
    m_valenz = Unbekannt;
    m_teilchenzahldichte = Unbekannt;
    m_dichte = Unbekannt;
}

void clsCalc::Class_Initialize()
{
    // Held as a single, which lies below the normal range and so carries about four digits only.
    constexpr float FeldkonstanteMalMasse = 8.065874e-42F;

    m_elementarladung = toSingle(Elementarladung);
    m_elektronmasse = toSingle(Elektronmasse);
    m_feldkonstante = toSingle(Feldkonstante);
    m_planck = toSingle(PlanckReduziert);
    m_boltzmann = toSingle(Boltzmann);
    const double charge = m_elementarladung;
    const double mass = m_elektronmasse;
    const double planck = m_planck;
    const double boltzmann = m_boltzmann;
    const double threePiSquared = 3 * Pi * Pi;
    m_plasmonFactor = toSingle(charge * planck / squareRoot(FeldkonstanteMalMasse) / ElektronvoltInJoule);
    m_kf2Factor = toSingle(2 * power(threePiSquared, 1.0 / 3.0) * NanometerInMeter);
    m_fermiFactor = toSingle(planck * planck / 2 / mass * power(threePiSquared, 2.0 / 3.0) / ElektronvoltInJoule);
    // Intended: the factor 2, see Thermokraft.
    m_thermoFactor =
        toSingle(-2 * boltzmann * boltzmann * mass / (planck * planck * charge * power(3 / Pi, 2.0 / 3.0)));
    m_hallFactor = toSingle(-1 / charge);
    m_systemFactor = power(mass, 3.0 / 2.0) * quotient(2.0 / 5.0 * squareRoot(2) / Pi / Pi, power(planck, 3));
}

void clsCalc::Kf_2_Berechnen() const
{
    m_kf2IsDue = false;
    m_kf2 = orUnbekannt([&] { return toSingle(m_kf2Factor * power(electronDensity(), 1.0 / 3.0)); });
}

/// What the element's valence text comes to; error 13 or the formula's own error if it gives none.
float clsCalc::valenzOf(const clsElement& element, GeleseneValenz& gelesen)
{
    const std::string& text = element.Valenz_Temp();
    if (gelesen.gilt(text, m_elements.Stand()))
        return gelesen.valenz;
    std::vector<Valenzbezug> bezuege;
    const std::string result = m_parser.Parse(text, &bezuege);
    if (m_parser.LastError())
        throw Laufzeitfehler(static_cast<Fehler>(m_parser.LastError()->Nummer));
    gelesen = {text, singleFromText(result), m_elements.Stand(), std::move(bezuege), true};
    return gelesen.valenz;
}

bool clsCalc::GeleseneValenz::gilt(std::string_view heute, std::size_t heutigerStand) const
{
    return istGelesen && text == heute && stand == heutigerStand && std::ranges::all_of(bezuege, &Valenzbezug::gilt);
}

bool clsCalc::hasParticles() const { return m_teilchenzahldichte != 0 && !istUnbekannt(m_teilchenzahldichte); }

} // namespace zerna
