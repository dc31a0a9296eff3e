#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "Pruefung.h"
#include "core/ElementCsv.h"
#include "core/Elementdatei.h"
#include "support/RecordingBoxes.h"

using namespace zerna;

namespace {

/// What a data file of these records gives back.
std::vector<ElementRecord> throughDataFile(const std::vector<ElementRecord>& records)
{
    const auto count = static_cast<std::int32_t>(records.size());
    std::string bytes(sizeof count, '\0');
    std::memcpy(bytes.data(), &count, sizeof count);
    for (const ElementRecord& record : records)
        bytes += elementRecordBytes(record);
    Dateinummern files;
    RecordingBoxes boxes;
    ElementCollection elements;
    files.openBytes(1, bytes);
    loadElements(files, 1, boxes, elements);
    require(boxes.shown.empty());
    std::vector<ElementRecord> result;
    for (const auto& element : elements)
        result.push_back(element->record());
    return result;
}

} // namespace

/// Reads the bytes as an element table: there is a reason that names the line, or there are records that a table and a
/// data file give back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<ElementRecord> records;
    try {
        records = readElementCsv(std::string(data, data + size));
    } catch (const Tabellenfehler& error) {
        require(std::string(error.what()).starts_with("Zeile "));
        return 0;
    }
    require(readElementCsv(writeElementCsv(records)) == records);
    require(throughDataFile(records) == records);
    return 0;
}
