#include "ui/diagram/Bilddatei.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <QXmlStreamWriter>

#include <cmath>

#include "core/Zahlentext.h"
#include "traeger/Png.h"
#include "traeger/Svg.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/platform/Pdfanhang.h"

namespace zerna {

namespace {

constexpr double Inch = 25.4; // mm

/// All that a file is made from.
struct Bild {
    Bildmaler maler;
    Bildvorgabe vorgabe;
    Bildtexte texte;
    std::string dokument;
};

/// Paints the picture on a device with that many dots to the inch.
void paint(QPainter& painter, const Bild& bild, double dotsPerInch)
{
    const double scale = dotsPerInch / PixelJeZoll;
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect( // beyond whole pixels too
        QRectF(0, 0, pixelAusMillimeter(bild.vorgabe.breite), pixelAusMillimeter(bild.vorgabe.hoehe)), Qt::white);
    bild.maler(painter, leinwandNach(bild.vorgabe));
}

std::string asPng(const Bild& bild)
{
    const Bildvorgabe& vorgabe = bild.vorgabe;
    const auto dots = [&](double millimetres) {
        return static_cast<int>(std::lround(millimetres / Inch * vorgabe.aufloesung));
    };
    QImage image(dots(vorgabe.breite), dots(vorgabe.hoehe), QImage::Format_RGB32);
    image.fill(Qt::white);
    if (!image.isNull()) {
        QPainter painter(&image);
        paint(painter, bild, vorgabe.aufloesung);
    }
    if (vorgabe.grau)
        image.convertTo(QImage::Format_Grayscale8);
    const int perMetre = static_cast<int>(std::lround(vorgabe.aufloesung / Inch * 1000));
    image.setDotsPerMeterX(perMetre); // only now: fonts would follow it
    image.setDotsPerMeterY(perMetre);
    if (!bild.texte.titel.empty())
        image.setText(QStringLiteral("Title"), toQt(bild.texte.titel));
    if (!bild.texte.beschreibung.empty())
        image.setText(QStringLiteral("Description"), toQt(bild.texte.beschreibung));
    image.setText(QStringLiteral("Software"), QStringLiteral("Zerna"));
    std::string bytes = encoded(image, "PNG");
    return bild.dokument.empty() ? bytes : pngMitDokument(std::move(bytes), bild.dokument);
}

/// The head says the size in millimetres, which the generator knows in whole pixels only, and the texts in place of its
/// own, which it writes without escaping.
QByteArray withHead(const QByteArray& svg, const Bild& bild)
{
    const auto number = [](double value) { return toQt(textWithDigits(value, 7, Dezimaltrenner::Punkt)); };
    const auto& [breite, hoehe] = std::pair(bild.vorgabe.breite, bild.vorgabe.hoehe);
    const qsizetype size = svg.indexOf(" width=\"");
    const qsizetype rest = svg.indexOf('\n', svg.indexOf("viewBox=", size));
    const qsizetype content = svg.indexOf('>', rest) + 1;
    const QString sizes =
        QStringLiteral(" width=\"%1mm\" height=\"%2mm\"\n viewBox=\"0 0 %3 %4\"")
            .arg(number(breite), number(hoehe), number(pixelAusMillimeter(breite)), number(pixelAusMillimeter(hoehe)));
    const QString texts =
        QStringLiteral("\n<title>%1</title>\n<desc>%2</desc>")
            .arg(toQt(bild.texte.titel).toHtmlEscaped(), toQt(bild.texte.beschreibung).toHtmlEscaped());
    return svg.left(size) + sizes.toUtf8() + svg.mid(rest, content - rest) + texts.toUtf8()
        + svg.mid(svg.indexOf("\n<defs>", content));
}

std::string asSvg(const Bild& bild)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(fontDotsPerInch());
    generator.setSize(leinwandNach(bild.vorgabe).size);
    generator.setViewBox(QRect(QPoint(0, 0), generator.size()));
    QPainter painter(&generator);
    paint(painter, bild, PixelJeZoll);
    painter.end();
    const QByteArray family = "font-family=\"" + QByteArray::fromStdString(bild.vorgabe.schrift);
    bytes.replace(family + '"', family + ", sans-serif\""); // where there is no such font
    std::string text = withHead(bytes, bild).toStdString();
    return bild.dokument.empty() ? text : svgMitDokument(std::move(text), bild.dokument);
}

/// Title and description where catalogues of papers and pictures look for them.
QByteArray metadata(const Bildtexte& texte)
{
    const QString rdf = QStringLiteral("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
    const QString dc = QStringLiteral("http://purl.org/dc/elements/1.1/");
    const QString xmp = QStringLiteral("http://ns.adobe.com/xap/1.0/");
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeProcessingInstruction(
        QStringLiteral("xpacket"), QStringLiteral("begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\""));
    xml.writeNamespace(rdf, QStringLiteral("rdf"));
    xml.writeNamespace(dc, QStringLiteral("dc"));
    xml.writeNamespace(xmp, QStringLiteral("xmp"));
    xml.writeStartElement(rdf, QStringLiteral("RDF"));
    xml.writeStartElement(rdf, QStringLiteral("Description"));
    xml.writeAttribute(rdf, QStringLiteral("about"), {});
    for (const auto& [name, text] : {std::pair(QStringLiteral("title"), toQt(texte.titel)),
             {QStringLiteral("description"), toQt(texte.beschreibung)}}) {
        xml.writeStartElement(dc, name);
        xml.writeStartElement(rdf, QStringLiteral("Alt"));
        xml.writeStartElement(rdf, QStringLiteral("li"));
        xml.writeAttribute(QStringLiteral("xml:lang"), QStringLiteral("x-default"));
        xml.writeCharacters(text);
        for (int level = 0; level < 3; ++level)
            xml.writeEndElement();
    }
    xml.writeTextElement(xmp, QStringLiteral("CreatorTool"), QStringLiteral("Zerna"));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeProcessingInstruction(QStringLiteral("xpacket"), QStringLiteral("end=\"r\""));
    return bytes;
}

/// The page has the picture's size to the nearest point, which is as exact as the toolkit makes pages.
std::string asPdf(const Bild& bild)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(fontDotsPerInch());
    writer.setPageSize(QPageSize(QSizeF(bild.vorgabe.breite, bild.vorgabe.hoehe), QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setTitle(toQt(bild.texte.titel));
    writer.setCreator(QStringLiteral("Zerna"));
    writer.setDocumentXmpMetadata(metadata(bild.texte));
    if (!bild.dokument.empty())
        haengeAn(writer, bild.dokument);
    QPainter painter(&writer);
    paint(painter, bild, fontDotsPerInch());
    painter.end();
    return bytes.toStdString();
}

} // namespace

Leinwand leinwandNach(const Bildvorgabe& vorgabe)
{
    const auto pixels = [](double millimetres) { return static_cast<int>(pixelAusMillimeter(millimetres)); };
    QFont font(toQt(vorgabe.schrift));
    font.setPointSizeF(vorgabe.schriftgroesse * PixelJeZoll / fontDotsPerInch());
    font.setHintingPreference(QFont::PreferNoHinting); // which would space letters for the pixels of a screen
    return {{pixels(vorgabe.breite), pixels(vorgabe.hoehe)}, font, vorgabe.aufloesung / PixelJeZoll, stilNach(vorgabe)};
}

std::vector<Exportart> bildarten(
    const Bildmaler& maler, const Bildvorgabe& vorgabe, const Bildtexte& texte, const std::string& dokument)
{
    const Bild bild{maler, vorgabe, texte, dokument};
    return {
        {"PNG-Bild (*.png)", "*.png", ".png", [bild] { return asPng(bild); }},
        {"SVG-Grafik (*.svg)", "*.svg", ".svg", [bild] { return asSvg(bild); }},
        {"PDF-Dokument (*.pdf)", "*.pdf", ".pdf", [bild] { return asPdf(bild); }},
    };
}

} // namespace zerna
