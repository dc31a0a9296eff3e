#pragma once

#include "ui/picker/Elementzelle.h"

/// What a periodic table shows beside its cells.
namespace zerna {

class Tafelmassstab;

/// The groups with their colours, or the scale of the property; nothing if the area is too small.
void paintLegende(QPainter& painter, const QRectF& area, const Tafelfaerbung& faerbung, const Zellstil& stil);

/// Tells where the two separate rows belong in the main body.
void paintReihenhinweise(QPainter& painter, const Tafelmassstab& scale, const Zellstil& stil);

} // namespace zerna
