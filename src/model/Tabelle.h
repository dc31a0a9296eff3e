#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zerna {

/// A small table for other programs. Numbers are texts with a decimal point already.
struct Tabelle {
    struct Spalte {
        std::string_view name;
        bool istZahl = false;
    };

    std::vector<Spalte> spalten;
    std::vector<std::vector<std::string>> zeilen; ///< one text per column
};

/// Lines of tab-separated cells without a header, CR LF after each.
std::string alsText(const Tabelle& tabelle);

/// An HTML table with a heading; numbers end at the right. Lines with fewer cells than columns end in empty ones.
std::string alsHtml(const Tabelle& tabelle);

/// A JSON array with an object per line, keyed by the columns' names.
std::string alsJson(const Tabelle& tabelle);

} // namespace zerna
