#pragma once

#include <QByteArray>
#include <QPdfWriter>

#include <string>

#include "traeger/Pdf.h"
#include "ui/platform/QtText.h"

namespace zerna {

/// Attaches a document so that it is found again; before the first page is painted.
inline void haengeAn(QPdfWriter& writer, const std::string& dokument)
{
    writer.addFileAttachment(toQt(Anhangname), QByteArray::fromStdString(dokument), toQt(Anhangart));
}

} // namespace zerna
