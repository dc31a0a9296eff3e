#pragma once

#include <QFile>
#include <QPrinter>

namespace zerna {

/// Whether the printer, or the file that was printed to, has all of a document that has been painted. The toolkit says
/// nothing of a disk that was full.
inline bool istGedruckt(const QPrinter& printer)
{
    constexpr qint64 Tail = 32; // bytes, with the mark that ends a PDF document
    if (printer.outputFileName().isEmpty())
        return printer.printerState() != QPrinter::Error;
    QFile file(printer.outputFileName());
    return file.open(QIODevice::ReadOnly) && file.seek(qMax<qint64>(0, file.size() - Tail))
        && file.readAll().contains("%%EOF");
}

} // namespace zerna
