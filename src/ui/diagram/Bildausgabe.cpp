#include "ui/diagram/Bildausgabe.h"

#include <QBuffer>
#include <QDate>
#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

#include "core/Laufzeitfehler.h"
#include "ui/platform/Druckausgang.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr double PaperRatio = 3; // of what paper holds as images

Leinwand onPaper(Leinwand leinwand)
{
    leinwand.devicePixelRatio = PaperRatio;
    leinwand.stil.bildschirm = false;
    return leinwand;
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

/// The picture as large as the page allows, in the middle of its width. Whether the page could be put onto the printer.
bool paintPage(QPrinter& printer, const Bildmaler& maler, const Leinwand& leinwand)
{
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const QRectF page(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
    const QRectF room = paintFooter(painter, page);
    const QSizeF size = leinwand.size;
    const double scale = std::min(room.width() / size.width(), room.height() / size.height());
    painter.translate((room.width() - scale * size.width()) / 2, 0);
    painter.scale(scale, scale);
    maler(painter, onPaper(leinwand));
    return painter.end();
}

} // namespace

int fontDotsPerInch() { return QImage(1, 1, QImage::Format_Mono).logicalDpiY(); }

std::string encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return bytes.toStdString();
}

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

bool canPrint()
{
#ifdef Q_OS_WIN
    return !QPrinterInfo::availablePrinterNames().isEmpty();
#else
    return true;
#endif
}

std::optional<std::string> printPicture(QWidget* parent, const Bildmaler& maler, const Leinwand& leinwand)
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
    if (dialog.exec() != QDialog::Accepted)
        return std::string();
    if (!paintPage(printer, maler, leinwand) || !istGedruckt(printer))
        return std::nullopt;
    return fromQt(QFileInfo(printer.outputFileName()).fileName());
}

} // namespace zerna
