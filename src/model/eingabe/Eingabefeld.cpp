#include "model/eingabe/Eingabefeld.h"

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "parser/Formelwert.h"

namespace zerna {

namespace {

Eingabefehler zuGross() { return {"Der Wert ist zu groß"}; }

std::string zahlabhilfe(const Laufzeitfehler& error)
{
    return error.Nummer() == static_cast<int>(Fehler::Ueberlauf)
        ? "Der Wert ist zu groß."
        : "Ziffern mit höchstens einem Komma oder Punkt eintragen, zum Beispiel 2,7.";
}

/// What helps where the reason alone does not tell.
std::string abhilfeFor(const Formelfehler& fehler)
{
    if (fehler.Grund == "Operand fehlt")
        return "Zu jedem Rechenzeichen gehören zwei Zahlen; für -3 in einer Formel (0-3) schreiben.";
    if (fehler.Grund.starts_with("Funktion "))
        return "Gibt es zum Beispiel: sqrt, ln, lg, exp, pow, sin, cos, abs.";
    const auto nummer = static_cast<Fehler>(fehler.Nummer);
    if (fehler.Grund != Laufzeitfehler(nummer).what())
        return {};
    if (nummer == Fehler::DivisionDurchNull)
        return "Der Nenner darf nicht 0 sein.";
    if (nummer == Fehler::UngueltigesArgument)
        return "Wurzel, Logarithmus und Potenz sind nicht für jede Zahl festgelegt.";
    return nummer == Fehler::Ueberlauf ? "Der Wert ist zu groß oder unbestimmt wie 0/0." : "";
}

/// The field of a text that is a number; no value for a formula.
std::optional<Eingabefeld> plainNumber(std::string_view text)
{
    try {
        const std::optional<double> number = numberIn(text);
        if (!number)
            return std::nullopt;
        return Eingabefeld{std::string(text), toSingle(*number)};
    } catch (const Laufzeitfehler&) {
        return Eingabefeld{std::string(text), Unbekannt, zuGross()};
    }
}

} // namespace

std::string Eingabefehler::text() const
{
    const std::string located = stelle == 0 ? grund : grund + " (Zeichen " + std::to_string(stelle) + ")";
    return abhilfe.empty() ? located : located + ". " + abhilfe;
}

Eingabefeld zahlenfeld(std::string_view text)
{
    Eingabefeld feld;
    readZahl(feld, text);
    return feld;
}

void readZahl(Eingabefeld& feld, std::string_view text)
{
    writeZahl(feld, text, Unbekannt);
    try {
        feld.wert = singleFromText(text);
    } catch (const Laufzeitfehler& error) {
        feld.fehler = Eingabefehler{"Keine gültige Zahl (" + std::string(error.what()) + ")", 0, zahlabhilfe(error)};
    }
}

void writeZahl(Eingabefeld& feld, std::string_view text, float wert)
{
    feld.text = text;
    feld.wert = wert;
    feld.fehler.reset();
    feld.echo.clear();
    feld.meldungen.clear();
}

Eingabefeld valenzfeld(std::string_view text, const ElementCollection& elements)
{
    if (const auto number = plainNumber(text))
        return *number;
    Eingabefeld feld{std::string(text)};
    Formelwert formel = formelwert(text, elements);
    feld.meldungen = std::move(formel.meldungen);
    if (formel.fehler) {
        feld.fehler = Eingabefehler{formel.fehler->Grund, formel.fehler->Stelle, abhilfeFor(*formel.fehler)};
    } else if (formel.hexadezimal) { // a form that the calculator cannot take
        feld.fehler =
            Eingabefehler{"Hexadezimalzahl als Valenz (" + formel.text + ")", 0, "Ohne die Funktion hex schreiben."};
    } else {
        try {
            feld.wert = singleFromText(formel.text);
            feld.echo = formel.text;
        } catch (const Laufzeitfehler&) {
            feld.fehler = zuGross();
        }
    }
    if (feld.fehler)
        feld.wert = Unbekannt;
    return feld;
}

std::string feldtext(float value) { return istUnbekannt(value) ? std::string(UnbekannterWert) : textOfSingle(value); }

} // namespace zerna
