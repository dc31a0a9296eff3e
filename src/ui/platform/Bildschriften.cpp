#include "ui/platform/Bildschriften.h"

#include <QDir>
#include <QFontDatabase>

namespace zerna {

void ladeBildschriften()
{
    const QDir fonts(QStringLiteral(":/schriften"));
    for (const QString& name : fonts.entryList())
        QFontDatabase::addApplicationFont(fonts.filePath(name));
}

} // namespace zerna
