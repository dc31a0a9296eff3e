#include "ui/platform/QtSettingsStore.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <utility>

#include "core/Datei.h"
#include "core/Exportdatei.h"
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

using Werte = std::map<QString, QString>; // by section and key

/// Sets the values that are other ones; false if there is none.
bool change(QSettings& store, const Werte& values)
{
    bool isChanged = false;
    for (const auto& [key, value] : values) {
        if (store.value(key).toString() == value)
            continue; // the file would be written again for nothing
        store.setValue(key, value);
        isChanged = true;
    }
    return isChanged;
}

#ifndef Q_OS_WIN // where the store is the registry

QMap<QString, QVariant> contentOf(const QSettings& store)
{
    QMap<QString, QVariant> content;
    for (const QString& key : store.allKeys())
        content.insert(key, store.value(key));
    return content;
}

/// The bytes of a settings file after a change; empty if there is none or it cannot be done.
std::string changed(const std::filesystem::path& file, const Werte& values)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("jetzt"));
    const QString again = folder.filePath(QStringLiteral("neu"));
    std::error_code unknown;
    if (std::filesystem::exists(file, unknown) || unknown)
        writeExport(pathFromUtf8(fromQt(copy)), readFile(file));
    QMap<QString, QVariant> wanted;
    {
        QSettings store(copy, QSettings::IniFormat);
        if (!change(store, values))
            return {};
        wanted = contentOf(store);
    }
    QFile::rename(copy, again); // which is read anew
    const bool isWhole = contentOf(QSettings(again, QSettings::IniFormat)) == wanted;
    return isWhole ? readFile(pathFromUtf8(fromQt(again))) : std::string();
}

/// The toolkit would empty it on a disk that gets full between its lock and its bytes,
/// and take one for empty that cannot be read just now; so it only changes a copy. That takes no lock: of two programs
/// that write within the same milliseconds the last one wins.
void writeFile(const QString& name, const Werte& values)
try {
    QDir().mkpath(QFileInfo(name).path());
    const std::filesystem::path file = pathFromUtf8(fromQt(name));
    if (const std::string bytes = changed(file, values); !bytes.empty())
        writeExport(file, bytes);
} catch (const Laufzeitfehler&) { // the file keeps what it has
}

#endif

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
#ifdef Q_OS_WIN
        change(store, values);
#else
        writeFile(store.fileName(), values);
#endif
    }
}

} // namespace zerna
