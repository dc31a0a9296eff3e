#pragma once

#include <QPointF>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "programm/Exportart.h"
#include "ui/diagram/Leinwand.h"

class QPainter;

namespace zerna {

/// What the diagram area shows. A diagram paints itself on any painter and at any size, which leaves it as it is. Its
/// owner hands it what the user does: keys and mouse answer true where they were of use, and it is to be painted anew.
class Diagramm {
public:
    /// An entry of the context menu.
    struct Command {
        QString text;
        std::function<void()> execute;
        std::optional<bool> an = {}; ///< of a switch
    };

    /// A key that the diagram knows, and what it does.
    struct Taste {
        QString text;
        int key = 0;
        Qt::KeyboardModifiers held = {};
    };

    virtual ~Diagramm() = default;

    virtual void paint(QPainter& painter, const Leinwand& leinwand) const = 0;

    /// paint as a function for image files and paper.
    Bildmaler maler() const
    {
        return [this](QPainter& painter, const Leinwand& leinwand) { paint(painter, leinwand); };
    }

    /// Paints the keyboard cursor, which only the screen shows.
    virtual void paintCursor(QPainter&, const Leinwand&) const { }

    /// Whether there are values, and with them a picture to keep.
    virtual bool hatWerte() const { return false; }

    /// The values as they are copied: UTF-8 with tabs and CR LF.
    virtual std::string values() const { return {}; }

    /// The ways to save the values and the picture on that canvas, valid as long as the diagram; none where there are
    /// no values.
    virtual std::vector<Exportart> exportarten(const Leinwand&) const { return {}; }

    /// What is under a position on that canvas; empty for nothing.
    virtual QString positionText(const QPointF&, const Leinwand&) const { return {}; }

    /// What is under the keyboard cursor; empty without one.
    virtual QString cursorText() const { return {}; }

    /// What it shows, as it is read out: in a few words, and more of it.
    virtual QString name() const { return {}; }
    virtual QString beschreibung() const { return {}; }

    /// The keys of a diagram; none of a message.
    virtual std::vector<Taste> tasten() const { return {}; }

    virtual bool keyPressed(int /*key*/, const Leinwand&) { return false; }
    virtual void clearCursor() { }

    /// The mouse has moved by that many pixels with its left button pressed.
    virtual bool dragged(const QPointF& /*way*/) { return false; }
    virtual bool wheelTurned(double /*notches*/) { return false; }

    /// The same with the place of the mouse and the keys held down, for diagrams to which they matter.
    virtual bool keyPressedWith(int key, Qt::KeyboardModifiers /*held*/, const Leinwand& leinwand)
    {
        return keyPressed(key, leinwand);
    }
    virtual bool draggedTo(const QPointF& /*position*/, const QPointF& way, const Leinwand&) { return dragged(way); }
    virtual bool wheelTurnedAt(const QPointF& /*position*/, double notches, const Leinwand&)
    {
        return wheelTurned(notches);
    }
    /// The left button goes down and up, the mouse moves without it and leaves.
    virtual void pressed(const QPointF& /*position*/) { }
    virtual bool released(const Leinwand&) { return false; }
    virtual bool hovered(const QPointF& /*position*/, const Leinwand&) { return false; }
    virtual bool left() { return false; }

    /// Another kind of diagram is shown from now on.
    virtual void verlassen() { }

    virtual bool doubleClicked() { return false; }

    /// What the context menu offers for this diagram alone.
    virtual std::vector<Command> commands() { return {}; }
};

} // namespace zerna
