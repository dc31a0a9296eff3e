#pragma once

#include <QByteArray>
#include <QString>

namespace zerna {

/// The manual as one HTML page that reads well on light and on dark screens; pictures stay files beside it.
QByteArray handbuchhtml(const QString& markdown);

/// The pictures that the manual shows, as its source names them.
QStringList handbuchbilder(const QString& markdown);

} // namespace zerna
