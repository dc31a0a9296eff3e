#pragma once

#include <QImage>

#include <optional>
#include <string>

#include "programm/Exportart.h"
#include "ui/diagram/Leinwand.h"

/// One painting function for the screen's picture, image files and paper alike.
namespace zerna {

/// Dots per inch of the devices on which fonts have the sizes in which texts are measured. A device that says otherwise
/// gets letters of another size in the same picture.
int fontDotsPerInch();

/// The image as a file. Error 5 for a picture without pixels, of which there is no file.
std::string encoded(const QImage& image, const char* format);

/// The picture as an image with the canvas's device pixels.
QImage imageOf(const Bildmaler& maler, const Leinwand& leinwand);

/// The export of a picture as a bitmap.
Exportart bitmap(const Bildmaler& maler, const Leinwand& leinwand);

/// Whether asking for a printer shows a dialog. Where there is no printer, Windows shows none; others offer a file.
bool canPrint();

/// Asks for a printer and prints the picture as large as the page allows, laid out as on the screen, with the date
/// below it. Answers the name of the file where it was printed to one; nothing if it could not be printed.
std::optional<std::string> printPicture(QWidget* parent, const Bildmaler& maler, const Leinwand& leinwand);

} // namespace zerna
