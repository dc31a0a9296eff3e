#include "ui/platform/QtSettingsStore.h"

#include <QSettings>

#include "ui/platform/QtText.h"

namespace zerna {

namespace {

QSettings openStore(std::string_view application)
{
    return {QSettings::NativeFormat, QSettings::UserScope, toQt(application), toQt(application)};
}

QString fullKey(std::string_view section, std::string_view key) { return toQt(section) + QLatin1Char('/') + toQt(key); }

} // namespace

std::string QtSettingsStore::value(std::string_view application, std::string_view section, std::string_view key) const
{
    return fromQt(openStore(application).value(fullKey(section, key)).toString());
}

void QtSettingsStore::setValue(
    std::string_view application, std::string_view section, std::string_view key, std::string_view value)
{
    openStore(application).setValue(fullKey(section, key), toQt(value));
}

} // namespace zerna
