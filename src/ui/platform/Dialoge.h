#pragma once

#include "programm/ExportFileDialog.h"
#include "programm/InputBox.h"

namespace zerna {

/// The dialogs that forms ask the user with; tests put recording ones in their place.
struct Dialoge {
    SaveFileDialog& save;
    InputBox& input;
};

} // namespace zerna
