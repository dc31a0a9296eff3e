#pragma once

#include <QImage>

#include <functional>
#include <vector>

#include "programm/Exportart.h"

class QPainter;
class QSize;
class QWidget;

/// One painting function for the screen's picture, image files and paper alike.
namespace zerna {

/// Paints a picture as it looks at a size in logical pixels.
using Bildmaler = std::function<void(QPainter&, const QSize&)>;

/// The picture as an image with that many device pixels per logical pixel.
QImage imageOf(const Bildmaler& maler, const QSize& size, double devicePixelRatio);

/// The export of an image as a bitmap.
Exportart bitmap(std::function<QImage()> bild);

/// The exports of a picture: PNG (twice the size in pixels), SVG and PDF.
std::vector<Exportart> bildarten(const Bildmaler& maler, const QSize& size);

/// Asks for a printer and prints the picture as large as the page allows.
void printPicture(QWidget* parent, const Bildmaler& maler, const QSize& size);

} // namespace zerna
