#include "model/rechnung/Legierungsliste.h"

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr std::string_view Legierungstitel = "Legierung";

std::string titel(const Groesse& groesse)
{
    return std::string(groesse.bezeichnung()) + " [" + std::string(groesse.einheit) + ']';
}

void appendInQuotes(std::string& text, std::string_view value)
{
    text += '"';
    for (const char c : value) {
        if (c == '"' || c == '\\')
            text += '\\';
        text += c;
    }
    text += '"';
}

} // namespace

Legierungsliste::Legierungsliste(std::span<const Groesse* const> groessen, Form form)
    : m_form(form)
{
    for (const Groesse* const groesse : groessen)
        m_spalten.push_back({groesse, form == Form::Text ? "\t" : ", \"" + titel(*groesse) + "\": "});
}

std::string Legierungsliste::kopf() const
{
    if (m_form == Form::Json)
        return {};
    std::string text(Legierungstitel);
    for (const Spalte& spalte : m_spalten)
        text += '\t' + titel(*spalte.groesse);
    return text + '\n';
}

void Legierungsliste::append(std::string& text, std::string_view legierung, const clsCalc& calc) const
{
    const bool isJson = m_form == Form::Json;
    const std::size_t begin = text.size();
    if (isJson) {
        text.append("{\"").append(Legierungstitel).append("\": ");
        appendInQuotes(text, legierung);
    } else {
        text += legierung;
    }
    for (std::size_t i = begin; i < text.size(); ++i) { // what is between components makes no columns, no lines
        if (static_cast<unsigned char>(text[i]) < ' ')
            text[i] = ' ';
    }
    for (const Spalte& spalte : m_spalten) {
        text += spalte.before;
        const float value = wert(*spalte.groesse, calc);
        if (!istUnbekannt(value))
            appendSingle(text, value, Dezimaltrenner::Punkt);
        else if (isJson)
            text += "null";
    }
    text += isJson ? "}\n" : "\n";
}

} // namespace zerna
