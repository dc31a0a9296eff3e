#pragma once

#include <QFont>
#include <QPalette>
#include <QRectF>

#include <optional>
#include <string>

#include "ui/picker/Tafelfaerbung.h"

class QPainter;

/// How a cell of the periodic table is painted.
namespace zerna {

/// What all cells of a table have in common.
struct Zellstil {
    QPalette palette;
    QFont font;
    bool namen = false; ///< below the symbols, else masses
    bool hasFocus = false; ///< the table
};

/// What one cell shows.
struct Elementzelle {
    const clsElement& element;
    Zellfuellung fuellung;
    std::optional<float> wert = std::nullopt; ///< shown in place of name or mass
    std::string komponenten = {}; ///< numbers of the alloy's rows that hold the element
    bool isHovered = false; ///< lifted, with a shadow
    bool isSelected = false;
};

inline constexpr double Zellabstand = 1.5; ///< that a cell keeps from the edge of its area

void paintZelle(QPainter& painter, const QRectF& area, const Elementzelle& zelle, const Zellstil& stil);

/// The ground of a cell and of the samples in the legend, with a frame that stands out.
void paintGrund(QPainter& painter, const QRectF& area, const QColor& colour, bool aufDunklem);

void paintZeichen(QPainter& painter, const QRectF& area, Gruppenzeichen zeichen, const QColor& colour);

/// The mark of an element that is in the alloy: the numbers of its rows on a plate whose upper right corner is given.
/// Returns the plate's width.
double paintKomponenten(
    QPainter& painter, const QPointF& corner, const QString& komponenten, const QColor& plate, const QFont& font);

QFont withPixelSize(QFont font, double pixels);

} // namespace zerna
