#pragma once

#include <QStringList>

namespace zerna {

/// Stores the pictures of a PDF document as their PNG files do, with a palette and well packed: the toolkit writes
/// three bytes for each pixel. Pictures that are none of the files stay as they are.
void packePdfbilder(const QString& pdf, const QStringList& pngDateien);

} // namespace zerna
