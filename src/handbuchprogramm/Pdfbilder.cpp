#include "handbuchprogramm/Pdfbilder.h"

#include <QFile>
#include <QImage>
#include <QtEndian>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace zerna {

namespace {

/// A PNG picture of at most 256 colours, in the parts that a PDF document takes over byte by byte.
struct Palettenbild {
    int breite = 0;
    int bits = 0; // of a pixel
    QByteArray farben; // three bytes each
    QByteArray daten;
    QByteArray pixel; // three bytes each, as the toolkit stores the picture
};

/// The pixels without what fills up the rows.
QByteArray pixelbytes(const QImage& image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    QByteArray all;
    for (int y = 0; y < rgb.height(); ++y)
        all.append(reinterpret_cast<const char*>(rgb.constScanLine(y)), qsizetype{3} * rgb.width());
    return all;
}

/// No value for a file that is no such picture.
std::optional<Palettenbild> lies(const QString& datei)
{
    constexpr qsizetype Signature = 8;
    constexpr qsizetype AroundData = 12; // of a chunk: length, type and checksum
    QFile file(datei);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray png = file.readAll();
    const QImage image = QImage::fromData(png, "PNG");
    if (image.format() != QImage::Format_Indexed8 || image.hasAlphaChannel())
        return std::nullopt;
    Palettenbild bild;
    bild.breite = image.width();
    bild.bits = static_cast<unsigned char>(png.at(24));
    bild.pixel = pixelbytes(image);
    for (qsizetype at = Signature; at + AroundData <= png.size();) {
        const auto length = static_cast<qsizetype>(qFromBigEndian<quint32>(png.constData() + at));
        const QByteArray type = png.mid(at + 4, 4);
        if (type == "PLTE")
            bild.farben = png.mid(at + 8, length);
        else if (type == "IDAT")
            bild.daten += png.mid(at + 8, length);
        at += AroundData + length;
    }
    return bild;
}

void replaceBy(const Palettenbild& bild, QPDFObjectHandle& stream)
{
    const auto parsed = [](const QByteArray& text) { return QPDFObjectHandle::parse(text.toStdString()); };
    QPDFObjectHandle dictionary = stream.getDict();
    dictionary.replaceKey("/ColorSpace",
        parsed("[/Indexed /DeviceRGB " + QByteArray::number(bild.farben.size() / 3 - 1) + " <" + bild.farben.toHex()
            + ">]"));
    dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(bild.bits));
    stream.replaceStreamData(bild.daten.toStdString(), QPDFObjectHandle::newName("/FlateDecode"),
        parsed("<</Predictor 15 /Columns " + QByteArray::number(bild.breite) + " /BitsPerComponent "
            + QByteArray::number(bild.bits) + ">>"));
}

bool isPicture(QPDFObjectHandle object)
{
    return object.isStream() && object.getDict().getKey("/Subtype").isNameAndEquals("/Image");
}

} // namespace

void packePdfbilder(const QString& pdf, const QStringList& pngDateien)
{
    std::vector<Palettenbild> pictures;
    for (const QString& file : pngDateien) {
        if (const auto picture = lies(file))
            pictures.push_back(*picture);
    }
    QFile file(pdf);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + pdf.toStdString());
    const QByteArray bytes = file.readAll();
    file.close();
    QPDF document;
    document.processMemoryFile("", bytes.constData(), static_cast<std::size_t>(bytes.size()));
    for (QPDFObjectHandle& object : document.getAllObjects()) {
        if (!isPicture(object))
            continue;
        const auto data = object.getStreamData();
        const auto pixels = QByteArray::fromRawData(
            reinterpret_cast<const char*>(data->getBuffer()), static_cast<qsizetype>(data->getSize()));
        const auto found = std::find_if(
            pictures.begin(), pictures.end(), [&](const Palettenbild& picture) { return picture.pixel == pixels; });
        if (found != pictures.end())
            replaceBy(*found, object);
    }
    const std::string name = pdf.toStdString(); // which the writer does not copy
    QPDFWriter writer(document, name.c_str());
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.write();
}

} // namespace zerna
