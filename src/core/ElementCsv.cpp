#include "core/ElementCsv.h"

#include <array>
#include <charconv>
#include <limits>
#include <set>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

/// The columns in their order; numbers stand at 5 to 14 in file order.
constexpr std::array<std::string_view, 18> Spalten{"X", "Y", "symbol", "Name", "OZ", "Masse", "Schmelztemperatur",
    "Siedetemperatur", "Valenz", "Dichte_Fluessig", "Dichte_Kristallin", "Dichte_Amorph", "Atomradius",
    "Ionisierungsenergie", "Elektronegativitaet", "Elektronenkonfiguration", "Elektronen", "EGK"};
constexpr std::size_t FirstNumber = 5;

using Cells = std::vector<std::string>;

/// Takes the line that begins at `position` apart and moves on behind it. A quoted cell may hold line ends.
Cells nextLine(std::string_view text, std::size_t& position)
{
    Cells cells(1);
    bool quoted = false;
    for (; position < text.size(); ++position) {
        const char c = text[position];
        if (c == '"') {
            const bool doubled = quoted && position + 1 < text.size() && text[position + 1] == '"';
            if (doubled)
                cells.back() += text[position++];
            else
                quoted = !quoted;
        } else if (quoted || std::string_view(",\n\r").find(c) == std::string_view::npos) {
            cells.back() += c;
        } else if (c == ',') {
            cells.emplace_back();
        } else if (c == '\n') {
            ++position;
            break;
        }
    }
    return cells;
}

/// Reads the cells of one line and knows where it is for messages.
class LineReader {
public:
    LineReader(const Cells& cells, std::size_t line)
        : m_cells(cells)
        , m_line(line)
    {
        if (cells.size() != Spalten.size())
            fail("hat " + std::to_string(cells.size()) + " statt " + std::to_string(Spalten.size()) + " Spalten");
    }

    ElementRecord record() const
    {
        ElementRecord record;
        record.X = integer<std::uint8_t>(0, m_cells[0]);
        record.Y = integer<std::uint8_t>(1, m_cells[1]);
        record.symbol = m_cells[2];
        record.Name = m_cells[3];
        record.OZ = integer<std::int16_t>(4, m_cells[4]);
        for (std::size_t i = 0; i < ElementRecordNumbers.size(); ++i)
            record.*ElementRecordNumbers.at(i) = number(FirstNumber + i);
        record.Elektronenkonfiguration = m_cells[15];
        record.Elektronen = counts(16);
        record.EGK = m_cells[17];
        return record;
    }

private:
    [[noreturn]] void fail(const std::string& reason) const
    {
        throw Tabellenfehler("Zeile " + std::to_string(m_line) + " " + reason);
    }

    [[noreturn]] void failAt(std::size_t column, std::string_view text) const
    {
        fail("Spalte " + std::string(Spalten.at(column)) + ": \"" + std::string(text) + "\" ist keine gültige Zahl");
    }

    template <class Integer>
    Integer integer(std::size_t column, std::string_view text) const
    {
        Integer value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error != std::errc() || end != text.data() + text.size())
            failAt(column, text);
        return value;
    }

    float number(std::size_t column) const
    {
        const std::string& text = m_cells[column];
        if (text.empty())
            return Unbekannt;
        try {
            return singleFromText(text);
        } catch (const Laufzeitfehler&) {
            failAt(column, text);
        }
    }

    std::array<std::uint8_t, 18> counts(std::size_t column) const
    {
        std::array<std::uint8_t, 18> result{};
        std::string_view rest = m_cells[column];
        for (std::uint8_t& count : result) {
            const std::size_t end = std::min(rest.find(' '), rest.size());
            count = integer<std::uint8_t>(column, rest.substr(0, end));
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
        if (!rest.empty())
            failAt(column, rest);
        return result;
    }

    const Cells& m_cells;
    std::size_t m_line; // 1 = header
};

std::string quotedIfNeeded(const std::string& cell)
{
    if (cell.find_first_of(",\"\r\n") == std::string::npos)
        return cell;
    return '"' + ReplaceText(cell, "\"", "\"\"") + '"';
}

std::string numberCell(float value)
{
    return istUnbekannt(value) ? std::string() : textOfSingle(value, Dezimaltrenner::Punkt);
}

std::string countsCell(const std::array<std::uint8_t, 18>& counts)
{
    std::string cell;
    for (const std::uint8_t count : counts)
        cell += (cell.empty() ? "" : " ") + std::to_string(count);
    return cell;
}

} // namespace

std::vector<ElementRecord> readElementCsv(std::string_view text)
{
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    std::size_t position = 0;
    const Cells header = nextLine(text, position);
    if (!std::equal(header.begin(), header.end(), Spalten.begin(), Spalten.end()))
        throw Tabellenfehler("Zeile 1 enthält nicht die erwarteten Spaltennamen");
    std::vector<ElementRecord> records;
    std::set<std::string> symbols;
    for (std::size_t line = 2; position < text.size(); ++line) {
        const Cells cells = nextLine(text, position);
        if (cells.size() == 1 && cells.front().empty())
            continue;
        records.push_back(LineReader(cells, line).record());
        const std::string& symbol = records.back().symbol;
        if (symbol.empty() || !symbols.insert(symbol).second)
            throw Tabellenfehler(
                "Zeile " + std::to_string(line) + ": Symbol \"" + symbol + "\" fehlt oder ist schon vergeben");
    }
    return records;
}

std::string writeElementCsv(std::span<const ElementRecord> records)
{
    std::string text;
    for (const std::string_view column : Spalten)
        text.append(text.empty() ? "" : ",").append(column);
    text += '\n';
    for (const ElementRecord& r : records) {
        text += std::to_string(r.X) + ',' + std::to_string(r.Y) + ',' + quotedIfNeeded(r.symbol) + ','
            + quotedIfNeeded(r.Name) + ',' + std::to_string(r.OZ);
        for (float ElementRecord::*const number : ElementRecordNumbers)
            text += ',' + numberCell(r.*number);
        text += ',' + quotedIfNeeded(r.Elektronenkonfiguration) + ',' + countsCell(r.Elektronen) + ','
            + quotedIfNeeded(r.EGK) + '\n';
    }
    return text;
}

} // namespace zerna
