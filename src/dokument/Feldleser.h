#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "dokument/Jsontext.h"

namespace zerna {

/// Takes values out of JSON objects and checks them. The first thing that is wrong is kept; whoever asks then or later
/// gets some harmless value, so that it is enough to look for an error at the end.
class Feldleser {
public:
    explicit Feldleser(const Jsontext& json)
        : m_json(json)
    {
    }

    const std::optional<Lesefehler>& fehler() const { return m_fehler; }

    /// Refuses a value; `grund` is a sentence without its full stop.
    void ablehnen(const Json& value, std::string grund);

    /// The value of a key; null if it is missing.
    const Json& feld(const Json& object, std::string_view key);

    const Json& objekt(const Json& object, std::string_view key);

    /// An array of as many values.
    const Json& liste(const Json& object, std::string_view key, std::size_t fewest, std::size_t most);

    /// At most so many characters.
    std::string text(const Json& object, std::string_view key, std::size_t longest);
    std::string text(const Json& value, std::size_t longest);

    /// A text or null, which is the empty text.
    std::string textOderNull(const Json& object, std::string_view key, std::size_t longest);

    int ganzzahl(const Json& object, std::string_view key, int least, int most);
    double zahl(const Json& object, std::string_view key, double least, double most);
    bool schalter(const Json& object, std::string_view key);

    /// A number that a single can hold or null, which is Unbekannt.
    float wert(const Json& object, std::string_view key);
    float wert(const Json& value);

private:
    const Jsontext& m_json;
    std::optional<Lesefehler> m_fehler;
};

} // namespace zerna
