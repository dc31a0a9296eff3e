#include "programm/Stapelrechner.h"

#include <algorithm>
#include <utility>

#include "core/Kuerzung.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Ergebnislage.h"

namespace zerna {

namespace {

bool hasSoundPart(const Legierungskomponente& komponente)
{
    return komponente.prozent >= 0 && komponente.prozent <= 100;
}

} // namespace

Stapelrechner::Stapelrechner(Rechenkern& kern, Anteilseinheit einheit)
    : m_kern(kern)
    , m_einheit(einheit)
    , m_einheitDerTeile(einheit)
{
}

bool Stapelrechner::rechne(std::string_view legierung)
{
    m_grund.clear();
    m_isFormula = !legierung.empty() && legierung.find('=') == std::string_view::npos;
    if (!(m_isFormula ? readFormula(legierung) : readComponents(legierung)))
        return false;
    shareValues();
    m_typedPartsSound = std::ranges::all_of(komponenten(), hasSoundPart);
    if (m_einheitDerTeile == Anteilseinheit::Masse && !convertParts())
        return false;
    m_kern.calc().Legierung_Setzen(komponenten());
    if (istUnbekannt(calc().Valenz()))
        m_grund = rechengrund(komponenten(), m_texte);
    return m_grund.empty();
}

std::string Stapelrechner::hinweis()
{
    std::string result(m_isFormula && m_formel.istUmgerechnet() ? UmgerechnetHinweis : "");
    if (looksSound())
        return result;
    m_kern.setAlloy(angaben(), m_einheitDerTeile);
    const Ergebnislage lage = ergebnislage(m_kern.eingabe(), m_kern.eingabe(), calc());
    const std::string doubt = lage.befund ? befundgrund(m_kern.eingabe(), *lage.befund) : std::string();
    for (const std::string& satz : {m_kern.hinweis(), doubt}) {
        if (!satz.empty())
            result += (result.empty() ? "" : "; ") + satz;
    }
    return result;
}

/// The last alloy as the command for one alloy takes it.
std::vector<Komponentenangabe> Stapelrechner::angaben() const
{
    if (m_isFormula)
        return angabenAus(m_formel);
    std::vector<Komponentenangabe> result;
    for (const std::string_view text : std::span(m_texte).first(m_anzahl))
        result.push_back(komponentenangabe(text, m_einheit));
    return result;
}

bool Stapelrechner::readComponents(std::string_view legierung)
{
    m_einheitDerTeile = m_einheit;
    split(legierung);
    m_grund = anzahlgrund(m_anzahl);
    for (std::size_t i = 0; m_grund.empty() && i < m_anzahl; ++i)
        read(m_texte.at(i), m_komponenten.at(i));
    return m_grund.empty();
}

bool Stapelrechner::readFormula(std::string_view legierung)
{
    Formellesung lesung = legierungsformel(legierung, m_kern.elements(), m_einheit);
    if (lesung.fehler) {
        m_grund = formelgrund(legierung, *lesung.fehler);
        return false;
    }
    m_formel = std::move(lesung.formel);
    m_einheitDerTeile = m_formel.einheit();
    m_anzahl = m_formel.komponenten().size();
    for (std::size_t i = 0; i < m_anzahl; ++i) {
        const std::string_view symbol = m_texte.at(i) = m_formel.komponenten()[i].element->symbol();
        const Bedeutung& meaning = bedeutung(symbol, {});
        if (!meaning.grund.empty() || !readSingle(m_formel.prozenttext(i), m_komponenten.at(i).prozent)) {
            m_grund = komponentengrund(symbol, meaning.grund);
            return false;
        }
        take(meaning, m_komponenten.at(i));
    }
    return true;
}

/// Puts the parts between blanks into m_texte.
void Stapelrechner::split(std::string_view legierung)
{
    constexpr std::string_view Blanks = " \t";
    m_anzahl = 0;
    for (std::size_t begin = legierung.find_first_not_of(Blanks); begin != std::string_view::npos;) {
        const std::size_t end = std::min(legierung.find_first_of(Blanks, begin), legierung.size());
        if (m_anzahl < m_texte.size())
            m_texte.at(m_anzahl) = legierung.substr(begin, end - begin);
        ++m_anzahl;
        begin = legierung.find_first_not_of(Blanks, end);
    }
}

bool Stapelrechner::read(std::string_view text, Legierungskomponente& komponente)
{
    const std::size_t colon = std::min(text.find(':'), text.size());
    const std::size_t equals = text.substr(0, colon).find('=');
    if (equals == std::string_view::npos)
        return fail(text, {});
    const Bedeutung& meaning = bedeutung(text.substr(0, equals), text.substr(colon));
    const std::string_view prozent = text.substr(equals + 1, colon - equals - 1);
    if (!meaning.grund.empty() || !readSingle(prozent, komponente.prozent))
        return fail(text, meaning.grund);
    take(meaning, komponente);
    return true;
}

void Stapelrechner::take(const Bedeutung& meaning, Legierungskomponente& komponente)
{
    komponente.setze(meaning.element, komponente.prozent, meaning.dichte, meaning.valenz);
}

/// How it is written comes first, then its at%, then what it means.
bool Stapelrechner::fail(std::string_view text, std::string_view grund)
{
    Komponentenangabe angabe;
    std::string reason = liesAngabe(text, angabe);
    if (float prozent = 0; reason.empty() && !readSingle(angabe.prozent, prozent))
        reason = prozentgrund(angabe.prozent, m_einheit);
    m_grund = komponentengrund(text, reason.empty() ? grund : reason);
    return false;
}

const Stapelrechner::Bedeutung& Stapelrechner::bedeutung(std::string_view symbol, std::string_view zusatz)
{
    constexpr std::size_t Most = 4096; // of a list in which every density is another one
    constexpr std::size_t LongestKey = 64; // what is longer is rare, and many of them would take much memory
    if (symbol.size() + zusatz.size() > LongestKey)
        return m_langeBedeutung = lookUp(symbol, zusatz);
    m_key.assign(symbol).append(zusatz);
    if (const auto found = m_bedeutungen.find(m_key); found != m_bedeutungen.end())
        return found->second;
    if (m_bedeutungen.size() == Most)
        m_bedeutungen.clear();
    return m_bedeutungen.emplace(m_key, lookUp(symbol, zusatz)).first->second;
}

Stapelrechner::Bedeutung Stapelrechner::lookUp(std::string_view symbol, std::string_view zusatz) const
{
    Komponentenangabe angabe;
    Komponentenwahl wahl;
    Bedeutung meaning;
    meaning.grund = liesAngabe(std::string(symbol) + "=" + std::string(zusatz), angabe);
    if (meaning.grund.empty())
        meaning.grund = liesWahl(m_kern.elements(), angabe, wahl);
    if (!meaning.grund.empty())
        return meaning;
    const Eingabefeld valenz = valenzfeld(m_kern.elements(), angabe, wahl);
    meaning.element = wahl.element;
    meaning.dichte = wahl.dichte;
    meaning.valenz = valenz.wert;
    meaning.grund = valenzgrund(valenz);
    return meaning;
}

/// Components of the same element share one density and one valence, those of the last.
void Stapelrechner::shareValues()
{
    const std::span<Legierungskomponente> all = komponenten();
    m_valuesAgree = true;
    for (std::size_t last = all.size(); last-- > 1;) {
        for (Legierungskomponente& k : all.first(last)) {
            if (k.element != all[last].element)
                continue;
            m_valuesAgree = m_valuesAgree && k.dichte == all[last].dichte && k.valenz == all[last].valenz;
            k.dichte = all[last].dichte;
            k.valenz = all[last].valenz;
        }
    }
}

/// Makes at% of mass %.
bool Stapelrechner::convertParts()
{
    std::array<Eingabefeld, MaxKomponenten> massen;
    std::array<Anteilsangabe, MaxKomponenten> angaben;
    for (std::size_t i = 0; i < m_anzahl; ++i) {
        massen.at(i).wert = m_komponenten.at(i).prozent;
        angaben.at(i) = {&massen.at(i), m_komponenten.at(i).element.get()};
    }
    const auto felder = umgerechnet(std::span(angaben).first(m_anzahl), Anteilseinheit::Atom);
    for (std::size_t i = 0; i < m_anzahl; ++i) {
        const std::optional<Eingabefehler>& fehler = felder[i].fehler;
        if (fehler && !fehler->abhilfe.empty()) { // this one is to blame
            m_grund = komponentengrund(m_texte.at(i), fehler->grund);
            return false;
        }
        m_komponenten.at(i).prozent = felder[i].wert;
    }
    return true;
}

/// Whether nothing about the alloy needs a word; most need none, and it takes much longer to find the words.
bool Stapelrechner::looksSound() const
{
    const auto isSound = [](const Legierungskomponente& k) {
        return hasSoundPart(k) && k.dichte > 0 && !istUnbekannt(k.element->Masse());
    };
    return m_typedPartsSound && m_valuesAgree && calc().Valenz() > 0 && calc().Dichte() > 0
        && calc().hatTeilchenzahldichte() && calc().Teilchenzahldichte() > 0
        && std::ranges::all_of(std::span(m_komponenten).first(m_anzahl), isSound);
}

} // namespace zerna
