#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace zerna {

/// Texts are UTF-8 in the program and UTF-16 in the toolkit.
inline QString toQt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQt(const QString& text) { return text.toStdString(); }

/// A text as it is to be read in a menu, where a single '&' would mark a key.
inline QString menuetext(QString text) { return text.replace(QLatin1Char('&'), QLatin1String("&&")); }

/// The object name of one of a row of controls: "lblMFE" and 3 make "lblMFE_3".
inline QString numberedName(const char* name, int index)
{
    return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index);
}

} // namespace zerna
