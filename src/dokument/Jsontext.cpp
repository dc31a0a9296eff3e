#include "dokument/Jsontext.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

#include "core/Zeichensatz.h"

namespace zerna {

namespace {

/// Goes through a text and says how much of it was read.
class Zaehler {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Zaehler(const char* next, const char*& seen)
        : m_next(next)
        , m_seen(&seen)
    {
    }

    const char& operator*() const { return *m_next; }
    Zaehler& operator++()
    {
        *m_seen = ++m_next;
        return *this;
    }
    bool operator==(const Zaehler& other) const { return m_next == other.m_next; }

private:
    const char* m_next;
    const char** m_seen;
};

bool isBetweenValues(char c) { return std::string_view(" \t\r\n,:").find(c) != std::string_view::npos; }

/// Builds the value while the text is read.
class Aufbau : public nlohmann::json_sax<Json> {
public:
    Aufbau(std::string_view text, Json& root, std::vector<std::size_t>& offsets)
        : m_text(text)
        , m_root(root)
        , m_offsets(offsets)
    {
    }

    bool null() override { return add(nullptr) != nullptr; }
    bool boolean(bool value) override { return add(value) != nullptr; }
    bool number_integer(std::int64_t value) override { return addNumber(value); }
    bool number_unsigned(std::uint64_t value) override { return addNumber(value); }
    bool number_float(double value, const std::string&) override { return addNumber(value); }
    bool string(std::string& value) override { return add(std::move(value)) != nullptr; }
    bool binary(Json::binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(Json::object()); }
    bool start_array(std::size_t) override { return open(Json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(std::string& name) override
    {
        const std::size_t start = nextToken();
        m_end = read();
        if (m_open.back()->contains(name))
            return fail(start, "Der Schlüssel \"" + name + "\" kommt zweimal vor");
        if (m_open.back()->size() == Jsontext::MostKeys)
            return fail(start, "Hier stehen zu viele Schlüssel");
        m_key = std::move(name);
        return true;
    }

    bool parse_error(std::size_t position, const std::string&, const Json::exception& error) override
    {
        const std::string_view reason = error.what();
        const auto says = [&](std::string_view part) { return reason.find(part) != std::string_view::npos; };
        const std::size_t offset = position == 0 ? 0 : position - 1;
        if (says("UTF-8"))
            return fail(offset, "Hier steht kein gültiges UTF-8");
        if (says("surrogate"))
            return fail(offset, "Die Ersatzdarstellung eines Zeichens (\\u…) ist unvollständig");
        if (says("out_of_range"))
            return fail(offset, "Die Zahl ist zu groß");
        if (says("unexpected end of input") || offset >= m_text.size())
            return fail(m_text.size(), "Die Datei ist hier zu Ende, obwohl etwas fehlt");
        const bool isWord =
            says("unexpected") && std::string_view(",:[]{}").find(m_text[offset]) == std::string_view::npos;
        return fail(isWord ? nextToken() : offset, "Das ist kein gültiges JSON");
    }

    const char*& seen() { return m_seen; }
    std::size_t errorOffset() const { return m_errorOffset; }
    const std::string& reason() const { return m_reason; }

private:
    std::size_t read() const { return static_cast<std::size_t>(m_seen - m_text.data()); }

    /// Where the token begins that was just read.
    std::size_t nextToken() const
    {
        std::size_t start = m_end;
        while (start < m_text.size() && isBetweenValues(m_text[start]))
            ++start;
        return start;
    }

    /// Null if there are too many values.
    Json* add(Json value)
    {
        if (m_offsets.size() == Jsontext::MostValues) {
            fail(nextToken(), "Die Datei hat zu viele Angaben");
            return nullptr;
        }
        m_offsets.push_back(nextToken());
        m_end = read();
        if (m_open.empty()) {
            m_root = std::move(value);
            return &m_root;
        }
        Json& parent = *m_open.back();
        if (parent.is_array())
            return &parent.emplace_back(std::move(value));
        return &(parent[m_key] = std::move(value));
    }

    bool addNumber(Json value)
    {
        if (add(std::move(value)) == nullptr)
            return false;
        if (m_end > 0 && (m_text[m_end - 1] < '0' || m_text[m_end - 1] > '9'))
            --m_end; // a number is read one character too far to see its end
        return true;
    }

    bool open(Json container)
    {
        Json* const added = add(std::move(container));
        if (added == nullptr)
            return false;
        m_open.push_back(added);
        return m_open.size() <= Jsontext::Deepest || fail(m_offsets.back(), "Die Datei ist zu tief verschachtelt");
    }

    bool close()
    {
        m_open.pop_back();
        m_end = read();
        return true;
    }

    bool fail(std::size_t offset, std::string reason)
    {
        m_errorOffset = offset;
        m_reason = std::move(reason);
        return false;
    }

    std::string_view m_text;
    Json& m_root;
    std::vector<std::size_t>& m_offsets;
    const char* m_seen = m_text.data();
    std::size_t m_end = 0; // of the last token
    std::vector<Json*> m_open; // objects and arrays around the next value
    std::string m_key;
    std::size_t m_errorOffset = 0;
    std::string m_reason;
};

/// Counts values down to a part in the order in which they were read; whether it was found.
bool countTo(const Json& part, const Json& value, std::size_t& number)
{
    if (&part == &value)
        return true;
    ++number;
    return value.is_structured()
        && std::any_of(value.begin(), value.end(), [&](const Json& child) { return countTo(part, child, number); });
}

} // namespace

Jsontext::Jsontext(std::string_view text)
    : m_text(text)
{
    Aufbau aufbau(text, m_wert, m_offsets);
    const Zaehler begin(text.data(), aufbau.seen());
    const Zaehler end(text.data() + text.size(), aufbau.seen());
    if (!Json::sax_parse(begin, end, &aufbau))
        m_fehler = fehlerAn(aufbau.errorOffset(), aufbau.reason());
}

Lesefehler Jsontext::fehlerBei(const Json& part, std::string grund) const
{
    std::size_t number = 0;
    return fehlerAn(countTo(part, m_wert, number) ? m_offsets.at(number) : 0, std::move(grund));
}

Lesefehler Jsontext::fehlerAn(std::size_t offset, std::string grund) const
{
    const std::string_view before = m_text.substr(0, offset);
    const std::size_t lineStart = before.rfind('\n') + 1; // 0 where there is no line end
    return {1 + static_cast<std::size_t>(std::ranges::count(before, '\n')), 1 + zeichenzahl(before.substr(lineStart)),
        std::move(grund)};
}

} // namespace zerna
