#pragma once

#include <QString>

namespace zerna {

/// Writes the manual as A4 pages: title and contents with page numbers, then each chapter on a page of its own.
void schreibeHandbuchpdf(const QString& markdown, const QString& ordner, const QString& version, const QString& datei);

} // namespace zerna
