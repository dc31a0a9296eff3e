#include <algorithm>
#include <cmath>
#include <random>

#include "core/ElementCsv.h"
#include "core/Zahlentext.h"
#include "model/Eingabe.h"
#include "model/Ergebnisse.h"
#include "model/Groessentabelle.h"
#include "model/PSEReihe.h"
#include "model/Ternaergitter.h"
#include "support/FilesTest.h"

namespace zerna {

namespace {

using Wert = std::optional<double>; // no value: unknown

/// Mean valence, particles per m³ and density of an alloy.
struct Basis {
    Wert z, n, rho;
};

/// Result line `zeile` by the formulas of the free-electron model.
Wert lehrbuch(int zeile, const Basis& basis)
{
    constexpr double Pi = 3.1415927;
    constexpr double Volt = 1.60217646e-19;
    const auto& [z, n, rho] = basis;
    const bool hasVolume = n && *n != 0;
    const double electrons = z && n ? *z * *n : NAN; // comparisons with it are false
    const auto when = [](bool known, double value) { return known ? Wert(value) : Wert(); };
    const double fermi = 3.6464497e-19 * std::pow(electrons, 2.0 / 3);
    const double kf2 = 6.1873355e-9 * std::cbrt(electrons);
    const double radius = 1.25 * 2 * Pi / kf2;
    const bool hasWave = hasVolume && electrons > 0;
    switch (zeile) {
    case 0:
        return z;
    case 1:
        return when(n.has_value(), n.value_or(0) * 1e-27);
    case 2:
        return rho;
    case 3:
        return when(hasVolume, 1 / n.value_or(0));
    case 4:
        return when(electrons != 0 && z && n, -6.2415097e18 / electrons);
    case 5:
        return when(electrons > 0, -2.0099074e11 * std::pow(electrons, -2.0 / 3));
    case 6:
        return when(electrons >= 0, 3.7132173e-14 * std::sqrt(electrons));
    case 7:
        return when(electrons >= 0, fermi);
    case 8:
        return when(electrons >= 0, kf2);
    case 9:
        return when(hasWave, 2 * Pi / kf2);
    case 10:
        return when(hasWave, radius);
    case 11:
        return when(hasVolume && z, electrons * 1e-27);
    case 13:
        return when(hasWave, std::pow(radius, 3) * n.value_or(0) * Pi / 6 * 1e-25);
    case 14: // Intended: 0 electrons have 0 states
        return when(electrons >= 0, electrons > 0 ? 1.5 * *z / fermi : 0);
    case 15:
        return when(electrons >= 0, fermi * Volt / 1.38065e-23);
    case 16:
        return when(electrons >= 0, 0.6 * fermi);
    case 17:
        return when(electrons >= 0, 0.6 * electrons * fermi * Volt * 1.60217646e-10);
    default:
        return when(electrons >= 0, 2.0 / 3 * electrons * 1e-27 * fermi * Volt);
    }
}

void expectWert(float value, const Wert& expected, std::string_view what)
{
    EXPECT_EQ(!istUnbekannt(value), expected.has_value()) << what << ' ' << value << ' ' << expected.value_or(0);
    if (expected && !istUnbekannt(value)) {
        EXPECT_NEAR(value, *expected, 2e-5 * std::abs(*expected)) << what;
    }
}

} // namespace

/// Alloys drawn at random from the shipped elements, one without a mass and one without a valence.
struct UnbekanntTest : FilesTest {
    UnbekanntTest()
    {
        std::vector<ElementRecord> records = readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv"));
        records.push_back(records.at(12));
        records.back().symbol = "Xm";
        records.back().Masse = Unbekannt;
        records.push_back(records.at(12));
        records.back().symbol = "Xz";
        records.back().Valenz = Unbekannt;
        for (const ElementRecord& record : records) {
            elements.Add(std::make_shared<clsElement>(files, boxes), record.symbol);
            elements.Item(record.symbol)->setRecord(record);
            keys.push_back(record.symbol);
        }
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
        for (std::size_t i = 0; i < komponenten.size(); ++i) {
            const Legierungskomponente& k = komponenten[i];
            const bool counts = strict || prozente[i] != 0;
            if (istUnbekannt(k.valenz) || k.dichte == 0
                || (counts && (istUnbekannt(k.dichte) || istUnbekannt(k.element->Masse()))))
                return {};
            z += prozente[i] * k.valenz / 100;
            volume += prozente[i] == 0 ? 0 : prozente[i] * k.element->Masse() / k.dichte / 100;
            rho += prozente[i] * k.dichte / 100;
        }
        return {z, volume != 0 ? Wert(6.022142e29 / volume) : strict ? Wert(0) : Wert(), rho};
    }

