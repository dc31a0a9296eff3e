#include <array>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "core/Elementspalten.h"

namespace zerna {

namespace {

void elementeLaden(benchmark::State& state)
{
    StummeMeldungen boxes;
    Dateinummern files;
    const std::filesystem::path path = pathFromUtf8(Datenpfad);
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        ElementCollection elements;
        const int number = files.freeNumber();
        files.open(number, path, Zugriff::Binaer);
        loadElements(files, number, boxes, elements);
        files.close(number);
        benchmark::DoNotOptimize(elements.Count());
    }
}

/// Takes bytes from a buffer that is known to hold enough of them.
class Cursor {
public:
    explicit Cursor(const char* next)
        : m_next(next)
    {
    }

    template <class Field>
    void take(Field& field)
    {
        std::memcpy(&field, m_next, sizeof field);
        m_next += sizeof field;
    }

    void take(std::string& field)
    {
        std::uint16_t length = 0;
        take(length);
        field.assign(m_next, length);
        m_next += length;
    }

private:
    const char* m_next;
};

/// The file's bytes read at once and copied into records as they stand: no numbered file, no checks, no key.
void elementeKopieren(benchmark::State& state)
{
    const std::string path(Datenpfad);
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
        std::fseek(file.get(), 0, SEEK_END);
        std::string bytes(static_cast<std::size_t>(std::ftell(file.get())), '\0');
        std::rewind(file.get());
        if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size())
            state.SkipWithError("Datei nicht lesbar");
        Cursor cursor(bytes.data());
        std::int32_t count = 0;
        cursor.take(count);
        std::vector<ElementRecord> records(static_cast<std::size_t>(count));
        for (ElementRecord& record : records)
            forEachSpalte([&](const Elementspalte&, auto field) { cursor.take(record.*field); });
        benchmark::DoNotOptimize(records.data());
        benchmark::ClobberMemory();
    }
}

} // namespace

void registerElementdateiBenchmarks()
{
    benchmark::RegisterBenchmark("Elementdatei/laden", elementeLaden);
    benchmark::RegisterBenchmark("Elementdatei/kopieren", elementeKopieren);
}

} // namespace zerna
