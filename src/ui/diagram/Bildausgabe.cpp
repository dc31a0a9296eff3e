#include "ui/diagram/Bildausgabe.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSvgGenerator>

#include <algorithm>
#include <array>

#include "core/Datei.h"
#include "core/Exportdatei.h"
#include "programm/Exportspeicherung.h"

namespace zerna {

namespace {

constexpr std::array<Dateityp, 3> Bildtypen{
    {{"PNG-Bild (*.png)", "*.png"}, {"SVG-Grafik (*.svg)", "*.svg"}, {"PDF-Dokument (*.pdf)", "*.pdf"}}};

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray asSvg(const Bildmaler& maler, const QSize& size)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    generator.setTitle(QStringLiteral("Zerna"));
    QPainter painter(&generator);
    maler(painter, size);
    painter.end();
    return bytes;
}

/// One page of the picture's own size, a logical pixel being 1/96 inch.
QByteArray asPdf(const Bildmaler& maler, const QSize& size)
{
    constexpr int PixelsPerInch = 96;
    constexpr double PointsPerPixel = 72.0 / PixelsPerInch;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(PixelsPerInch);
    writer.setPageSize(QPageSize(QSizeF(size) * PointsPerPixel, QPageSize::Point));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter painter(&writer);
    maler(painter, size);
    painter.end();
    return bytes;
}

void write(MessageBoxes& boxes, const std::string& path, const QByteArray& bytes)
{
    try {
        writeExport(pathFromUtf8(path), {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    } catch (const Laufzeitfehler& error) {
        showSaveFailure(boxes, path, error.what());
    }
}

/// The chosen path with the extension of its type; empty if the user does not want another file replaced.
std::string completePath(SaveFileDialog& dialog, const SaveFileDialog::Choice& choice)
{
    const std::string_view extension =
        Bildtypen.at(static_cast<std::size_t>(std::clamp(choice.filterIndex, 1, 3)) - 1).pattern.substr(1);
    if (choice.path.ends_with(extension))
        return choice.path;
    std::string path = choice.path + std::string(extension);
    std::error_code unknown;
    if (std::filesystem::exists(pathFromUtf8(path), unknown) && !dialog.confirmReplace(path))
        return {};
    return path;
}

} // namespace

QImage imageOf(const Bildmaler& maler, const QSize& size, double devicePixelRatio)
{
    QImage image(size * devicePixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::white);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    maler(painter, size);
    return image;
}

void saveBitmap(MessageBoxes& boxes, const std::string& name, const QImage& image)
{
    write(boxes, name, encoded(image, "BMP"));
}

void savePictureAs(MessageBoxes& boxes, SaveFileDialog& dialog, const Bildmaler& maler, const QSize& size)
{
    constexpr double PngScale = 2;
    const auto choice = dialog.choose("Bild speichern", Bildtypen);
    if (!choice)
        return;
    const std::string path = completePath(dialog, *choice);
    if (path.empty())
        return;
    if (choice->filterIndex == 2)
        write(boxes, path, asSvg(maler, size));
    else if (choice->filterIndex == 3)
        write(boxes, path, asPdf(maler, size));
    else
        write(boxes, path, encoded(imageOf(maler, size, PngScale), "PNG"));
}

void printPicture(QWidget* parent, const Bildmaler& maler, const QSize& size)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(size.width() > size.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(QStringLiteral("Drucken"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    QPainter painter(&printer);
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const double scale = std::min(page.width() / size.width(), page.height() / size.height());
    painter.scale(scale, scale);
    maler(painter, size);
}

} // namespace zerna
