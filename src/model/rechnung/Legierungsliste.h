#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/rechnung/Groessen.h"

namespace zerna {

/// Alloys with their quantities for other programs, a line each that ends with LF: tab-separated under one heading, or
/// as JSON objects. Numbers have all digits and a decimal point; a missing one is empty or null.
class Legierungsliste {
public:
    enum class Form { Text, Json };

    Legierungsliste(std::span<const Groesse* const> groessen, Form form);

    /// The heading; empty in JSON, whose objects name each value.
    std::string kopf() const;

    /// Puts an alloy's line behind a text.
    void append(std::string& text, std::string_view legierung, const clsCalc& calc) const;

private:
    struct Spalte {
        const Groesse* groesse = nullptr;
        std::string before; ///< what stands in front of the value
    };

    std::vector<Spalte> m_spalten;
    Form m_form;
};

} // namespace zerna
