#include "ui/diagram/Bildausgabe.h"

#include <QBuffer>
#include <QDate>
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

constexpr double PixelsPerInch = 96; // of a picture that is seen at its own size
constexpr double PngRatio = 2;
constexpr double VectorRatio = 3; // of what vector pictures and paper hold as images

Leinwand withRatio(Leinwand leinwand, double devicePixelRatio)
{
    leinwand.devicePixelRatio = devicePixelRatio;
    return leinwand;
}

/// Dots per inch of the devices on which fonts have the sizes in which texts are measured. A device that says otherwise
/// gets letters of another size in the same picture.
int fontDotsPerInch() { return QImage(1, 1, QImage::Format_Mono).logicalDpiY(); }

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
    generator.setResolution(fontDotsPerInch());
    generator.setSize(leinwand.size);
    generator.setViewBox(QRect(QPoint(0, 0), leinwand.size));
    generator.setTitle(QStringLiteral("Zerna"));
    QPainter painter(&generator);
    maler(painter, leinwand);
    painter.end();
    return svgMitDokument(bytes.toStdString(), dokument);
}

/// One page of the picture's own size.
std::string asPdf(const Bildmaler& maler, const Leinwand& leinwand, const std::string& dokument)
{
    constexpr double PointsPerPixel = 72 / PixelsPerInch;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(fontDotsPerInch());
    writer.setPageSize(QPageSize(QSizeF(leinwand.size) * PointsPerPixel, QPageSize::Point));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    haengeAn(writer, dokument);
    QPainter painter(&writer);
    painter.scale(fontDotsPerInch() / PixelsPerInch, fontDotsPerInch() / PixelsPerInch);
    maler(painter, leinwand);
    painter.end();
    return bytes.toStdString();
}

/// Where and from what the page comes, below the picture; the room above it.
QRectF paintFooter(QPainter& painter, const QRectF& page)
{
    constexpr double Points = 8;
    constexpr double Gap = 1.5; // line heights above it
    QFont font;
    font.setPointSizeF(Points);
    painter.setFont(font);
    painter.setPen(Qt::darkGray);
    const double height = QFontMetricsF(font).height();
    painter.drawText(page, Qt::AlignBottom | Qt::AlignRight,
        QStringLiteral("Zerna, %1").arg(QDate::currentDate().toString(QStringLiteral("d.M.yyyy"))));
    return page.adjusted(0, 0, 0, -(1 + Gap) * height);
}

/// The picture as large as the page allows, in the middle of its width.
void paintPage(QPrinter& printer, const Bildmaler& maler, const Leinwand& leinwand)
{
    QPainter painter(&printer);
    const QRectF page(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
    const QRectF room = paintFooter(painter, page);
    const QSizeF size = leinwand.size;
    const double scale = std::min(room.width() / size.width(), room.height() / size.height());
    painter.translate((room.width() - scale * size.width()) / 2, 0);
    painter.scale(scale, scale);
    maler(painter, withRatio(leinwand, VectorRatio));
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
    constexpr QMarginsF Margins(15, 15, 15, 12); // mm
    const QSize size = leinwand.size;
    QPrinter printer(QPrinter::HighResolution);
    printer.setResolution(fontDotsPerInch());
    printer.setDocName(QStringLiteral("Diagramm"));
    printer.setPageOrientation(size.width() > size.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setPageMargins(Margins, QPageLayout::Millimeter);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(QStringLiteral("Drucken"));
    if (dialog.exec() == QDialog::Accepted)
        paintPage(printer, maler, leinwand);
}

} // namespace zerna
