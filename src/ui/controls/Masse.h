#pragma once

#include <QRect>

class QComboBox;
class QLineEdit;
class QString;
class QWidget;

namespace zerna {

// Sizes in logical pixels that follow from a widget's font and style. At the usual font a field is 26 high and a button
// 28.

int feldhoehe(const QWidget& widget); ///< of a field or list
int knopfhoehe(const QWidget& widget);

/// Widths in which a text is shown whole.
int feldbreite(const QLineEdit& field, const QString& widest);
int listenbreite(const QComboBox& list, const QString& widest);

/// What a field's frame and margins take on each side of its text.
int feldrand(const QLineEdit& field);

/// The part of its screen that a window can have without the frame that the desktop puts around it.
QRect fensterraum(const QWidget& window);

} // namespace zerna
