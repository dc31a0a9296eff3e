#include "ui/diagram/Bildausgabe.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSvgGenerator>

#include <algorithm>

#include "core/Laufzeitfehler.h"
#include "traeger/Png.h"
#include "traeger/Svg.h"
#include "ui/platform/Pdfanhang.h"

namespace zerna {

namespace {

constexpr double PngRatio = 2;
constexpr double VectorRatio = 3; // of what vector pictures and paper hold as images

Leinwand withRatio(Leinwand leinwand, double devicePixelRatio)
{
    leinwand.devicePixelRatio = devicePixelRatio;
    return leinwand;
}

/// Error 5 for a picture without pixels, of which there is no file.
std::string encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return bytes.toStdString();
}

std::string asSvg(const Bildmaler& maler, const Leinwand& leinwand, const std::string& dokument)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(leinwand.size);
    generator.setViewBox(QRect(QPoint(0, 0), leinwand.size));
    generator.setTitle(QStringLiteral("Zerna"));
    QPainter painter(&generator);
    maler(painter, leinwand);
    painter.end();
    return svgMitDokument(bytes.toStdString(), dokument);
}

/// One page of the picture's own size, a logical pixel being 1/96 inch.
std::string asPdf(const Bildmaler& maler, const Leinwand& leinwand, const std::string& dokument)
{
    constexpr int PixelsPerInch = 96;
    constexpr double PointsPerPixel = 72.0 / PixelsPerInch;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(PixelsPerInch);
    writer.setPageSize(QPageSize(QSizeF(leinwand.size) * PointsPerPixel, QPageSize::Point));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    haengeAn(writer, dokument);
    QPainter painter(&writer);
    maler(painter, leinwand);
    painter.end();
    return bytes.toStdString();
}

} // namespace

QImage imageOf(const Bildmaler& maler, const Leinwand& leinwand)
{
    QImage image(leinwand.size * leinwand.devicePixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(leinwand.devicePixelRatio);
    image.fill(Qt::white);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    maler(painter, leinwand);
    return image;
}

Exportart bitmap(const Bildmaler& maler, const Leinwand& leinwand)
{
    return {"Bitmap (*.bmp)", "", ".bmp", [=] { return encoded(imageOf(maler, leinwand), "BMP"); }, true};
}

std::vector<Exportart> bildarten(const Bildmaler& maler, const Leinwand& leinwand, const std::string& dokument)
{
    const Leinwand vector = withRatio(leinwand, VectorRatio);
    const auto png = [=] {
        return pngMitDokument(encoded(imageOf(maler, withRatio(leinwand, PngRatio)), "PNG"), dokument);
    };
    return {
        {"PNG-Bild (*.png)", "*.png", ".png", png},
        {"SVG-Grafik (*.svg)", "*.svg", ".svg", [=] { return asSvg(maler, vector, dokument); }},
        {"PDF-Dokument (*.pdf)", "*.pdf", ".pdf", [=] { return asPdf(maler, vector, dokument); }},
    };
}

void printPicture(QWidget* parent, const Bildmaler& maler, const Leinwand& leinwand)
{
    const QSize size = leinwand.size;
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
    maler(painter, withRatio(leinwand, VectorRatio));
}

} // namespace zerna
