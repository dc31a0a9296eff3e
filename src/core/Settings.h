#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace zerna {

/// The platform's per-user key-value store; all values are UTF-8 texts.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The stored text, empty if there is none or it cannot be read.
    virtual std::string value(std::string_view application, std::string_view section, std::string_view key) const = 0;

    /// Stores the text unless it is there already, perhaps a little later; a store that cannot be written keeps what it
    /// has and reports nothing.
    virtual void setValue(
        std::string_view application, std::string_view section, std::string_view key, std::string_view value) = 0;
};

/// The program's own settings: one application name, one section.
class Settings {
public:
    Settings(SettingsStore& store, std::string application)
        : m_store(store)
        , m_application(std::move(application))
    {
    }

    /// The stored value; `standard` when there is none or it is empty. What was saved in this session counts even if
    /// the store could not take it or has not yet.
    std::string LoadSetting(std::string_view key, std::string_view standard) const
    {
        const auto saved = m_saved.find(key);
        const std::string value = saved != m_saved.end() ? saved->second : m_store.value(m_application, Section, key);
        return value.empty() ? std::string(standard) : value;
    }

    void SaveSetting(std::string_view key, std::string_view value)
    {
        m_saved.insert_or_assign(std::string(key), std::string(value));
        m_store.setValue(m_application, Section, key, value);
    }

    /// The same for a switch, kept as "1" or "0".
    bool istAn(std::string_view key, bool standard = false) const
    {
        return LoadSetting(key, truth(standard)) == truth(true);
    }
    void setAn(std::string_view key, bool an) { SaveSetting(key, truth(an)); }

private:
    static constexpr std::string_view truth(bool an) { return an ? "1" : "0"; }

    static constexpr std::string_view Section = "Settings";

    SettingsStore& m_store;
    std::string m_application;
    std::map<std::string, std::string, std::less<>> m_saved; // in this session
};

} // namespace zerna
