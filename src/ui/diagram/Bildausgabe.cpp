#include "ui/diagram/Bildausgabe.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSvgGenerator>

#include <algorithm>
#include <utility>

namespace zerna {

namespace {

std::string encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes.toStdString();
}

std::string asSvg(const Bildmaler& maler, const QSize& size)
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
    return bytes.toStdString();
}

/// One page of the picture's own size, a logical pixel being 1/96 inch.
std::string asPdf(const Bildmaler& maler, const QSize& size)
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
    return bytes.toStdString();
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

Exportart bitmap(std::function<QImage()> bild)
{
    return {"Bitmap (*.bmp)", "", ".bmp", [bild = std::move(bild)] { return encoded(bild(), "BMP"); }};
}

std::vector<Exportart> bildarten(const Bildmaler& maler, const QSize& size)
{
    constexpr double PngScale = 2;
    return {
        {"PNG-Bild (*.png)", "*.png", ".png", [=] { return encoded(imageOf(maler, size, PngScale), "PNG"); }},
        {"SVG-Grafik (*.svg)", "*.svg", ".svg", [=] { return asSvg(maler, size); }},
        {"PDF-Dokument (*.pdf)", "*.pdf", ".pdf", [=] { return asPdf(maler, size); }},
    };
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
