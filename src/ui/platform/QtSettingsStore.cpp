#include "ui/platform/QtSettingsStore.h"

#include <QSettings>

#include <utility>

#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// The user's own store alone: what an organisation or the system has stored under the same names does not count.
class Benutzerspeicher : public QSettings {
public:
    explicit Benutzerspeicher(const QString& application)
        : QSettings(NativeFormat, UserScope, application, application)
    {
        setFallbacksEnabled(false);
    }
};

QString fullKey(std::string_view section, std::string_view key) { return toQt(section) + QLatin1Char('/') + toQt(key); }

} // namespace

QtSettingsStore::QtSettingsStore(std::chrono::milliseconds delay)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(delay);
    m_delay.callOnTimeout([this] { writeNow(); });
    m_writer.setMaxThreadCount(1);
}

QtSettingsStore::~QtSettingsStore()
{
    writeNow();
    m_writer.waitForDone();
}

std::string QtSettingsStore::value(std::string_view application, std::string_view section, std::string_view key) const
{
    return fromQt(Benutzerspeicher(toQt(application)).value(fullKey(section, key)).toString());
}

void QtSettingsStore::setValue(
    std::string_view application, std::string_view section, std::string_view key, std::string_view value)
{
    m_pending[toQt(application)].insert_or_assign(fullKey(section, key), toQt(value));
    if (!m_delay.isActive())
        m_delay.start();
}

void QtSettingsStore::writeNow()
{
    m_delay.stop();
    if (!m_pending.empty())
        m_writer.start([pending = std::exchange(m_pending, {})] { write(pending); });
}

void QtSettingsStore::write(const std::map<QString, Werte>& byApplication)
{
    for (const auto& [application, values] : byApplication) {
        Benutzerspeicher store(application);
        for (const auto& [key, value] : values)
            if (store.value(key).toString() != value) // the file would be written again for nothing
                store.setValue(key, value);
    }
}

} // namespace zerna
