#include <algorithm>
#include <cmath>
#include <map>
#include <random>

#include "core/Zahlentext.h"
#include "model/eingabe/Eingabe.h"
#include "model/rechnung/Einzelheiten.h"
#include "model/rechnung/Ergebnisse.h"
#include "model/rechnung/Groessentabelle.h"
#include "model/reihen/PSEReihe.h"
#include "model/reihen/Ternaergitter.h"
#include "support/RechnerTest.h"

namespace zerna {

namespace {

using Wert = std::optional<double>; // no value: unknown

/// Mean valence, particles per m³, density and mass over volume of an alloy.
struct Basis {
    Wert z, n, rho, byMass;
};

constexpr double ElementaryCharge = 1.602176634e-19;

/// Result line `zeile` from the radius of the Fermi sphere, in SI units with the constants of 2019, then in the line's
/// unit.
Wert modell(int zeile, const Basis& basis)
{
    constexpr double Pi = 3.14159265358979323846;
    constexpr double hBar = 6.62607015e-34 / (2 * Pi);
    constexpr double e = ElementaryCharge;
    constexpr double kB = 1.380649e-23;
    constexpr double m = 9.1093837015e-31;
    constexpr double epsilon = 8.8541878128e-12;
    const double z = basis.z.value_or(NAN); // comparisons with it are false
    const double n = basis.n.value_or(NAN);
    const double electrons = z * n;
    const double kF = std::cbrt(3 * Pi * Pi * electrons);
    const double fermi = std::pow(hBar * kF, 2) / (2 * m);
    const double radius = 1e9 * 1.25 * Pi / kF;
    const bool hasVolume = n < 0 || n > 0;
    const bool hasFermi = electrons >= 0;
    const bool hasWave = hasVolume && electrons > 0;
    // Intended: twice the usual thermopower; J/m³ times 1,602e-10 as energy and J/nm³ as modulus, whatever their units
    // say; 0 electrons have 0 states.
    const std::map<int, std::pair<bool, double>> lines{{0, {basis.z.has_value(), z}},
        {1, {basis.n.has_value(), n * 1e-27}}, {2, {basis.rho.has_value(), basis.rho.value_or(0)}},
        {3, {hasVolume, 1 / n}}, {4, {electrons < 0 || electrons > 0, -1 / (electrons * e)}},
        {5, {electrons > 0, -std::pow(Pi * kB, 2) / (e * fermi)}},
        {6, {hasFermi, hBar * std::sqrt(electrons / epsilon / m)}}, {7, {hasFermi, fermi / e}},
        {8, {hasFermi, 2e-9 * kF}}, {9, {hasWave, 1e9 * Pi / kF}}, {10, {hasWave, radius}},
        {11, {hasVolume && basis.z, electrons * 1e-27}}, {13, {hasWave, 1e-25 * Pi / 6 * std::pow(radius, 3) * n}},
        {14, {hasFermi, electrons > 0 ? 1.5 * z * e / fermi : 0}}, {15, {hasFermi, fermi / kB}},
        {16, {hasFermi, 0.6 * fermi / e}}, {17, {hasFermi, 0.6e9 * e * electrons * fermi}},
        {18, {hasFermi, 2e-27 / 3 * electrons * fermi}}};
    const auto& [isKnown, value] = lines.at(zeile);
    return isKnown ? Wert(value) : Wert();
}

void expectWert(float value, const Wert& expected, std::string_view what, double tolerance = 2e-5)
{
    EXPECT_EQ(!istUnbekannt(value), expected.has_value()) << what << ' ' << value << ' ' << expected.value_or(0);
    if (expected && !istUnbekannt(value)) {
        EXPECT_NEAR(value, *expected, tolerance * std::abs(*expected)) << what;
    }
}

} // namespace

/// Alloys drawn at random from the shipped elements, one without a mass and one without a valence.
struct ModellTest : RechnerTest {
    ModellTest()
    {
        addElements();
        ElementRecord record = elements.Item("Al")->record();
        record.symbol = "Xm";
        record.Masse = Unbekannt;
        addElement(record);
        record = elements.Item("Al")->record();
        record.symbol = "Xz";
        record.Valenz = Unbekannt;
        addElement(record);
        for (const auto& element : elements)
            keys.push_back(element->symbol());
    }

    std::string one(const std::vector<std::string>& of) { return of.at(random() % of.size()); }

    void draw()
    {
        eingabe = Eingabe(elements);
        eingabe.setAnzahl(1 + static_cast<int>(random() % 4));
        for (int i = 0; i < eingabe.anzahl(); ++i) {
            eingabe.waehleElement(
                i, random() % 4 != 0 ? one({"Al", "Cu", "Na", "Zn", "Mg", "Fe", "Xm", "Xz"}) : one(keys));
            if (random() % 5 == 0) {
                eingabe.waehleDichte(i, AndereWahl);
                eingabe.setDichte(i, one({"0", "-2", "2,5", "", "x", "<unbekannt>", "7"}));
            }
            if (random() % 5 == 0) {
                eingabe.waehleValenz(i, ValenzAndere);
                eingabe.setValenz(i, one({"", "0", "0-3", "2", "5/2", "1/0", "1e39", "z_Cu", "-1"}));
            }
        }
        for (int i = 0; i < eingabe.anzahl(); ++i)
            eingabe.setProzentOhneAusgleich(i, one({"50", "25", "0", "120", "-20", "12,5"}));
    }

