#pragma once

#include <QString>

#include <string>

#include "core/MessageBoxes.h"
#include "model/einwaage/Wiegeprotokoll.h"

class QWidget;

namespace zerna {

/// The weighing protocol as a page to print: what is wanted and weighed, the loss list, lines for date and signature.
QString wiegezettel(const Wiegeprotokoll& protokoll);

/// The page as a PDF document that carries the document, the text of a file.
std::string wiegezettelAlsPdf(const Wiegeprotokoll& protokoll, const std::string& dokument);

/// Asks for a printer and prints the page; says so if that fails.
void druckeWiegezettel(QWidget* parent, MessageBoxes& boxes, const Wiegeprotokoll& protokoll);

} // namespace zerna
