#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QSize>
#include <QWidget>

#include <functional>

#include "bild/Bildstil.h"
#include "bild/Geometrie.h"
#include "ui/platform/QtText.h"

class QPainter;

namespace zerna {

/// What a picture is painted for.
struct Leinwand {
    QSize size; ///< logical pixels
    QFont font;
    double devicePixelRatio = 1; ///< device pixels per logical pixel, for parts that are rendered as images
    Bildstil stil = {};
    bool operator==(const Leinwand&) const = default;
};

/// Paints a picture on a canvas of any size.
using Bildmaler = std::function<void(QPainter&, const Leinwand&)>;

/// Whether a widget has been given its size. Before it is first shown it has not, and then a resize event comes.
inline bool hatGroesse(const QWidget& widget) { return !widget.testAttribute(Qt::WA_PendingResizeEvent); }

/// A widget's own surface.
inline Leinwand leinwandOf(const QWidget& widget) { return {widget.size(), widget.font(), widget.devicePixelRatioF()}; }

} // namespace zerna
