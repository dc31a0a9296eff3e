#include "model/Eingabefeld.h"

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "parser/Formelwert.h"

namespace zerna {

namespace {

Eingabefehler zuGross() { return {"Der Wert ist zu groß"}; }

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
    return stelle == 0 ? grund : grund + " (Zeichen " + std::to_string(stelle) + ")";
}

Eingabefeld zahlenfeld(std::string_view text)
{
    Eingabefeld feld;
    readZahl(feld, text);
    return feld;
}

void readZahl(Eingabefeld& feld, std::string_view text)
{
    feld.text = text;
    feld.fehler.reset();
    feld.echo.clear();
    feld.meldungen.clear();
    try {
        feld.wert = singleFromText(text);
    } catch (const Laufzeitfehler& error) {
        feld.wert = Unbekannt;
        feld.fehler = Eingabefehler{"Keine gültige Zahl (" + std::string(error.what()) + ")"};
    }
}

Eingabefeld valenzfeld(std::string_view text, const ElementCollection& elements)
{
    if (const auto number = plainNumber(text))
        return *number;
    Eingabefeld feld{std::string(text)};
    Formelwert formel = formelwert(text, elements);
    feld.meldungen = std::move(formel.meldungen);
    if (formel.fehler) {
        feld.fehler = Eingabefehler{formel.fehler->Grund, formel.fehler->Stelle};
    } else if (formel.hexadezimal) { // a form that the calculator cannot take
        feld.fehler = Eingabefehler{"Hexadezimalzahl als Valenz (" + formel.text + ")"};
    } else {
        try {
            feld.wert = singleFromText(formel.text);
            if (!text.empty())
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