    void checkResults(const Basis& expected)
    {
        const Tabelle tabelle = groessentabelle(calc);
        Ergebnistexte texte;
        berechneErgebnisse(calc, texte);
        const std::string datei = ergebnisdatei(calc, {}, texte);
        for (const Groesse& zeile : ergebniszeilen()) {
            const Wert value = lehrbuch(zeile.zeile, expected);
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
        const Wert radius = lehrbuch(Friedelzeile, expected);
        EXPECT_EQ(datei.find("r(n) = ") != std::string::npos, radius.has_value());
        const std::string marks = friedeldatei(calc);
        expectWert(marks.empty() ? Unbekannt : singleFromText(marks.substr(0, marks.find('\t'))), radius, "fri");
    }

    /// A series at its ends and in between; not a number while one component has none.
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
                    lehrbuch(groesse.zeile, basis(komponenten, prozente, true)), groesse.name);
            }
        }
    }

    void checkTernary(Komponenten komponenten)
    {
        if (komponenten.size() != 3 || !basis(komponenten, {1, 1, 1}, true).z)
            return;
        for (const int zeile : {1, 4, 7, 9}) {
            const Groesse& groesse = ergebniszeile(zeile);
            const Ternaergitter gitter = ternaergitter(calc, komponenten, groesse.kennzahl, 1);
            for (const auto& [i, j] : {std::pair(0, 0), {10, 0}, {2, 3}})
                expectWert(gitter.wert(i, j),
                    lehrbuch(zeile, basis(komponenten, {10.0 * i, 10.0 * j, 100 - 10.0 * (i + j)}, true)),
                    groesse.name);
        }
    }

    ElementCollection elements;
    std::vector<std::string> keys;
    clsParser parser{elements, boxes};
    int count = 1;
    clsCalc calc{elements, count, parser};
    Eingabe eingabe{elements};
    std::minstd_rand random{20};
};

TEST_F(UnbekanntTest, NoNumberIsDerivedFromTheMarker)
{
    int unknown = 0;
    for (int i = 0; i < 50; ++i) {
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
        unknown += lehrbuch(9, expected) ? 0 : 1;
        checkResults(expected);
        checkSeries(komponenten);
        checkTernary(komponenten);
    }
    EXPECT_TRUE(unknown > 10 && unknown < 40) << unknown << " of 50: both kinds are to be among them";
}

TEST_F(UnbekanntTest, ElementsKnowOnlyWhatTheirDataGive)
{
    for (const int kennzahl : psegroessen()) {
        const Groesse& groesse = *findGroesse(kennzahl);
        const PSEReihe reihe = pseReihe(elements, calc, kennzahl);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const clsElement& element = *elements.Item(keys.at(i));
            const auto known = [](float value) { return istUnbekannt(value) ? Wert() : Wert(value); };
            const Wert rho = known(element.Dichte_Fluessig());
            const Wert mass = known(element.Masse());
            const Basis pure{known(element.Valenz()), rho && mass ? Wert(6.022136e29 * *rho / *mass) : Wert(), {}};
            SCOPED_TRACE(keys.at(i));
            if (groesse.formel != nullptr)
                expectWert(reihe.y.at(i), pure.n ? lehrbuch(groesse.zeile, pure) : Wert(), groesse.name);
            else if (kennzahl == 19)
                expectWert(reihe.y.at(i), lehrbuch(Teilchenzeile, pure) ? Wert(*pure.n * 1e-6) : Wert(), groesse.name);
            else
                EXPECT_TRUE(istUnbekannt(reihe.y.at(i)) || std::abs(reihe.y.at(i)) < 1e30) << groesse.name;
        }
    }
}

} // namespace zerna
