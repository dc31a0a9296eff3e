#pragma once

#include <memory>

#include "support/RecordingBoxes.h"

#include "core/ElementCollection.h"

/// A few elements, and the messages that come of them.
class Elemente {
public:
    void add(const zerna::ElementRecord& record)
    {
        const auto element = std::make_shared<zerna::clsElement>(m_files, boxes);
        element->setRecord(record);
        m_elements.Add(element, record.symbol);
    }

    void add(const char* symbol, float valenz)
    {
        zerna::ElementRecord record;
        record.symbol = record.Name = symbol;
        record.Valenz = valenz;
        add(record);
    }

    const zerna::ElementCollection& operator*() const { return m_elements; }

    zerna::RecordingBoxes boxes;

private:
    zerna::Dateinummern m_files;
    zerna::ElementCollection m_elements;
};
