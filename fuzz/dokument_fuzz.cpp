#include <cstdint>
#include <string>

#include "Elemente.h"
#include "Pruefung.h"
#include "dokument/Dokumentdatei.h"

using namespace zerna;

namespace {

ElementRecord record(const char* symbol, float valenz, float fluessig, float kristallin)
{
    ElementRecord record;
    record.symbol = record.Name = symbol;
    record.Valenz = valenz;
    record.Dichte_Fluessig = fluessig;
    record.Dichte_Kristallin = kristallin;
    return record;
}

} // namespace

/// Reads the bytes as a document. What can be read is written and read again without a difference, and deciding about
/// values that the table gives otherwise leaves none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Elemente elemente;
    elemente.add(record("Al", 3, 2.377F, 2.7F));
    elemente.add(record("Cu", 1, 7.997F, 8.93F));
    const ElementCollection& elements = *elemente;
    const std::string bytes(data, data + size);
    const Lesung lesung = lies(bytes, elements);
    if (!lesung.dokument) {
        require(!lesung.fehler.grund.empty() && lesung.fehler.zeile > 0 && lesung.fehler.spalte > 0);
        return 0;
    }
    const std::string written = schreibe(*lesung.dokument);
    const Lesung again = lies(written, elements);
    require(again.dokument && again.nurLesen.empty() && schreibe(*again.dokument) == written);
    for (const auto decide : {behalteDateiwerte, uebernehmeTabelle}) {
        Dokument decided = *lesung.dokument;
        decide(decided, lesung.unterschiede, elements);
        require(lies(schreibe(decided), elements).unterschiede.empty());
    }
    return 0;
}
