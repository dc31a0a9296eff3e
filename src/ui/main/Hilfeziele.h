#pragma once

#include <QString>

#include <span>

class QObject;

namespace zerna {

/// A part of the program and the section of the manual that explains it.
struct Hilfeziel {
    const char* teil; ///< object name without the number of its row, or class
    const char* anker; ///< without the number of the chapter
};

/// The one table of them.
std::span<const Hilfeziel> hilfeziele();

/// The section of the manual that explains what has the focus: that of the control or of the nearest part of the window
/// around it that has one. Empty if nothing around it has.
QString hilfeziel(const QObject* object);

} // namespace zerna
