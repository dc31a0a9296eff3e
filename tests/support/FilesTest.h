#pragma once

#include <concepts>
#include <tuple> // rows of tables
#include <utility>

#include <gtest/gtest.h>

#include "core/Dateinummern.h"
#include "support/RecordingBoxes.h"
#include "support/TemporaryFolder.h"

namespace zerna {

/// The number of the run-time error that the action raises, 0 if it raises none.
template <std::invocable Action>
int errorNumber(Action&& action)
{
    try {
        action();
    } catch (const Laufzeitfehler& error) {
        return error.Nummer();
    }
    return 0;
}

/// What everything that works with files is given: open files by number, message boxes and a folder.
class FilesTest : public testing::Test {
protected:
    TemporaryFolder folder;
    Dateinummern files;
    RecordingBoxes boxes;
};

} // namespace zerna
