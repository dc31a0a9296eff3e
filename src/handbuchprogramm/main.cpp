#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <cstdio>
#include <exception>
#include <stdexcept>

#include "handbuchprogramm/Handbuchhtml.h"
#include "handbuchprogramm/Handbuchpdf.h"
#include "handbuchprogramm/Pdfbilder.h"
#include "ui/hilfe/Handbuch.h"

namespace {

void copyPictures(const QString& text, const QDir& from, const QDir& to)
{
    for (const QString& picture : zerna::handbuchbilder(text)) {
        to.mkpath(QFileInfo(picture).path());
        QFile::remove(to.filePath(picture));
        if (!QFile::copy(from.filePath(picture), to.filePath(picture)))
            throw std::runtime_error("cannot copy " + picture.toStdString());
    }
}

void makePages(const QString& from, const QString& to, const QString& version)
{
    const QString text = zerna::handbuchtext(from);
    if (text.isEmpty())
        throw std::runtime_error("no manual in " + from.toStdString());
    QDir().mkpath(to);
    copyPictures(text, QDir(from), QDir(to));
    QFile html(to + QStringLiteral("/handbuch.html"));
    if (!html.open(QIODevice::WriteOnly) || html.write(zerna::handbuchhtml(text)) < 0 || !html.flush())
        throw std::runtime_error("cannot write " + html.fileName().toStdString());
    const QString pdf = to + QStringLiteral("/handbuch.pdf");
    zerna::schreibeHandbuchpdf(text, from, version, pdf);
    QStringList pictures = zerna::handbuchbilder(text);
    for (QString& picture : pictures)
        picture.prepend(from + QLatin1Char('/'));
    zerna::packePdfbilder(pdf, pictures);
}

} // namespace

/// zerna-handbuch FOLDER_OF_THE_SOURCE FOLDER_OF_THE_PAGES VERSION
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    try {
        makePages(arguments.at(1), arguments.at(2), arguments.at(3));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zerna-handbuch: %s\n", error.what());
        return 1;
    }
}
