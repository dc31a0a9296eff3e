#include "core/Elementdatei.h"

#include <memory>
#include <utility>
#include <vector>

#include "core/Elementspalten.h"
#include "core/Exportdatei.h"

namespace zerna {

namespace {

/// A cut-off file keeps the count it was written with and is read as far as it goes. No table comes near this many
/// elements, so a larger count that the bytes do not allow either is damage.
constexpr std::int32_t PlausibleCount = 1000;

std::int32_t readCount(Datei& file)
{
    std::int32_t count = 0;
    file.read(&count, sizeof count);
    const std::uint64_t possible = file.remaining() / SmallestElementRecord;
    if (count < 0 || (count > PlausibleCount && static_cast<std::uint64_t>(count) > possible))
        throw Laufzeitfehler(Fehler::HinterDateiende);
    return count;
}

} // namespace

void loadElements(Dateinummern& files, int number, MessageBoxes& boxes, ElementCollection& elements,
    const std::function<void(const ElementCollection::Element&, int)>& each)
{
    const std::int32_t count = readCount(files.at(number));
    const auto table = std::make_shared<std::vector<clsElement>>(); // one block, which each of its elements keeps alive
    table->reserve(static_cast<std::size_t>(count));
    for (int i = 1; i <= count; ++i) {
        clsElement& record = table->emplace_back(files, boxes);
        record.setDateinummer(number);
        record.Daten_Lesen();
        ElementCollection::Element element(table, &record);
        if (each)
            each(element, i);
        elements.Add(std::move(element), record.symbol());
    }
}

void saveElements(const std::filesystem::path& path, std::span<const ElementRecord> records)
{
    const auto count = static_cast<std::int32_t>(records.size());
    std::string bytes(reinterpret_cast<const char*>(&count), sizeof count);
    for (const ElementRecord& record : records)
        bytes += elementRecordBytes(record);
    writeExport(path, bytes);
}

} // namespace zerna
