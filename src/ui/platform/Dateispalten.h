#pragma once

class QFileDialog;

namespace zerna {

/// Makes a file dialog show size, type and date in full: the toolkit cuts them off.
void zeigeGanzeSpalten(QFileDialog& dialog);

} // namespace zerna