    using Komponenten = std::span<const Legierungskomponente>;

    /// The base quantities at some at%; all unknown if one component is, unless it does not count.
    static Basis basis(Komponenten komponenten, const std::vector<double>& prozente, bool strict)
    {
        double z = 0;
        double volume = 0;
        double rho = 0;
        double mass = 0;
        for (std::size_t i = 0; i < komponenten.size(); ++i) {
            const Legierungskomponente& k = komponenten[i];
            const bool counts = strict || prozente[i] != 0;
            if (istUnbekannt(k.valenz) || k.dichte == 0
                || (counts && (istUnbekannt(k.dichte) || istUnbekannt(k.element->Masse()))))
                return {};
            z += prozente[i] * k.valenz / 100;
            const double moles = prozente[i] == 0 ? 0 : prozente[i] / 100;
            mass += moles * k.element->Masse();
            volume += moles * k.element->Masse() / k.dichte;
            rho += prozente[i] * k.dichte / 100;
        }
        if (volume == 0)
            return {z, strict ? Wert(0) : Wert(), rho, {}};
        return {z, 6.02214076e29 / volume, rho, mass / volume};
    }

    void checkResults(const Basis& expected)
    {
        const Tabelle tabelle = groessentabelle(calc);
        Ergebnistexte texte;
        berechneErgebnisse(calc, texte);
        const std::string datei = ergebnisdatei(calc, {}, texte);
        for (const Groesse& zeile : ergebniszeilen()) {
            const Wert value = modell(zeile.zeile, expected);
            expectWert(wert(zeile, calc), value, zeile.beschriftung);
            const Ergebnistext& text = texte.at(static_cast<std::size_t>(zeile.zeile));
            EXPECT_EQ(text.known, value.has_value()) << zeile.beschriftung;
            EXPECT_TRUE(text.known || zeile.tippbar || text.text.empty()) << text.text;
            const auto printed =
                std::ranges::find(tabelle.zeilen, zeile.bezeichnung(), [](const auto& row) { return row.front(); });
            EXPECT_EQ(printed != tabelle.zeilen.end(), value.has_value()) << zeile.beschriftung;
            EXPECT_EQ(datei.find(std::string(zeile.beschriftung) + ' ') != std::string::npos,
                value && zeile.zeile < Friedelzeile)
                << zeile.beschriftung;
        }
        const Wert radius = modell(Friedelzeile, expected);
        EXPECT_EQ(datei.find("r(n) = ") != std::string::npos, radius.has_value());
        const std::string marks = friedeldatei(calc);
        expectWert(marks.empty() ? Unbekannt : singleFromText(marks.substr(0, marks.find('\t'))), radius, "fri");
    }

    void checkTextbook(const Basis& expected, Komponenten komponenten)
    {
        const auto textbook = [&](int zeile) { return lehrbuchwert(*findLehrbuch(zeile), calc, komponenten); };
        expectWert(textbook(2), expected.byMass, "density by mass", 1e-5);
        const double inElectronvolt = 1e-27 / ElementaryCharge;
        for (const auto& [zeile, factor] :
            {std::pair(3, 1e27), {5, 0.5}, {17, inElectronvolt / (1e9 * ElementaryCharge)}, {18, 1e18}}) {
            const Wert shown = modell(zeile, expected);
            expectWert(textbook(zeile), shown ? Wert(*shown * factor) : Wert(), "textbook", 1e-5);
        }
    }

    /// A series at its ends and in between; not a number while one component has none. Intended: at 0 at% of the first
    /// the others have what was entered, which is not 100 at% together.
    void checkSeries(Komponenten komponenten)
    {
        const bool computable = basis(komponenten, std::vector<double>(komponenten.size(), 1), true).z.has_value();
        for (const Groesse& groesse : ergebniszeilen()) {
            if (!groesse.ueberLegierungen() || groesse.kennzahl == GroesseDichte)
                continue;
            Reihe reihe{};
            const auto compute = [&] { reihe = konzentrationsreihe(calc, komponenten, 0, groesse.kennzahl); };
            EXPECT_EQ(errorNumber(compute) == 0, computable) << groesse.name;
            for (int i = 0; computable && i <= 100; i += 50) {
                std::vector<double> prozente;
                for (const Legierungskomponente& k : komponenten)
                    prozente.push_back(prozente.empty() ? i : k.prozent * (100.0 - i) / 100);
                expectWert(reihe.at(static_cast<std::size_t>(i)),
                    modell(groesse.zeile, basis(komponenten, prozente, true)), groesse.name);
            }
        }
    }

