#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "Pruefung.h"
#include "core/Elementdatei.h"
#include "support/RecordingBoxes.h"

inline std::vector<zerna::ElementRecord> recordsOf(const zerna::ElementCollection& elements)
{
    std::vector<zerna::ElementRecord> records;
    for (const auto& element : elements)
        records.push_back(element->record());
    return records;
}

/// What a data file of these records gives back.
inline std::vector<zerna::ElementRecord> throughDataFile(const std::vector<zerna::ElementRecord>& records)
{
    const auto count = static_cast<std::int32_t>(records.size());
    std::string bytes(sizeof count, '\0');
    std::memcpy(bytes.data(), &count, sizeof count);
    for (const zerna::ElementRecord& record : records)
        bytes += elementRecordBytes(record);
    zerna::Dateinummern files;
    zerna::RecordingBoxes boxes;
    zerna::ElementCollection elements;
    files.openBytes(1, bytes);
    loadElements(files, 1, boxes, elements);
    require(boxes.shown.empty() && files.at(1).atEnd());
    return recordsOf(elements);
}
