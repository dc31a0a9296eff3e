#include <cstdint>
#include <string>
#include <vector>

#include "Pruefung.h"
#include "core/Elementdatei.h"
#include "support/RecordingBoxes.h"
#include "support/TemporaryFolder.h"

using namespace zerna;

namespace {

/// A damaged file must not bury the user in message boxes.
constexpr std::size_t MostBoxes = 3;

std::vector<ElementRecord> recordsOf(const ElementCollection& elements)
{
    std::vector<ElementRecord> records;
    for (const auto& element : elements)
        records.push_back(element->record());
    return records;
}

} // namespace

/// Reads the bytes as an element data file; whatever came out of it must survive saving and reading.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryFolder folder;
    const auto path = folder / "elemente.dat";
    Dateinummern files;
    RecordingBoxes boxes;
    ElementCollection elements;
    files.openBytes(1, std::string(data, data + size));
    try {
        loadElements(files, 1, boxes, elements);
    } catch (const Laufzeitfehler& error) {
        require(error.Nummer() == 62 || error.Nummer() == 457);
    }
    require(boxes.shown.size() <= MostBoxes);

    boxes.shown.clear();
    const std::vector<ElementRecord> records = recordsOf(elements);
    saveElements(path, records);
    ElementCollection again;
    files.open(2, path, Zugriff::Binaer);
    loadElements(files, 2, boxes, again);
    require(boxes.shown.empty() && recordsOf(again) == records && files.at(2).atEnd());
    return 0;
}
