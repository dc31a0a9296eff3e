#pragma once

#include <QClipboard>
#include <QGuiApplication>

namespace zerna {

/// Puts a text into the clipboard in place of what is in it.
inline void copyToClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }

} // namespace zerna
