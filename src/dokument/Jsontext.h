#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "dokument/Lesefehler.h"

namespace zerna {

/// A JSON value whose keys keep their order.
using Json = nlohmann::ordered_json;

/// A JSON text with its value, which knows where each part of it stands. Refused are, besides what is no JSON in UTF-8:
/// a key given twice, more than MostKeys keys in one object, more than MostValues values, deeper nesting than Deepest.
class Jsontext {
public:
    static constexpr std::size_t Deepest = 64;
    static constexpr std::size_t MostKeys = 100;
    static constexpr std::size_t MostValues = 200'000;

    explicit Jsontext(std::string_view text);

    /// Why the text has no value.
    const std::optional<Lesefehler>& fehler() const { return m_fehler; }

    const Json& wert() const { return m_wert; }

    /// The place of a part of the value, for an error that it is.
    Lesefehler fehlerBei(const Json& part, std::string grund) const;

private:
    Lesefehler fehlerAn(std::size_t offset, std::string grund) const;

    std::string_view m_text;
    Json m_wert;
    std::vector<std::size_t> m_offsets; // of all values, parents before their parts
    std::optional<Lesefehler> m_fehler;
};

} // namespace zerna
