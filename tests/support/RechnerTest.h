#pragma once

#include <memory>

#include "core/ElementCsv.h"
#include "model/rechnung/clsCalc.h"
#include "support/FilesTest.h"

namespace zerna {

/// A calculator over elements; none at first.
struct RechnerTest : FilesTest {
    clsElement& addElement(const ElementRecord& record)
    {
        const auto element = std::make_shared<clsElement>(files, boxes);
        element->setRecord(record);
        elements.Add(element, record.symbol);
        return *element;
    }

    /// The shipped table.
    void addElements()
    {
        for (const ElementRecord& record : readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv")))
            addElement(record);
    }

    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 1;
    clsCalc calc{elements, count, parser};
};

} // namespace zerna
