#include "model/eingabe/Legierungsformel.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Elementvorschlag.h"
#include "core/Kuerzung.h"
#include "core/Zahlentext.h"
#include "core/Zeichensatz.h"
#include "model/eingabe/Formelzeichen.h"

namespace zerna {

/// Reads one formula from left to right, then decides to which elements the amounts belong.
class Formelleser {
public:
    Formelleser(std::string_view text, const ElementCollection& elements, Anteilseinheit einheit)
        : m_text(text)
        , m_rest(text)
        , m_elements(elements)
    {
        m_lesung.formel.m_einheit = einheit;
    }

    Formellesung lies()
    {
        while (!m_lesung.fehler && !m_rest.empty())
            takeWord();
        if (!m_lesung.fehler)
            finish();
        return std::move(m_lesung);
    }

private:
    /// An amount in the gap before element i or, in the last gap, behind all.
    struct Luecke {
        std::string text;
        std::size_t ort = 0; // byte of the text
        std::size_t minus = NoPlace; // byte of a dash that stands right between the element before and the amount
        bool klebtLinks = false; // nothing stands between the amount and the element before
        bool klebtRechts = false;
    };

    /// What stands between two words.
    struct Trennung {
        bool leerraum = false; // before a dash or comma, or alone
        bool leerraumDahinter = false;
        std::size_t strich = NoPlace;
        std::size_t komma = NoPlace;

        bool klebt() const { return !leerraum && strich == NoPlace && komma == NoPlace; }
    };

    enum class Wort { Keins, Symbol, Menge };

    static constexpr std::size_t NoPlace = static_cast<std::size_t>(-1);

    void takeWord()
    {
        const Trennung trennung = takeTrennung();
        if (m_lesung.fehler)
            return;
        if (m_rest.empty()) {
            if (const std::size_t ort = std::min(trennung.strich, trennung.komma); ort != NoPlace)
                failUnexpected(ort);
        } else if (const Einheitswort einheit = einheitswort(m_rest); einheit.length > 0) {
            takeEinheit(einheit);
            m_klebt = m_klebt && trennung.klebt();
        } else if (const std::string_view symbol = symbolwort(m_rest); !symbol.empty()) {
            takeSymbol(symbol, trennung);
        } else if (const Mengenwort menge = mengenwort(m_rest); menge.length > 0) {
            takeMenge(menge, trennung);
        } else {
            failUnexpected(ort());
        }
    }

    /// Takes blanks with at most one dash or comma among them.
    Trennung takeTrennung()
    {
        Trennung trennung;
        std::size_t length = 0;
        for (;;) {
            const Trennzeichen zeichen = trennzeichen(m_rest, length);
            if (zeichen == Trennzeichen::Keins)
                return trennung;
            const bool hasSign = trennung.strich != NoPlace || trennung.komma != NoPlace;
            if (zeichen == Trennzeichen::Leerraum)
                (hasSign ? trennung.leerraumDahinter : trennung.leerraum) = true;
            else if (hasSign || (m_zuletzt == Wort::Keins && zeichen == Trennzeichen::Komma))
                failUnexpected(ort());
            else
                (zeichen == Trennzeichen::Strich ? trennung.strich : trennung.komma) = ort();
            if (m_lesung.fehler)
                return trennung;
            m_rest.remove_prefix(length);
        }
    }

    void takeEinheit(const Einheitswort& wort)
    {
        if (!wort.einheit)
            return fail(
                ort(), "Einheit " + zitiert(m_rest.substr(0, wort.length)) + " ist nicht bekannt", EinheitNennen);
        if (m_hasEinheit && *wort.einheit != m_lesung.formel.m_einheit)
            return fail(ort(), "Zwei verschiedene Einheiten");
        m_lesung.formel.m_einheit = *wort.einheit;
        m_hasEinheit = true;
        m_rest.remove_prefix(wort.length);
    }

