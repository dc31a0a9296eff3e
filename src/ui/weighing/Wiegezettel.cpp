#include "ui/weighing/Wiegezettel.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

#include <algorithm>

#include "ui/platform/Druckausgang.h"
#include "ui/platform/Pdfanhang.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr QMarginsF Margins(20, 18, 20, 18); // mm

QString escaped(const std::string& text) { return toQt(text).toHtmlEscaped(); }

QString row(const Einwaagezeile& zeile)
{
    QString cells = QStringLiteral("<td>%1</td>").arg(escaped(zeile.symbol));
    for (const std::string& cell : {zeile.prozent, zeile.sollmasse, zeile.sollanteil, zeile.istmasse, zeile.istprozent,
             zeile.abweichung, zeile.istanteil})
        cells += QStringLiteral("<td align='right' style='white-space:nowrap'>%1</td>").arg(escaped(cell));
    return QStringLiteral("<tr>%1</tr>").arg(cells);
}

QString table(const Wiegeprotokoll& protokoll)
{
    QString rows = QStringLiteral("<tr><th></th><th colspan='3'>gewünscht</th><th colspan='4'>gewogen</th></tr>"
                                  "<tr><th width='12%' align='left'>Element</th>"
                                  "<th width='13%'>at%</th><th width='15%'>mg</th><th width='10%'>Masse [%]</th>"
                                  "<th width='15%'>mg</th><th width='11%'>at%</th>"
                                  "<th width='13%'>Ist − Soll [at%]</th><th width='11%'>Masse [%]</th></tr>");
    for (const Einwaagezeile& zeile : protokoll.zeilen)
        rows += row(zeile);
    rows += QStringLiteral("<tr><td><b>Summe</b></td><td></td><td align='right'><b>%1</b></td><td></td>"
                           "<td align='right'><b>%2</b></td><td></td><td></td><td></td></tr>")
                .arg(escaped(protokoll.gewuenscht), escaped(protokoll.gewogen));
    return QStringLiteral("<table width='100%' border='1' cellspacing='0' cellpadding='6' "
                          "style='border-collapse:collapse; border-color:#808080'>%1</table>")
        .arg(rows);
}

QString lossList(const Wiegeprotokoll& protokoll)
{
    if (protokoll.verlust.empty())
        return {};
    QString lines;
    for (const std::string& line : protokoll.verlust)
        lines += escaped(line) + QStringLiteral("<br/>");
    return QStringLiteral("<h3>Masseverlust</h3><p>%1</p>").arg(lines);
}

/// Lines to write on, with their captions below.
QString signature()
{
    const QString cell = QStringLiteral("<td width='40%' style='border-top:1px solid #000000'>%1</td>");
    return QStringLiteral(
        "<p>&nbsp;</p><p>&nbsp;</p><p>&nbsp;</p><table width='100%' cellpadding='4'><tr>%1<td width='20%'></td>"
        "%2</tr></table>")
        .arg(cell.arg(QStringLiteral("Datum")), cell.arg(QStringLiteral("Unterschrift")));
}

/// Whether the page could be put onto the device.
bool print(QPagedPaintDevice& device, const Wiegeprotokoll& protokoll)
{
    constexpr int Points = 10;
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    QTextDocument document;
    QFont font = document.defaultFont();
    font.setPointSize(Points);
    document.setDefaultFont(font);
    document.setDocumentMargin(0);
    document.documentLayout()->setPaintDevice(&device);
    document.setTextWidth(device.width());
    document.setHtml(wiegezettel(protokoll));
    const double fit = std::min(1.0, device.height() / document.size().height());
    painter.scale(fit, fit); // always one page
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black); // on white paper, whatever the screen's colours
    document.documentLayout()->draw(&painter, context);
    return painter.end();
}

} // namespace

QString wiegezettel(const Wiegeprotokoll& protokoll)
{
    return QStringLiteral("<h2>Wiegezettel</h2><p>Einwaage vom %1<br/></p>").arg(escaped(protokoll.datum))
        + table(protokoll) + QStringLiteral("<p><br/>%1</p>").arg(escaped(protokoll.bezug)) + lossList(protokoll)
        + signature();
}

std::string wiegezettelAlsPdf(const Wiegeprotokoll& protokoll, const std::string& dokument)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(QStringLiteral("Wiegezettel"));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(Margins, QPageLayout::Millimeter);
    haengeAn(writer, dokument);
    print(writer, protokoll);
    return bytes.toStdString();
}

void druckeWiegezettel(QWidget* parent, MessageBoxes& boxes, const Wiegeprotokoll& protokoll)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Wiegezettel"));
    printer.setPageMargins(Margins, QPageLayout::Millimeter);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(QStringLiteral("Wiegezettel drucken"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (!print(printer, protokoll) || !istGedruckt(printer))
        boxes.show(Icon::Exclamation, Programmtitel, "Der Wiegezettel konnte nicht gedruckt werden.");
}

} // namespace zerna
