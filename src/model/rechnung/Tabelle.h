#pragma once

#include <string>
#include <vector>

namespace zerna {

/// A small table for other programs. Numbers are texts with a decimal point already.
struct Tabelle {
    struct Spalte {
        std::string name;
        bool istZahl = false;
    };

    std::vector<Spalte> spalten;
    std::vector<std::vector<std::string>> zeilen; ///< one text per column
};

/// Lines of tab-separated cells without a header, CR LF after each.
std::string alsText(const Tabelle& tabelle);

/// The table with the columns' names as its first line.
Tabelle mitKopf(Tabelle tabelle);

/// Lines of cells with semicolons between them and a header, as German spreadsheets read them: UTF-8 with a byte order
/// mark, CR LF after each. Cells that need it stand in quotation marks.
std::string alsCsv(const Tabelle& tabelle);

/// An HTML table with a heading; numbers end at the right. Lines with fewer cells than columns end in empty ones.
std::string alsHtml(const Tabelle& tabelle);

/// A JSON array with an object per line, keyed by the columns' names. An empty number is null.
std::string alsJson(const Tabelle& tabelle);

} // namespace zerna