    void takeSymbol(std::string_view symbol, const Trennung& trennung)
    {
        auto element = m_elements.find(symbol);
        if (!element)
            return failUnknown(symbol);
        if (m_zuletzt == Wort::Keins && trennung.strich != NoPlace)
            return failUnexpected(trennung.strich);
        auto& formel = m_lesung.formel;
        if (std::ranges::find(formel.komponenten(), element, &Formelkomponente::element) != formel.komponenten().end())
            return fail(ort(), element->symbol() + " steht zweimal in der Legierung");
        if (formel.m_anzahl == MaxKomponenten)
            return fail(ort(), "Eine Legierung hat höchstens fünf Komponenten");
        gap().klebtRechts = m_zuletzt == Wort::Menge && m_klebt && trennung.klebt();
        const std::size_t stelle = zeichenzahl(m_text.substr(0, ort())) + 1;
        formel.m_komponenten.at(formel.m_anzahl++) = {std::move(element), stelle, {}, 0};
        advance(Wort::Symbol, symbol.size());
    }

    void takeMenge(const Mengenwort& menge, const Trennung& trennung)
    {
        if (menge.zuLang)
            return fail(ort(), "Die Zahl hat zu viele Ziffern");
        const bool isSign = trennung.strich != NoPlace && !trennung.leerraumDahinter;
        if (isSign && (trennung.leerraum || m_zuletzt == Wort::Keins))
            return failNegative(trennung.strich);
        if (m_zuletzt == Wort::Menge)
            return fail(ort(), "Zwei Mengen hintereinander");
        gap() = {menge.text, ort(), isSign ? trennung.strich : NoPlace,
            m_zuletzt == Wort::Symbol && m_klebt && trennung.klebt(), false};
        m_hatMengen = true;
        advance(Wort::Menge, menge.length);
    }

    void advance(Wort wort, std::size_t length)
    {
        m_zuletzt = wort;
        m_klebt = true;
        m_rest.remove_prefix(length);
    }

    void finish()
    {
        if (m_lesung.formel.m_anzahl == 0)
            return fail(
                m_hatMengen ? ort() : NoPlace, "Es ist kein Element angegeben", "Zum Beispiel Al60Cu40 schreiben.");
        const std::optional<bool> before = amountsComeFirst();
        if (before)
            assign(*before);
    }

    /// Whether amounts stand before their elements; no value after an error. What runs together belongs together; the
    /// first amount belongs to the element that it is attached to, as in Cu2MgAl.
    std::optional<bool> amountsComeFirst()
    {
        const std::size_t last = m_lesung.formel.m_anzahl;
        std::optional<bool> before;
        std::size_t amounts = 0;
        const Luecke* unclear = nullptr;
        for (std::size_t i = 0; i <= last; ++i) {
            const Luecke& gap = m_luecken.at(i);
            if (gap.text.empty())
                continue;
            ++amounts;
            const bool behind = i == last || (gap.klebtLinks && (amounts == 1 || !gap.klebtRechts));
            const bool inFront = i == 0 || (gap.klebtRechts && !gap.klebtLinks);
            if (!behind && !inFront)
                unclear = gap.klebtLinks ? unclear : &gap;
            else if (before.value_or(inFront) != inFront)
                return fail(gap.ort, "Mengen stehen teils vor, teils hinter ihrem Element"), std::nullopt;
            else
                before = inFront;
        }
        if (unclear != nullptr && (!before || amounts < last))
            return fail(unclear->ort, "Zu welchem Element die Menge gehört, ist nicht zu erkennen",
                       "Menge und Element zusammenschreiben."),
                   std::nullopt;
        return before.value_or(false);
    }

    void assign(bool before)
    {
        auto& formel = m_lesung.formel;
        const bool isMass = m_lesung.formel.m_einheit == Anteilseinheit::Masse; // stated or agreed on
        const bool takesRest = before || m_hasEinheit || isMass;
        std::size_t rest = NoPlace;
        double sum = 0;
        for (std::size_t i = 0; i < formel.m_anzahl; ++i) {
            Luecke& gap = m_luecken.at(before ? i : i + 1);
            Formelkomponente& komponente = formel.m_komponenten.at(i);
            if (!before && gap.minus != NoPlace)
                return failNegative(gap.minus);
            komponente.menge = std::move(gap.text);
            if (!komponente.menge.empty()) {
                readNumber(komponente.menge, komponente.prozent);
            } else if (!takesRest) {
                komponente.prozent = 1;
            } else if (rest != NoPlace) {
                return failAt(komponente, "Für " + komponente.element->symbol() + " fehlt die Menge",
                    "Nur ein Element kann den Rest bis 100 % nehmen.");
            } else {
                rest = i;
            }
            sum += komponente.prozent;
        }
        if (rest != NoPlace)
            takeRest(formel.m_komponenten.at(rest), sum);
        else
            scale(sum);
    }

