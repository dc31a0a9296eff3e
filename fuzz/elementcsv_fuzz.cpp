#include <cstdint>
#include <string>
#include <vector>

#include "Elementdaten.h"
#include "Pruefung.h"
#include "core/ElementCsv.h"

using namespace zerna;

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
