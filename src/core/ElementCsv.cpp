#include "core/ElementCsv.h"

#include <algorithm>
#include <charconv>
#include <concepts>
#include <optional>
#include <set>

#include "core/Csvzeile.h"
#include "core/Elementspalten.h"
#include "core/Kuerzung.h"
#include "core/Laufzeitfehler.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "core/Zeichensatz.h"

namespace zerna {

namespace {

constexpr std::string_view KeinUtf8 = "kein UTF-8-Text (die Tabelle als \"CSV UTF-8\" speichern)";

using Cells = std::vector<std::string>;

/// A table's lines one after the other. What stands between its cells is seen in the header.
class Lines {
public:
    explicit Lines(std::string_view text)
        : m_text(text)
    {
        const std::size_t end = std::min(text.find_first_of(",;\t\n"), text.size());
        if (end < text.size() && text[end] != '\n')
            m_separator = text[end];
    }

    bool atEnd() const { return m_next >= m_text.size(); }

    /// Number of the line read last, 1 = header; of its first one if quoted cells go over several.
    std::size_t number() const { return m_number; }

    Cells next()
    {
        m_number = m_nextNumber;
        const std::size_t begin = m_next;
        Cells cells = csvZeile(m_text, m_next, m_separator);
        m_nextNumber += static_cast<std::size_t>(std::ranges::count(m_text.substr(begin, m_next - begin), '\n'));
        return cells;
    }

private:
    std::string_view m_text;
    char m_separator = ',';
    std::size_t m_next = 0;
    std::size_t m_number = 0;
    std::size_t m_nextNumber = 1;
};

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

    [[noreturn]] void failAt(const Elementspalte& spalte, const std::string& reason) const
    {
        fail("Spalte " + std::string(spalte.name) + ": " + reason);
    }

    [[noreturn]] void failNumber(const Elementspalte& spalte, std::string_view text) const
    {
        const std::optional<Fremdzeichen> fremd = fremdzeichen(text);
        failAt(spalte, fremd && fremd->beschaedigt ? std::string(KeinUtf8) : zitiert(text) + " ist keine gültige Zahl");
    }

    template <std::integral Integer>
    void read(const Elementspalte& spalte, std::string_view text, Integer& value) const
    {
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error != std::errc() || end != text.data() + text.size())
            failNumber(spalte, text);
    }

    void read(const Elementspalte& spalte, std::string_view text, float& value) const
    {
        try {
            value = text.empty() ? Unbekannt : singleFromText(text);
        } catch (const Laufzeitfehler&) {
            failNumber(spalte, text);
        }
    }

    void read(const Elementspalte& spalte, std::string_view text, std::string& value) const
    {
        const std::optional<Fremdzeichen> fremd = fremdzeichen(text);
        if (fremd && fremd->beschaedigt)
            failAt(spalte, std::string(KeinUtf8));
        if (fremd)
            failAt(spalte, "das Zeichen \"" + std::string(fremd->zeichen) + "\" kann die Elementdatei nicht aufnehmen");
        value = text;
    }

    void read(const Elementspalte& spalte, std::string_view text, Elektronenzahlen& counts) const
    {
        for (std::uint8_t& count : counts) {
            const std::size_t end = std::min(text.find(' '), text.size());
            read(spalte, text.substr(0, end), count);
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        if (!text.empty())
            failNumber(spalte, text);
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
    Lines lines(text);
    if (const auto fremd = fremdzeichen(text.substr(0, text.find('\n'))); fremd && fremd->beschaedigt)
        throw Tabellenfehler("Zeile 1: " + std::string(KeinUtf8));
    if (!std::ranges::equal(lines.next(), Elementspalten, {}, {}, &Elementspalte::name))
        throw Tabellenfehler("Zeile 1 enthält nicht die erwarteten Spaltennamen");
    std::vector<ElementRecord> records;
    std::set<std::string> symbols;
    while (!lines.atEnd()) {
        const Cells cells = lines.next();
        if (std::ranges::all_of(cells, &std::string::empty))
            continue;
        records.push_back(LineReader(lines.number()).record(cells));
        const std::string& symbol = records.back().symbol;
        if (symbol.empty() || !symbols.insert(symbol).second)
            throw Tabellenfehler("Zeile " + std::to_string(lines.number()) + ": Symbol " + zitiert(symbol)
                + " fehlt oder ist schon vergeben");
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
