#include "core/ElementCsv.h"

#include <algorithm>
#include <charconv>
#include <concepts>
#include <set>

#include "core/Csvzeile.h"
#include "core/Elementspalten.h"
#include "core/Laufzeitfehler.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

using Cells = std::vector<std::string>;

/// Reads the cells of one line and says in messages where they stand.
class LineReader {
public:
    explicit LineReader(std::size_t line)
        : m_line(line)
    {
    }

    ElementRecord record(const Cells& cells) const
    {
        const std::size_t expected = Elementspalten.size();
        if (cells.size() != expected)
            fail("hat " + std::to_string(cells.size()) + " statt " + std::to_string(expected) + " Spalten");
        ElementRecord record;
        auto cell = cells.begin();
        forEachSpalte([&](const Elementspalte& spalte, auto field) { read(spalte, *cell++, record.*field); });
        return record;
    }

private:
    [[noreturn]] void fail(const std::string& reason) const
    {
        throw Tabellenfehler("Zeile " + std::to_string(m_line) + " " + reason);
    }

    [[noreturn]] void failAt(const Elementspalte& spalte, std::string_view text) const
    {
        fail("Spalte " + std::string(spalte.name) + ": \"" + std::string(text) + "\" ist keine gültige Zahl");
    }

    template <std::integral Integer>
    void read(const Elementspalte& spalte, std::string_view text, Integer& value) const
    {
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error != std::errc() || end != text.data() + text.size())
            failAt(spalte, text);
    }

    void read(const Elementspalte& spalte, std::string_view text, float& value) const
    {
        try {
            value = text.empty() ? Unbekannt : singleFromText(text);
        } catch (const Laufzeitfehler&) {
            failAt(spalte, text);
        }
    }

    void read(const Elementspalte&, std::string_view text, std::string& value) const { value = text; }

    void read(const Elementspalte& spalte, std::string_view text, Elektronenzahlen& counts) const
    {
        for (std::uint8_t& count : counts) {
            const std::size_t end = std::min(text.find(' '), text.size());
            read(spalte, text.substr(0, end), count);
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        if (!text.empty())
            failAt(spalte, text);
    }

    std::size_t m_line; // 1 = header
};

std::string cell(std::integral auto value) { return std::to_string(value); }

std::string cell(float value)
{
    return istUnbekannt(value) ? std::string() : textOfSingle(value, Dezimaltrenner::Punkt);
}

std::string cell(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    return '"' + ReplaceText(text, "\"", "\"\"") + '"';
}

std::string cell(const Elektronenzahlen& counts)
{
    std::string text;
    for (const std::uint8_t count : counts)
        text += (text.empty() ? "" : " ") + std::to_string(count);
    return text;
}

} // namespace

std::vector<ElementRecord> readElementCsv(std::string_view text)
{
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    std::size_t position = 0;
    const Cells header = csvZeile(text, position);
    if (!std::ranges::equal(header, Elementspalten, {}, {}, &Elementspalte::name))
        throw Tabellenfehler("Zeile 1 enthält nicht die erwarteten Spaltennamen");
    std::vector<ElementRecord> records;
    std::set<std::string> symbols;
    for (std::size_t line = 2; position < text.size(); ++line) {
        const Cells cells = csvZeile(text, position);
        if (cells.size() == 1 && cells.front().empty())
            continue;
        records.push_back(LineReader(line).record(cells));
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
    for (const Elementspalte& spalte : Elementspalten)
        text.append(spalte.name) += ',';
    text.back() = '\n';
    for (const ElementRecord& record : records) {
        forEachSpalte([&](const Elementspalte&, auto field) { text += cell(record.*field) + ','; });
        text.back() = '\n';
    }
    return text;
}

} // namespace zerna
