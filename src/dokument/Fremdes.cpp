#include "dokument/Fremdes.h"

#include <algorithm>
#include <utility>

namespace zerna {

namespace {

Json fremdesImObjekt(const Json& value, const Json& known)
{
    Json fremdes;
    for (const auto& [key, part] : value.items()) {
        const auto here = known.find(key);
        if (here == known.end())
            fremdes[key] = part;
        else if (Json inside = fremdesIn(part, *here); !inside.is_null())
            fremdes[key] = std::move(inside);
    }
    return fremdes;
}

Json fremdesInDerListe(const Json& value, const Json& known)
{
    Json fremdes;
    for (std::size_t i = 0; i < std::min(value.size(), known.size()); ++i) {
        if (Json inside = fremdesIn(value.at(i), known.at(i)); !inside.is_null())
            fremdes[i] = std::move(inside); // entries before it become null
    }
    return fremdes;
}

} // namespace

Json fremdesIn(const Json& value, const Json& known)
{
    if (value.is_object() && known.is_object())
        return fremdesImObjekt(value, known);
    return value.is_array() && known.is_array() ? fremdesInDerListe(value, known) : Json();
}

std::string fremdtext(const Json& value, const Json& known)
{
    const Json fremdes = fremdesIn(value, known);
    return fremdes.is_null() ? "" : fremdes.dump();
}

Json fremdesAus(const std::string& text) { return text.empty() ? Json() : Json::parse(text, nullptr, false); }

void fuegeEin(Json& target, const Json& fremdes)
{
    if (target.is_object() && fremdes.is_object()) {
        for (const auto& [key, part] : fremdes.items()) {
            if (!target.contains(key))
                target[key] = part;
            else
                fuegeEin(target[key], part);
        }
    } else if (target.is_array() && fremdes.is_array()) {
        for (std::size_t i = 0; i < std::min(target.size(), fremdes.size()); ++i)
            fuegeEin(target[i], fremdes.at(i));
    }
}

} // namespace zerna
