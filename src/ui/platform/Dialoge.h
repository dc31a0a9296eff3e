#pragma once

#include "programm/ExportFileDialog.h"
#include "programm/InputBox.h"
#include "programm/OpenFileDialog.h"

namespace zerna {

/// The dialogs that forms ask the user with; tests put recording ones in their place.
struct Dialoge {
    SaveFileDialog& save;
    InputBox& input;
    OpenFileDialog& open;
};

} // namespace zerna
