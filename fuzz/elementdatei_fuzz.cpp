#include <cstdint>
#include <string>
#include <vector>

#include "Elementdaten.h"
#include "Pruefung.h"

using namespace zerna;

namespace {

/// A damaged file must not bury the user in message boxes.
constexpr std::size_t MostBoxes = 3;

} // namespace

/// Reads the bytes as an element data file; whatever came out of it a data file gives back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
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

    const std::vector<ElementRecord> records = recordsOf(elements);
    require(throughDataFile(records) == records);
    return 0;
}
