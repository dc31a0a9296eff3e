#include "model/eingabe/Eingabe.h"

#include <algorithm>

#include "core/CheckedArithmetic.h"

namespace zerna {

namespace {

constexpr std::array<std::string_view, MaxKomponenten> AnfangsProzente{"50", "50", "0", "0", "0"};

/// The field of a value that was chosen, not typed.
Eingabefeld wertfeld(float wert) { return {feldtext(wert), wert}; }

/// A number as the program writes it, however it was typed; a formula and an unreadable text as they are.
std::string einheitlich(const Eingabefeld& feld)
{
    const bool isNumber = !feld.fehler && feld.echo.empty() && !feld.text.empty();
    return isNumber ? feldtext(feld.wert) : feld.text;
}

std::string dichtehindernis(const std::string& name, const Eingabefeld& dichte)
{
    if (dichte.text.empty() || dichte.istUnbekannterWert())
        return "Dichte für " + name + " ist unbekannt!";
    if (dichte.fehler)
        return "Dichte für " + name + " ist keine gültige Zahl!";
    return dichte.wert == 0 ? "Dichte für " + name + " ist Null!" : "";
}

std::string hindernisIn(const Eingabe::Zeile& zeile)
{
    if (!zeile.element)
        return "Es ist nicht für jede Komponente ein Element gewählt!";
    const std::string& name = zeile.element->Name();
    if (std::string grund = dichtehindernis(name, zeile.dichte); !grund.empty())
        return grund;
    if (zeile.valenz.istUnbekannterWert())
        return "Valenz für " + name + " ist unbekannt!";
    return zeile.valenz.fehler ? "Valenz für " + name + " ist ungültig!" : "";
}

std::string_view valenzwahltext(const Eingabe::Zeile& zeile)
{
    for (const Valenzeintrag& eintrag : valenzauswahl(*zeile.element)) {
        if (eintrag.code == zeile.valenzwahl)
            return eintrag.text;
    }
    return {};
}

} // namespace

Eingabe::Eingabe(const ElementCollection& elements)
    : m_elements(&elements)
{
    for (std::size_t i = 0; i < m_zeilen.size(); ++i)
        m_zeilen.at(i).prozent = zahlenfeld(AnfangsProzente.at(i));
    m_rest = ausgleich({});
}

Aenderung Eingabe::setAnzahl(int anzahl)
{
    if (anzahl < 1 || anzahl > MaxKomponenten)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    adoptShown(false);
    m_anzahl = anzahl;
    balance();
    return {.anzahl = true, .anteil = true};
}

Aenderung Eingabe::waehleElement(int zeile, std::string_view key)
{
    auto element = m_elements->find(key);
    if (!element)
        return {};
    adoptShown(false);
    at(zeile).element = std::move(element);
    convert();
    waehleDichte(zeile, dichteauswahl(*at(zeile).element).front());
    waehleValenz(zeile, ValenzStandard);
    return {.element = true, .anteil = m_quelle == Anteilseinheit::Masse, .dichte = true, .valenz = true};
}

Aenderung Eingabe::setProzent(int zeile, std::string_view text)
{
    const bool isAdopted = adoptShown(true);
    readZahl(at(zeile).prozent, text);
    const bool isBalanced = !istAusgleich(zeile) && balance();
    return {.anteil = isBalanced || isAdopted};
}

void Eingabe::setProzentOhneAusgleich(int zeile, std::string_view text)
{
    adoptShown(true);
    readZahl(at(zeile).prozent, text);
    if (istAusgleich(zeile))
        m_rest = at(zeile).prozent;
    convert();
}

void Eingabe::gleicheAus() { balance(); }

/// Makes the parts that are shown the typed ones, `always` or only if there are any; the rows behind the last one keep
/// their numbers. False if they are the typed ones already.
bool Eingabe::adoptShown(bool always)
{
    if (m_einheit == m_quelle)
        return false;
    const std::vector<Eingabefeld> shown = converted(m_einheit);
    if (shown.front().fehler && !always)
        return false;
    for (std::size_t i = 0; i < shown.size(); ++i)
        m_zeilen.at(i).prozent = zahlenfeld(shown[i].text);
    m_rest = zahlenfeld(shown.back().text);
    m_quelle = m_einheit;
    balance();
    return true;
}

std::vector<Eingabefeld> Eingabe::anteile(Anteilseinheit einheit) const
{
    if (einheit != m_quelle)
        return converted(einheit);
    std::vector<Eingabefeld> typed;
    for (const Zeile& row : zeilen())
        typed.push_back(row.prozent);
    return typed;
}

/// The parts that count in the unit that they were not typed in.
std::vector<Eingabefeld> Eingabe::converted(Anteilseinheit einheit) const
{
    std::vector<Anteilsangabe> angaben;
    for (int i = 0; i < m_anzahl; ++i)
        angaben.push_back({&anteilInKraft(i), zeile(i).element.get()});
    return umgerechnet(angaben, einheit);
}

/// Works out the at% that mass % come to.
void Eingabe::convert()
{
    if (m_quelle == Anteilseinheit::Masse)
        m_atomprozente = converted(Anteilseinheit::Atom);
    else
        m_atomprozente.clear();
}

/// False if there is no rest.
bool Eingabe::balance()
{
    const bool isBalanced = writeRest();
    convert();
    return isBalanced;
}

/// False, and nothing written, if a row above the last one is empty or no number.
bool Eingabe::writeRest()
{
    std::array<float, MaxKomponenten> prozente{};
    const auto above = std::span(prozente).first(static_cast<std::size_t>(m_anzahl) - 1);
    for (std::size_t i = 0; i < above.size(); ++i) {
        if (m_zeilen.at(i).prozent.fehler)
            return false;
        above[i] = m_zeilen.at(i).prozent.wert;
    }
    try {
        readAusgleich(m_rest, above);
        writeZahl(at(m_anzahl - 1).prozent, m_rest.text, m_rest.wert);
        return true;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

/// Takes a kept rest, but only what the rows above leave counts; an entry in the balance row stays beside a right one.
void Eingabe::takeRest(std::string_view text)
{
    const Eingabefeld entry = at(m_anzahl - 1).prozent;
    const float kept = (m_rest = zahlenfeld(text)).wert;
    if (writeRest() && m_rest.wert == kept)
        at(m_anzahl - 1).prozent = entry;
}

Aenderung Eingabe::waehleDichte(int zeile, std::string_view wahl)
{
    if (!at(zeile).element)
        return {};
    nachschlagen(zeile);
    at(zeile).dichtewahl = wahl;
    writeDichte(zeile, wertfeld(dichteFor(*m_nachgeschlagen.element, wahl)));
    return {.dichte = true};
}

Aenderung Eingabe::waehleDichteart(std::string_view wahl)
{
    Aenderung aenderung;
    for (int i = 0; i < m_anzahl; ++i) {
        if (zeile(i).element && hatDichte(*zeile(i).element, wahl))
            aenderung = waehleDichte(i, wahl);
    }
    return aenderung;
}

std::vector<std::string> Eingabe::ohneDichte(std::string_view wahl) const
{
    std::vector<std::string> symbole;
    for (const Zeile& row : zeilen()) {
        if (row.element && !hatDichte(*row.element, wahl) && std::ranges::count(symbole, row.element->symbol()) == 0)
            symbole.push_back(row.element->symbol());
    }
    return symbole;
}

std::string Eingabe::gemeinsameDichtewahl() const
{
    const std::string& first = m_zeilen.front().dichtewahl;
    return std::ranges::all_of(zeilen(), [&](const Zeile& row) { return row.dichtewahl == first; }) ? first : "";
}

Aenderung Eingabe::waehleValenz(int zeile, int wahl)
{
    if (!at(zeile).element)
        return {};
    nachschlagen(zeile);
    at(zeile).valenzwahl = wahl;
    writeValenz(zeile, valenzfeld(feldtext(valenzFor(*m_nachgeschlagen.element, wahl)), *m_elements));
    return {.valenz = true};
}

Aenderung Eingabe::setDichte(int zeile, std::string_view text)
{
    writeDichte(zeile, zahlenfeld(text));
    return {.dichte = true};
}

Aenderung Eingabe::setValenz(int zeile, std::string_view text)
{
    writeValenz(zeile, valenzfeld(text, *m_elements));
    return {.valenz = true};
}

void Eingabe::setDichteUndValenz(int zeile, const Zeile& from)
{
    for (Zeile& row : m_zeilen) {
        if (row.element == from.element)
            row.inKraft = from.inKraft;
    }
    Zeile& to = at(zeile);
    to.dichtewahl = from.dichtewahl;
    to.dichte = from.dichte;
    to.valenzwahl = from.valenzwahl;
    to.valenz = from.valenz;
    mirror(zeile);
}

void Eingabe::writeDichte(int zeile, Eingabefeld feld)
{
    const Eingabefeld& dichte = at(zeile).dichte = std::move(feld);
    for (Zeile& row : m_zeilen) {
        if (row.element == m_nachgeschlagen.element && !dichte.fehler)
            row.inKraft.dichte = dichte.wert;
    }
    mirror(zeile);
}

void Eingabe::writeValenz(int zeile, Eingabefeld feld)
{
    const Eingabefeld& valenz = at(zeile).valenz = std::move(feld);
    for (Zeile& row : m_zeilen) {
        if (row.element == m_nachgeschlagen.element) {
            row.inKraft.valenztext = valenz.text;
            row.inKraft.valenz = valenz.wert;
        }
    }
    mirror(zeile);
}

void Eingabe::nachschlagen(int zeile)
{
    if (at(zeile).element)
        m_nachgeschlagen.element = at(zeile).element;
}

/// All rows of the row's element show what it shows.
void Eingabe::mirror(int zeile)
{
    const Zeile& from = at(zeile);
    for (Zeile& to : m_zeilen) {
        if (&to == &from || !from.element || to.element != from.element)
            continue;
        to.dichtewahl = from.dichtewahl;
        to.dichte = from.dichte;
        to.valenzwahl = from.valenzwahl;
        to.valenz = from.valenz;
    }
}

bool Eingabe::istVollstaendig() const
{
    for (int i = 0; i < m_anzahl; ++i) {
        if (!zeile(i).element || prozentInKraft(i).fehler)
            return false;
    }
    return true;
}

std::optional<Legierung> Eingabe::legierung() const
{
    std::optional<Legierung> legierung;
    if (std::ranges::all_of(zeilen(), [](const Zeile& row) { return row.element != nullptr; }))
        writeTo(legierung.emplace());
    return legierung;
}

void Eingabe::writeTo(Legierung& legierung) const
{
    int i = 0;
    for (Legierungskomponente& komponente : legierung.resize(zeilen().size())) {
        const Zeile& row = zeile(i);
        komponente.setze(row.element, prozentInKraft(i++).wert, row.inKraft.dichte, row.inKraft.valenz);
    }
}

std::optional<Hindernis> Eingabe::hindernis() const
{
    for (int i = 0; i < m_anzahl; ++i) {
        if (std::string grund = hindernisIn(zeile(i)); !grund.empty())
            return Hindernis{i, std::move(grund)};
    }
    return std::nullopt;
}

void Eingabe::elementeSetzen()
{
    for (const Zeile& row : m_zeilen) {
        if (!row.element)
            continue;
        row.element->setDichte(row.inKraft.dichte);
        row.element->setValenz_Temp(row.inKraft.valenztext);
    }
}

std::vector<Komponentenzeile> Eingabe::komponentenzeilen() const
{
    std::vector<Komponentenzeile> zeilen;
    for (int i = 0; i < m_anzahl; ++i) {
        const Zeile& row = zeile(i);
        if (row.element)
            zeilen.push_back({row.element->symbol(), einheitlich(prozentInKraft(i)), row.dichtewahl,
                row.dichte.fehler ? feldtext(row.inKraft.dichte) : einheitlich(row.dichte),
                std::string(valenzwahltext(row)), einheitlich(row.valenz)});
    }
    return zeilen;
}

} // namespace zerna