    void takeRest(Formelkomponente& komponente, double sum)
    {
        if (sum > 100 + Rounding)
            return failAt(komponente, "Die Mengen der anderen ergeben mehr als 100 %");
        komponente.prozent = std::max(0.0, 100 - sum);
    }

    void scale(double sum)
    {
        auto& formel = m_lesung.formel;
        if (sum <= 0)
            return failAt(formel.m_komponenten.front(), "Alle Mengen sind 0");
        const bool isAlone = formel.m_anzahl == 1 && formel.m_komponenten.front().menge.empty();
        formel.m_umgerechnet = !isAlone && std::abs(sum - 100) > Rounding;
        if (!isAlone && !formel.m_umgerechnet)
            return;
        for (Formelkomponente& komponente : formel.m_komponenten)
            komponente.prozent *= 100 / sum;
    }

    static constexpr double Rounding = 5e-5; // of five parts in seven digits
    static constexpr std::string_view EinheitNennen = "At% oder wt% schreiben.";

    Luecke& gap() { return m_luecken.at(m_lesung.formel.m_anzahl); }
    std::size_t ort() const { return m_text.size() - m_rest.size(); }

    void fail(std::size_t ort, std::string grund, std::string_view abhilfe = {})
    {
        const std::size_t stelle = ort == NoPlace ? 0 : zeichenzahl(m_text.substr(0, ort)) + 1;
        m_lesung.fehler = Eingabefehler{std::move(grund), stelle, std::string(abhilfe)};
    }

    void failAt(const Formelkomponente& komponente, std::string grund, std::string_view abhilfe = {})
    {
        m_lesung.fehler = Eingabefehler{std::move(grund), komponente.stelle, std::string(abhilfe)};
    }

    void failNegative(std::size_t ort) { fail(ort, "Eine Menge kann nicht negativ sein"); }

    /// Names the element that was meant if only the capitals are wrong.
    void failUnknown(std::string_view symbol)
    {
        const std::string_view letters = buchstaben(m_rest);
        auto meant = m_elements.find(symbol, true);
        if (!meant && letters.size() > symbol.size())
            meant = m_elements.find(letters, true);
        fail(ort(), "Element " + zitiert(symbol) + " ist nicht bekannt",
            meant ? "Groß und klein wie in " + meant->symbol() + " schreiben." : nearest(symbol, letters));
    }

    std::string nearest(std::string_view symbol, std::string_view letters) const
    {
        std::string sentence = elementvorschlag(letters, m_elements);
        return sentence.empty() && symbol != letters ? elementvorschlag(symbol, m_elements) : sentence;
    }

    void failUnexpected(std::size_t ort)
    {
        const std::string_view rest = m_text.substr(ort);
        if (const std::string_view letters = buchstaben(rest); !letters.empty())
            return failUnknown(letters);
        if (rest.starts_with('%'))
            return fail(ort, "Prozent wovon, ist nicht zu erkennen", EinheitNennen);
        fail(ort, "Unerwartetes Zeichen " + zitiert(rest.substr(0, zeichenbeginn(rest, 1))));
    }

    std::string_view m_text;
    std::string_view m_rest;
    const ElementCollection& m_elements;
    Formellesung m_lesung;
    std::array<Luecke, MaxKomponenten + 1> m_luecken;
    Wort m_zuletzt = Wort::Keins; // units do not count
    bool m_klebt = false; // nothing stood between that word and what was read since
    bool m_hatMengen = false;
    bool m_hasEinheit = false;
};

Formellesung legierungsformel(std::string_view text, const ElementCollection& elements, Anteilseinheit einheit)
{
    return Formelleser(text, elements, einheit).lies();
}

std::string Legierungsformel::prozenttext(std::size_t komponente) const
{
    const Formelkomponente& found = komponenten()[komponente];
    const bool isTyped = !found.menge.empty() && !m_umgerechnet;
    return isTyped ? found.menge : textWithDigits(found.prozent, 7);
}

std::string Legierungsformel::text() const
{
    std::string text;
    for (std::size_t i = 0; i < m_anzahl; ++i)
        text += m_komponenten.at(i).element->symbol() + " " + prozenttext(i) + "  ";
    return text + std::string(einheitenname(m_einheit));
}

} // namespace zerna
