#pragma once

#include <QString>
#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <map>

#include "core/Settings.h"

namespace zerna {

/// The platform's native per-user store: the registry on Windows, a file under the user's configuration folder
/// elsewhere. What is set is written after a delay at most, by a thread of its own (a busy disk lets it wait), and at
/// the end of the store's life; a killed program loses no more than that delay.
class QtSettingsStore : public SettingsStore {
public:
    explicit QtSettingsStore(std::chrono::milliseconds delay = std::chrono::seconds(1));
    ~QtSettingsStore() override;

    std::string value(std::string_view application, std::string_view section, std::string_view key) const override;
    void setValue(
        std::string_view application, std::string_view section, std::string_view key, std::string_view value) override;

private:
    using Werte = std::map<QString, QString>; // by section and key

    static void write(const std::map<QString, Werte>& byApplication);
    void writeNow();

    std::map<QString, Werte> m_pending; // by application
    QTimer m_delay;
    QThreadPool m_writer; // of one thread: what was set last is written last
};

} // namespace zerna