    void checkTernary(Komponenten komponenten)
    {
        if (komponenten.size() != 3 || !basis(komponenten, {1, 1, 1}, true).z)
            return;
        for (const Groesse& groesse : ergebniszeilen()) {
            if (!groesse.ueberLegierungen())
                continue;
            const Ternaergitter gitter = ternaergitter(calc, komponenten, groesse.kennzahl, 1);
            for (const auto& [i, j] : {std::pair(0, 0), {10, 0}, {2, 3}})
                expectWert(gitter.wert(i, j),
                    modell(groesse.zeile, basis(komponenten, {10.0 * i, 10.0 * j, 100 - 10.0 * (i + j)}, true)),
                    groesse.name);
        }
    }

    std::vector<std::string> keys;
    Eingabe eingabe{elements};
    std::minstd_rand random{20};
};

TEST_F(ModellTest, NoNumberIsDerivedFromTheMarker)
{
    int unknown = 0;
    for (int i = 0; i < 100; ++i) {
        draw();
        std::string name;
        for (const Komponentenzeile& k : eingabe.komponentenzeilen())
            name += k.symbol + '=' + k.prozent + ':' + k.dichte + ':' + k.valenz + ' ';
        SCOPED_TRACE(name);
        const Legierung legierung = eingabe.legierung().value();
        const Komponenten komponenten = legierung.komponenten();
        calc.Legierung_Setzen(komponenten);
        std::vector<double> prozente;
        std::ranges::transform(komponenten, std::back_inserter(prozente), &Legierungskomponente::prozent);
        const Basis expected = basis(komponenten, prozente, false);
        unknown += modell(9, expected) ? 0 : 1;
        checkResults(expected);
        checkTextbook(expected, komponenten);
        checkSeries(komponenten);
        checkTernary(komponenten);
    }
    EXPECT_TRUE(unknown > 20 && unknown < 80) << unknown << " of 100: both kinds are to be among them";
}

TEST_F(ModellTest, ElementsKnowOnlyWhatTheirDataGive)
{
    for (const int kennzahl : psegroessen()) {
        const Groesse& groesse = *findGroesse(kennzahl);
        const PSEReihe reihe = pseReihe(elements, calc, kennzahl);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const clsElement& element = *elements.Item(keys.at(i));
            const auto known = [](float value) { return istUnbekannt(value) ? Wert() : Wert(value); };
            const Wert rho = known(element.Dichte_Fluessig());
            const Wert mass = known(element.Masse());
            const Basis pure{
                known(element.Valenz()), rho && mass ? Wert(6.02214076e29 * *rho / *mass) : Wert(), {}, {}};
            SCOPED_TRACE(keys.at(i));
            if (groesse.formel != nullptr)
                expectWert(reihe.y.at(i), pure.n ? modell(groesse.zeile, pure) : Wert(), groesse.name);
            else if (kennzahl == 19)
                expectWert(reihe.y.at(i), modell(Teilchenzeile, pure) ? Wert(*pure.n * 1e-6) : Wert(), groesse.name);
            else
                EXPECT_TRUE(istUnbekannt(reihe.y.at(i)) || std::abs(reihe.y.at(i)) < 1e30) << groesse.name;
        }
    }
}

TEST_F(ModellTest, DetailsOfAluminiumCopper)
{
    const std::vector<Legierungskomponente> alloy{
        {elements.Item("Al"), 60, 2.377F, 3}, {elements.Item("Cu"), 40, 7.997F, 1}};
    calc.Legierung_Setzen(alloy);
    std::string text;
    for (const auto& [titel, zeile] : einzelheiten(5, &calc, alloy).zeilen)
        text += titel == "Unterschied" ? "" : std::string(titel) + ": " + zeile + '\n';
    EXPECT_EQ(text,
        "Wert: −7,728214·10⁻⁹ V/K²\nFormel: S/T = −π²·k_B²/(e·E_F)\nLehrbuch: −3,8641·10⁻⁹ V/K²\n"
        "Formel dazu: S/T = −π²·k_B²/(2·e·E_F)\nKonstanten: k_B = 1,38065·10⁻²³ J/K, e = 1,6021765·10⁻¹⁹ C, "
        "ħ = 1,0545716·10⁻³⁴ Js, m = 9,109382·10⁻³¹ kg\n");
    EXPECT_EQ(diagrammeinzelheiten(3, &calc, alloy).zeilen.at(1).text, "0,016587 nm³ (Legierung der Ergebnisse)");
    EXPECT_TRUE(diagrammeinzelheiten(7, &calc, alloy).zeilen.empty());
    EXPECT_EQ(einzelheiten(17, nullptr, alloy).zeilen.at(2).text, "unbekannt");
}

} // namespace zerna
