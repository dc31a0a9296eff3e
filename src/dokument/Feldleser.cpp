#include "dokument/Feldleser.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/Kuerzung.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "core/Zeichensatz.h"

namespace zerna {

namespace {

const Json Nichts;
const Json LeeresObjekt = Json::object();
const Json LeereListe = Json::array();

std::string bereich(double least, double most) { return textOfDouble(least) + " bis " + textOfDouble(most); }

std::string named(std::string_view key) { return zitiert(key); }

} // namespace

void Feldleser::ablehnen(const Json& value, std::string grund)
{
    if (!m_fehler)
        m_fehler = m_json.fehlerBei(value, std::move(grund));
}

const Json& Feldleser::feld(const Json& object, std::string_view key)
{
    if (m_fehler)
        return Nichts;
    const auto found = object.is_object() ? object.find(std::string(key)) : object.end();
    if (found != object.end())
        return *found;
    ablehnen(object, "Hier fehlt die Angabe " + named(key));
    return Nichts;
}

const Json& Feldleser::objekt(const Json& object, std::string_view key)
{
    const Json& value = feld(object, key);
    if (value.is_object())
        return value;
    ablehnen(value, named(key) + " muss ein Objekt sein");
    return LeeresObjekt;
}

const Json& Feldleser::liste(const Json& object, std::string_view key, std::size_t fewest, std::size_t most)
{
    const Json& value = feld(object, key);
    if (value.is_array() && value.size() >= fewest && value.size() <= most)
        return value;
    ablehnen(value,
        named(key) + " muss eine Liste von "
            + (fewest == most ? std::to_string(most) : std::to_string(fewest) + " bis " + std::to_string(most))
            + " Einträgen sein");
    return LeereListe;
}

std::string Feldleser::text(const Json& value, std::size_t longest)
{
    if (!value.is_string()) {
        ablehnen(value, "Hier muss ein Text stehen");
        return {};
    }
    const auto& text = value.get_ref<const std::string&>();
    if (zeichenzahl(text) <= longest)
        return text;
    ablehnen(value, "Der Text hat mehr als " + std::to_string(longest) + " Zeichen");
    return {};
}

std::string Feldleser::text(const Json& object, std::string_view key, std::size_t longest)
{
    const Json& value = feld(object, key);
    if (!value.is_string())
        ablehnen(value, named(key) + " muss ein Text sein");
    return m_fehler ? "" : text(value, longest);
}

std::string Feldleser::textOderNull(const Json& object, std::string_view key, std::size_t longest)
{
    return feld(object, key).is_null() ? "" : text(object, key, longest);
}

int Feldleser::ganzzahl(const Json& object, std::string_view key, int least, int most)
{
    const Json& value = feld(object, key);
    const bool isInt = value.is_number_integer()
        && (!value.is_number_unsigned() || value.get<std::uint64_t>() <= std::numeric_limits<int>::max());
    if (isInt && value.get<std::int64_t>() >= least && value.get<std::int64_t>() <= most)
        return value.get<int>();
    ablehnen(value, named(key) + " muss eine ganze Zahl von " + bereich(least, most) + " sein");
    return least;
}

double Feldleser::zahl(const Json& object, std::string_view key, double least, double most)
{
    const Json& value = feld(object, key);
    if (value.is_number() && value.get<double>() >= least && value.get<double>() <= most)
        return value.get<double>();
    ablehnen(value, named(key) + " muss eine Zahl von " + bereich(least, most) + " sein");
    return least;
}

bool Feldleser::schalter(const Json& object, std::string_view key)
{
    const Json& value = feld(object, key);
    if (!value.is_boolean())
        ablehnen(value, named(key) + " muss true oder false sein");
    return value.is_boolean() && value.get<bool>();
}

float Feldleser::wert(const Json& object, std::string_view key)
{
    constexpr double Largest = std::numeric_limits<float>::max();
    return feld(object, key).is_null() ? Unbekannt : static_cast<float>(zahl(object, key, -Largest, Largest));
}

float Feldleser::wert(const Json& value)
{
    if (value.is_null())
        return Unbekannt;
    const double number = value.is_number() ? value.get<double>() : NAN;
    if (std::abs(number) <= std::numeric_limits<float>::max())
        return static_cast<float>(number);
    ablehnen(value, "Hier muss eine Zahl oder null stehen");
    return Unbekannt;
}

} // namespace zerna
