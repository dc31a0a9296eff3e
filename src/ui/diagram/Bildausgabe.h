#pragma once

#include <QImage>

#include <string>
#include <vector>

#include "programm/Exportart.h"
#include "ui/diagram/Leinwand.h"

/// One painting function for the screen's picture, image files and paper alike.
namespace zerna {

/// The picture as an image with the canvas's device pixels.
QImage imageOf(const Bildmaler& maler, const Leinwand& leinwand);

/// The export of a picture as a bitmap.
Exportart bitmap(const Bildmaler& maler, const Leinwand& leinwand);

/// The exports of a picture of that size: PNG (twice the size in pixels), SVG and PDF. Each carries the document, the
/// text of a file, from which it opens again.
std::vector<Exportart> bildarten(const Bildmaler& maler, const Leinwand& leinwand, const std::string& dokument);

/// Asks for a printer and prints the picture as large as the page allows, laid out as on the screen, with the date
/// below it.
void printPicture(QWidget* parent, const Bildmaler& maler, const Leinwand& leinwand);

} // namespace zerna
