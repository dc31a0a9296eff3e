#pragma once

class QFileDialog;

namespace zerna {

/// Makes a file dialog that has its kinds of files show size, type and date in full, and those kinds in their list; the
/// toolkit cuts them off. It becomes no larger than the screen.
void zeigeGanzeSpalten(QFileDialog& dialog);

} // namespace zerna
