#include <array>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "bench/BloesseLegierung.h"
#include "core/Zeilenleser.h"
#include "model/rechnung/Groessenauswahl.h"
#include "model/rechnung/Legierungsliste.h"
#include "programm/Stapelrechner.h"

namespace zerna {

namespace {

constexpr int Komponentenzahl = 3;
constexpr std::size_t Zeilenzahl = 1000;

/// A list of alloys as text, and the at% in it.
struct Liste {
    using Prozente = std::array<float, Komponentenzahl>;

    Liste()
    {
        for (std::size_t i = 0; i < Zeilenzahl; ++i) {
            const float first = static_cast<float>(i % 100) / 2;
            const float second = static_cast<float>(i % 41) / 4;
            prozente.push_back({first, second, 100 - first - second});
            std::string line;
            for (std::size_t k = 0; k < Komponentenzahl; ++k)
                line.append(k == 0 ? "" : " ")
                    .append(Aufbau::Symbole.at(k))
                    .append("=")
                    .append(textOfSingle(prozente.back().at(k), Dezimaltrenner::Punkt))
                    .append(":dichte=kristallin:valenz=2");
            text += line + '\n';
        }
    }

    std::vector<Prozente> prozente;
    std::string text;
};

/// Hands a text out in blocks.
Zeilenleser::Quelle quelle(std::string_view text)
{
    return [text](std::span<char> bytes) mutable {
        const std::size_t count = text.copy(bytes.data(), bytes.size());
        text.remove_prefix(count);
        return count;
    };
}

/// From lines of text to lines of text with all quantities.
void stapel(benchmark::State& state)
{
    const Liste liste;
    StummeMeldungen boxes;
    Rechenkern kern(boxes);
    kern.loadFile(pathFromUtf8(Datenpfad));
    Stapelrechner rechner(kern);
    const Legierungsliste ausgabe(groessenauswahl({}).groessen, Legierungsliste::Form::Text);
    std::string output;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        output.clear();
        Zeilenleser zeilen(quelle(liste.text));
        while (const auto zeile = zeilen.next()) {
            if (!rechner.rechne(*zeile) || !rechner.hinweis().empty())
                state.SkipWithError("eine Zeile ließ sich nicht berechnen");
            ausgabe.append(output, *zeile, rechner.calc());
        }
        benchmark::DoNotOptimize(output);
    }
}

/// The bare formulas for the same compositions.
void bloesseFormeln(benchmark::State& state)
{
    const Liste liste;
    Aufbau aufbau;
    BloesseLegierung bare(aufbau, Komponentenzahl);
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        for (const Liste::Prozente& prozente : liste.prozente) {
            for (std::size_t k = 0; k < prozente.size(); ++k)
                bare.setProzent(k, prozente.at(k));
            bare.recalculate();
            benchmark::DoNotOptimize(bare.quantities());
        }
    }
}

} // namespace

void registerStapelBenchmarks()
{
    benchmark::RegisterBenchmark("Stapel/Zeilen", stapel);
    benchmark::RegisterBenchmark("Stapel/bloße Formeln", bloesseFormeln);
}

} // namespace zerna
