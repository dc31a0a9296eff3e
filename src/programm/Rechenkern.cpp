#include "programm/Rechenkern.h"

#include <algorithm>
#include <optional>
#include <set>

#include "core/Elementdatei.h"
#include "core/Kuerzung.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "parser/Formelwert.h"
#include "programm/EingebauteTabelle.h"

namespace zerna {

namespace {

/// The density choice that an argument's word means: umlauts are hard to type on some command lines.
std::string_view dichtewahl(std::string_view word) { return word == "fluessig" ? "flüssig" : word; }

/// The valence choice that one of the letters s, p, d, f means.
std::optional<int> orbitalcode(std::string_view text)
{
    const std::size_t code = text.size() == 1 ? std::string_view("spdf").find(text) : std::string_view::npos;
    return code == std::string_view::npos ? std::nullopt : std::optional(static_cast<int>(code));
}

bool isNumber(std::string_view text)
{
    try {
        singleFromText(text);
        return true;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace

Komponentenangabe komponentenangabe(std::string_view text)
{
    Komponentenangabe angabe;
    angabe.text = text;
    const auto fail = [&](const std::string& reason) {
        throw Aufruffehler("Komponente " + zitiert(text) + ": " + reason);
    };
    std::string_view rest = text;
    const auto nextPart = [&rest] {
        const std::size_t colon = std::min(rest.find(':'), rest.size());
        const std::string_view part = rest.substr(0, colon);
        rest.remove_prefix(std::min(colon + 1, rest.size()));
        return part;
    };
    std::set<std::string_view> given;
    for (bool first = true; first || !rest.empty(); first = false) {
        const std::string_view part = nextPart();
        const std::size_t equals = part.find('=');
        if (equals == std::string_view::npos || equals == 0)
            fail("erwartet wird SYMBOL=ATPROZENT[:dichte=ZAHL|amorph|fluessig|kristallin][:valenz=s|p|d|f|TEXT]");
        const std::string_view key = part.substr(0, equals);
        const std::string value(part.substr(equals + 1));
        if (first) {
            angabe.symbol = key;
            angabe.prozent = value;
        } else if (key == "dichte" || key == "valenz") {
            if (!given.insert(key).second)
                fail(zitiert(key) + " ist mehrmals angegeben");
            (key == "dichte" ? angabe.dichte : angabe.valenz) = value;
        } else {
            fail("unbekannte Angabe " + zitiert(key));
        }
    }
    if (text.ends_with(':'))
        fail("hinter \":\" fehlt eine Angabe");
    if (!isNumber(angabe.prozent))
        fail("at% " + zitiert(angabe.prozent) + " ist keine gültige Zahl");
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
        throw Datenfehler("Datei " + zitiert(name, Dateinamenlaenge) + ": " + error.what());
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
            throw Datenfehler("Datei " + zitiert(name, Dateinamenlaenge) + ": Element " + std::to_string(position)
                + " ist nicht lesbar, die Datei ist abgeschnitten oder beschädigt");
    });
    m_files.close(number);
    if (m_elements.Count() == 0)
        throw Datenfehler("Datei " + zitiert(name, Dateinamenlaenge) + " enthält keine Elemente");
}

void Rechenkern::setAlloy(std::span<const Komponentenangabe> angaben)
{
    if (angaben.empty() || angaben.size() > MaxKomponenten)
        throw Aufruffehler(
            "Eine Legierung hat eine bis fünf Komponenten, angegeben sind " + std::to_string(angaben.size()));
    m_eingabe = Eingabe(m_elements);
    m_eingabe.setAnzahl(static_cast<int>(angaben.size()));
    for (int zeile = 0; const Komponentenangabe& angabe : angaben)
        enterElement(zeile++, angabe);
    for (int zeile = 0; const Komponentenangabe& angabe : angaben)
        m_eingabe.setProzentOhneAusgleich(zeile++, textOfSingle(singleFromText(angabe.prozent)));
    m_legierung = m_eingabe.legierung().value();
    m_eingabe.elementeSetzen();
    m_komponentenzahl = m_eingabe.anzahl();
    m_calc.Legierung_Setzen(m_legierung.komponenten());
    if (!istUnbekannt(m_calc.Valenz()))
        return;
    const auto hasNoMass = [](const Legierungskomponente& k) { return istUnbekannt(k.element->Masse()); };
    const auto found = std::ranges::find_if(komponenten(), hasNoMass);
    if (found == komponenten().end())
        throw Datenfehler("Die Legierung lässt sich mit diesen Dichten und Valenzen nicht berechnen");
    const auto zeile = static_cast<std::size_t>(found - komponenten().begin());
    throw Datenfehler("Komponente " + zitiert(angaben[zeile].text) + ": hat keine bekannte Atommasse");
}

void Rechenkern::enterElement(int zeile, const Komponentenangabe& angabe)
{
    const auto element = m_elements.find(angabe.symbol, true);
    if (!element)
        throw Datenfehler(
            "Komponente " + zitiert(angabe.text) + ": Element " + zitiert(angabe.symbol) + " ist nicht bekannt");
    m_eingabe.waehleElement(zeile, element->symbol());
    enterDichte(zeile, angabe);
    enterValenz(zeile, angabe);
}

void Rechenkern::enterDichte(int zeile, const Komponentenangabe& angabe)
{
    const std::string_view choice =
        angabe.dichte.empty() ? m_eingabe.zeile(zeile).dichtewahl : dichtewahl(angabe.dichte);
    const std::vector<std::string_view> known = dichteauswahl(*m_eingabe.zeile(zeile).element);
    if (isNumber(choice)) {
        m_eingabe.waehleDichte(zeile, AndereWahl);
        m_eingabe.setDichte(zeile, textOfSingle(singleFromText(choice)));
    } else if (choice != AndereWahl && std::ranges::find(known, choice) != known.end()) {
        m_eingabe.waehleDichte(zeile, choice);
    } else {
        const std::string reason = angabe.dichte.empty() ? "keine Dichte bekannt, dichte=ZAHL angeben"
                                                         : "Dichte " + zitiert(angabe.dichte) + " ist nicht bekannt";
        throw Datenfehler("Komponente " + zitiert(angabe.text) + ": " + reason);
    }
}

void Rechenkern::enterValenz(int zeile, const Komponentenangabe& angabe)
{
    if (const std::optional<int> orbital = orbitalcode(angabe.valenz)) {
        const auto choices = valenzauswahl(*m_eingabe.zeile(zeile).element);
        if (std::ranges::find(choices, *orbital, &Valenzeintrag::code) == choices.end())
            throw Datenfehler("Komponente " + zitiert(angabe.text) + ": keine " + std::string(OrbitalLabel(*orbital))
                + " außerhalb des Edelgasrumpfs");
        m_eingabe.waehleValenz(zeile, *orbital);
    } else if (!angabe.valenz.empty()) {
        m_eingabe.waehleValenz(zeile, ValenzAndere);
        m_eingabe.setValenz(zeile, angabe.valenz);
    }
    const Eingabefeld& valenz = m_eingabe.zeile(zeile).valenz;
    for (const std::string& meldung : valenz.meldungen)
        m_boxes.show(Icon::None, Formelmeldungstitel, meldung);
    if (valenz.fehler)
        throw Datenfehler(
            "Komponente " + zitiert(angabe.text) + ": Valenz " + zitiert(valenz.text) + ": " + valenz.fehler->text());
}

} // namespace zerna
