// Turns the element table and the rules of where its values come from into source text, a line per element:
//   quellentabelle ELEMENTE.csv QUELLEN.csv OUT.cpp

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "core/Csvzeile.h"

namespace {

using Cells = std::vector<std::string>;
using Table = std::vector<Cells>;

Table readTable(const std::string& path)
{
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + path);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    Table table;
    for (std::size_t position = 0; position < text.size();)
        table.push_back(zerna::csvZeile(text, position));
    return table;
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

/// Which rule speaks for a cell: column and symbol, or "" for any known value, "?" for any unknown one.
class Rules {
public:
    explicit Rules(const Table& table)
    {
        for (std::size_t rule = 1; rule < table.size(); ++rule) {
            const std::string& elements = table[rule].at(1);
            for (std::size_t begin = 0; begin <= elements.size();) {
                const std::size_t end = std::min(elements.find(' ', begin), elements.size());
                m_rules[{table[rule].front(), elements.substr(begin, end - begin)}] = rule - 1;
                begin = end + 1;
            }
        }
    }

    std::size_t of(const std::string& column, const std::string& symbol, bool known) const
    {
        const auto own = m_rules.find({column, symbol});
        return own != m_rules.end() ? own->second : m_rules.at({column, known ? "" : "?"});
    }

private:
    std::map<std::pair<std::string, std::string>, std::size_t> m_rules;
};

void writeTables(const Table& elements, const Table& sources, const std::string& out)
{
    constexpr std::size_t SymbolColumn = 2;
    std::ofstream stream(out);
    stream << "#include \"model/rechnung/Quellentabelle.h\"\n\nstatic constexpr zerna::Quelle Regeln[] = {\n";
    for (const Cells& rule : std::span(sources).subspan(1))
        stream << "    {" << quoted(rule.at(2)) << ", " << quoted(rule.at(3)) << ", " << quoted(rule.at(4)) << "},\n";
    stream << "};\n\nstatic constexpr zerna::Zeilenquelle Zeilen[] = {\n";
    const Rules rules(sources);
    const Cells& header = elements.front();
    for (const Cells& element : std::span(elements).subspan(1)) {
        const std::string& symbol = element.at(SymbolColumn);
        std::string values;
        std::string places;
        for (std::size_t column = 0; column < header.size(); ++column) {
            const std::string& value = element.at(column);
            values += value + "\\t";
            places += std::to_string(rules.of(header[column], symbol, !value.empty())) + ", ";
        }
        stream << "    {" << quoted(symbol) << ", " << quoted(values) << ", {" << places << "}},\n";
    }
    stream << "};\n\nconstinit const std::span<const zerna::Quelle> zerna::Quellen(Regeln);\n"
           << "constinit const std::span<const zerna::Zeilenquelle> zerna::Quellzeilen(Zeilen);\n";
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const std::span<char* const> arguments{argv, static_cast<std::size_t>(argc)};
        if (arguments.size() != 4)
            throw std::runtime_error("usage: quellentabelle ELEMENTE.csv QUELLEN.csv OUT.cpp");
        writeTables(readTable(arguments[1]), readTable(arguments[2]), arguments[3]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "quellentabelle: " << error.what() << '\n';
        return 1;
    }
}
