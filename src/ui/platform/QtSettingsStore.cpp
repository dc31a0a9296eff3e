#include "ui/platform/QtSettingsStore.h"

#include <QSettings>

#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// The user's own store alone: what an organisation or the system has stored under the same names does not count.
class Benutzerspeicher : public QSettings {
public:
    explicit Benutzerspeicher(std::string_view application)
        : QSettings(NativeFormat, UserScope, toQt(application), toQt(application))
    {
        setFallbacksEnabled(false);
    }
};

QString fullKey(std::string_view section, std::string_view key) { return toQt(section) + QLatin1Char('/') + toQt(key); }

} // namespace

std::string QtSettingsStore::value(std::string_view application, std::string_view section, std::string_view key) const
{
    return fromQt(Benutzerspeicher(application).value(fullKey(section, key)).toString());
}

void QtSettingsStore::setValue(
    std::string_view application, std::string_view section, std::string_view key, std::string_view value)
{
    Benutzerspeicher(application).setValue(fullKey(section, key), toQt(value));
}

} // namespace zerna
