#pragma once

#include <QImage>

#include <functional>
#include <string>

#include "core/MessageBoxes.h"
#include "programm/ExportFileDialog.h"

class QPainter;
class QSize;
class QWidget;

/// One painting function for the screen's picture, image files and paper alike.
namespace zerna {

/// Paints a picture as it looks at a size in logical pixels.
using Bildmaler = std::function<void(QPainter&, const QSize&)>;

/// The picture as an image with that many device pixels per logical pixel.
QImage imageOf(const Bildmaler& maler, const QSize& size, double devicePixelRatio);

/// Saves an image as a bitmap in the current folder. A failure is shown and leaves an earlier file untouched.
void saveBitmap(MessageBoxes& boxes, const std::string& name, const QImage& image);

/// Asks for a file name and saves the picture as PNG (twice the size in pixels), SVG or PDF, as the user chooses.
void savePictureAs(MessageBoxes& boxes, SaveFileDialog& dialog, const Bildmaler& maler, const QSize& size);

/// Asks for a printer and prints the picture as large as the page allows.
void printPicture(QWidget* parent, const Bildmaler& maler, const QSize& size);

} // namespace zerna
