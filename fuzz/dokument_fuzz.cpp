#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "dokument/Dokumentdatei.h"
#include "support/RecordingBoxes.h"

using namespace zerna;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Two elements.
class Tabelle {
public:
    Tabelle()
    {
        add("Al", 3, 2.377F, 2.7F);
        add("Cu", 1, 7.997F, 8.93F);
    }

    const ElementCollection& elements() const { return m_elements; }

private:
    void add(const char* symbol, float valenz, float fluessig, float kristallin)
    {
        const auto element = std::make_shared<clsElement>(m_files, m_boxes);
        ElementRecord record;
        record.symbol = record.Name = symbol;
        record.Valenz = valenz;
        record.Dichte_Fluessig = fluessig;
        record.Dichte_Kristallin = kristallin;
        element->setRecord(record);
        m_elements.Add(element, symbol);
    }

    Dateinummern m_files;
    RecordingBoxes m_boxes;
    ElementCollection m_elements;
};

} // namespace

/// Reads the bytes as a document. What can be read is written and read again without a difference, and deciding about
/// values that the table gives otherwise leaves none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Tabelle Elemente;
    const ElementCollection& elements = Elemente.elements();
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
