#include "programm/Rechenkern.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "core/Elementdatei.h"
#include "core/Kuerzung.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Befund.h"
#include "parser/Formelwert.h"
#include "programm/EingebauteTabelle.h"

namespace zerna {

namespace {

/// Throws the reason if there is one.
template <class Error>
void require(const std::string& grund)
{
    if (!grund.empty())
        throw Error(grund);
}

/// The same for a component.
template <class Error>
void require(std::string_view text, const std::string& grund)
{
    if (!grund.empty())
        throw Error(komponentengrund(text, grund));
}

} // namespace

Komponentenangabe komponentenangabe(std::string_view text, Anteilseinheit einheit)
{
    Komponentenangabe angabe;
    require<Aufruffehler>(text, liesAngabe(text, angabe));
    if (float prozent = 0; !readSingle(angabe.prozent, prozent))
        require<Aufruffehler>(text, prozentgrund(angabe.prozent, einheit));
    return angabe;
}

Rechenkern::Rechenkern(MessageBoxes& boxes)
    : m_boxes(boxes)
    , m_parser(m_elements, boxes)
    , m_calc(m_elements, m_komponentenzahl, m_parser)
{
}

void Rechenkern::loadFile(const std::filesystem::path& file)
{
    const std::string name = utf8FromPath(file);
    try {
        const int number = m_files.freeNumber();
        m_files.open(number, file, Zugriff::Eingabe);
        load(number, name);
    } catch (const Laufzeitfehler& error) {
        throw Datenfehler("Datei " + zitierteDatei(name) + ": " + error.what());
    }
}

void Rechenkern::loadBuiltIn()
{
    const int number = m_files.freeNumber();
    m_files.openBytes(number, std::string(EingebauteTabelle.begin(), EingebauteTabelle.end()));
    load(number, "eingebaute Tabelle");
}

void Rechenkern::load(int number, const std::string& name)
{
    m_elements.clear();
    m_satzfehler.gemeldet = false;
    loadElements(m_files, number, m_satzfehler, m_elements, [&](const auto&, int position) {
        if (m_satzfehler.gemeldet)
            throw Datenfehler("Datei " + zitierteDatei(name) + ": Element " + std::to_string(position)
                + " ist nicht lesbar, die Datei ist abgeschnitten oder beschädigt");
    });
    m_files.close(number);
    if (m_elements.Count() == 0)
        throw Datenfehler("Datei " + zitierteDatei(name) + " enthält keine Elemente");
}

void Rechenkern::setAlloy(std::span<const Komponentenangabe> angaben, Anteilseinheit einheit)
{
    require<Aufruffehler>(anzahlgrund(angaben.size()));
    m_hinweis.clear();
    m_eingabe = Eingabe(m_elements);
    m_eingabe.setAnzahl(static_cast<int>(angaben.size()));
    for (int zeile = 0; const Komponentenangabe& angabe : angaben)
        enterElement(zeile++, angabe);
    m_eingabe.setEinheit(einheit);
    for (int zeile = 0; const Komponentenangabe& angabe : angaben)
        m_eingabe.setProzentOhneAusgleich(zeile++, textOfSingle(singleFromText(angabe.prozent)));
    checkAnteile(angaben);
    std::vector<std::string_view> texte;
    std::ranges::transform(angaben, std::back_inserter(texte), &Komponentenangabe::text);
    compute(texte);
}

void Rechenkern::setAlloy(Eingabe eingabe)
{
    const std::vector<Befund> alle = befunde(eingabe);
    const Befund* const befund = wichtigster(alle);
    if (befund != nullptr && befund->schwere == Schwere::Fehler)
        throw Datenfehler(befundgrund(eingabe, *befund));
    m_hinweis.clear();
    m_eingabe = std::move(eingabe);
    std::vector<std::string_view> symbole;
    for (int i = 0; i < m_eingabe.anzahl(); ++i)
        symbole.push_back(m_eingabe.zeile(i).element->symbol());
    compute(symbole);
}

/// Hands the entered alloy to the calculator; the texts name its components in an error.
void Rechenkern::compute(std::span<const std::string_view> texte)
{
    m_legierung = m_eingabe.legierung().value();
    m_eingabe.elementeSetzen();
    m_komponentenzahl = m_eingabe.anzahl();
    m_calc.Legierung_Setzen(m_legierung.komponenten());
    if (istUnbekannt(m_calc.Valenz()))
        throw Datenfehler(rechengrund(komponenten(), texte));
}

/// Throws for mass % that come to no at%.
void Rechenkern::checkAnteile(std::span<const Komponentenangabe> angaben) const
{
    for (int zeile = 0; const Komponentenangabe& angabe : angaben) {
        const auto& fehler = m_eingabe.prozentInKraft(zeile++).fehler;
        if (fehler && !fehler->abhilfe.empty())
            require<Datenfehler>(angabe.text, fehler->grund);
    }
}

void Rechenkern::enterElement(int zeile, const Komponentenangabe& angabe)
{
    Komponentenwahl wahl;
    require<Datenfehler>(angabe.text, liesWahl(m_elements, angabe, wahl));
    const std::optional<Eingabe::Arbeitswerte> before = inKraftFor(*wahl.element, zeile);
    m_eingabe.waehleElement(zeile, wahl.element->symbol());
    m_eingabe.waehleDichte(zeile, wahl.dichtewahl);
    if (wahl.dichtewahl == AndereWahl)
        m_eingabe.setDichte(zeile, textOfSingle(wahl.dichte));
    m_eingabe.waehleValenz(zeile, wahl.valenzwahl);
    if (wahl.valenzwahl == ValenzAndere)
        m_eingabe.setValenz(zeile, angabe.valenz);
    const Eingabefeld& valenz = m_eingabe.zeile(zeile).valenz;
    for (const std::string& meldung : valenz.meldungen)
        m_boxes.show(Icon::None, Formelmeldungstitel, meldung);
    require<Datenfehler>(angabe.text, valenzgrund(valenz));
    const Eingabe::Arbeitswerte& now = m_eingabe.zeile(zeile).inKraft;
    if (before && (before->dichte != now.dichte || before->valenz != now.valenz))
        m_hinweis = mehrfachhinweis(wahl.element->symbol());
}

/// What the rows in front of that one have put in force for an element; no value if none of them has it.
std::optional<Eingabe::Arbeitswerte> Rechenkern::inKraftFor(const clsElement& element, int zeile) const
{
    for (int i = 0; i < zeile; ++i) {
        if (m_eingabe.zeile(i).element.get() == &element)
            return m_eingabe.zeile(i).inKraft;
    }
    return std::nullopt;
}

} // namespace zerna
