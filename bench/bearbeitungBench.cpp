#include <array>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "bench/BloesseLegierung.h"
#include "bench/Speicherzaehler.h"
#include "model/eingabe/Eingabe.h"
#include "model/rechnung/Ergebnisse.h"

namespace zerna {

namespace {

constexpr int Schritte = 41;

/// What is typed into the first row, and the at% that the rows then have.
struct Schritt {
    std::string text;
    std::array<float, MaxKomponenten> prozente{};
};

/// An entered alloy, and the compositions that the edits go through, so that no result can be reused.
struct Bearbeitung : Aufbau {
    explicit Bearbeitung(int components)
    {
        komponentenzahl = components;
        eingabe.setAnzahl(components);
        for (int row = 0; row < components; ++row) {
            eingabe.waehleElement(row, Symbole.at(static_cast<std::size_t>(row)));
            eingabe.waehleDichte(row, "kristallin");
            eingabe.waehleValenz(row, ValenzAndere);
            eingabe.setValenz(row, "2");
        }
        for (int row = 1; row + 1 < components; ++row)
            eingabe.setProzent(row, "10");
        for (int step = 0; step < Schritte; ++step) {
            schritte.push_back({textOfSingle(20 + static_cast<float>(step) / 4)});
            eingabe.setProzent(0, schritte.back().text);
            for (int row = 0; row < components; ++row)
                schritte.back().prozente.at(static_cast<std::size_t>(row)) = eingabe.zeile(row).prozent.wert;
        }
    }

    /// From the typed text to the calculator.
    void edit(std::size_t step)
    {
        eingabe.setProzent(0, schritte[step % Schritte].text);
        if (!eingabe.istVollstaendig())
            return;
        eingabe.writeTo(legierung);
        calc.Legierung_Setzen(legierung.komponenten());
    }

    float quantities() const
    {
        float sum = 0;
        for (const Groesse& zeile : ergebniszeilen())
            sum += wert(zeile, calc);
        return sum;
    }

    Eingabe eingabe{elements};
    Legierung legierung;
    std::vector<Schritt> schritte;
};

/// One edit without a window: from the typed text to all quantities.
void bisZuDenGroessen(benchmark::State& state, int components)
{
    Bearbeitung b(components);
    std::size_t step = 0;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        b.edit(++step);
        benchmark::DoNotOptimize(b.quantities());
    }
}

/// The bare formulas for the same compositions.
void bloesseFormeln(benchmark::State& state, int components)
{
    Bearbeitung b(components);
    BloesseLegierung bare(b, components);
    std::size_t step = 0;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const Schritt& schritt = b.schritte[++step % Schritte];
        for (std::size_t i = 0; i < static_cast<std::size_t>(components); ++i)
            bare.setProzent(i, schritt.prozente[i]);
        bare.recalculate();
        benchmark::DoNotOptimize(bare.quantities());
    }
}

/// One edit without a window, to the formatted result lines.
void bisZuDenTexten(benchmark::State& state, int components)
{
    Bearbeitung b(components);
    Ergebnistexte texte;
    std::size_t step = 0;
    const auto edit = [&] {
        b.edit(++step);
        return berechneErgebnisse(b.calc, texte);
    };
    bool complete = true;
    for (int i = 0; i < Schritte; ++i) // so that every text has found its memory
        complete = edit() && complete;
    const std::size_t start = speicheranforderungen();
    b.edit(++step);
    benchmark::DoNotOptimize(b.quantities());
    const std::size_t quantities = speicheranforderungen() - start;
    complete = edit() && complete;
    const std::size_t all = speicheranforderungen() - start - quantities;
    if (!complete)
        state.SkipWithError("eine Zeile ließ sich nicht berechnen");
    state.counters["Speicher_Groessen"] = static_cast<double>(quantities);
    state.counters["Speicher_Texte"] = static_cast<double>(all - quantities);
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(edit());
}

} // namespace

void registerBearbeitungBenchmarks()
{
    benchmark::RegisterBenchmark("Bearbeitung/2 Komponenten", bisZuDenTexten, 2);
    benchmark::RegisterBenchmark("Bearbeitung/5 Komponenten", bisZuDenTexten, MaxKomponenten);
    benchmark::RegisterBenchmark("Bearbeitung/Größen", bisZuDenGroessen, MaxKomponenten);
    benchmark::RegisterBenchmark("Bearbeitung/bloße Formeln", bloesseFormeln, MaxKomponenten);
}

} // namespace zerna
