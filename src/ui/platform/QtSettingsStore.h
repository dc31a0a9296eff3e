#pragma once

#include "core/Settings.h"

namespace zerna {

/// The platform's native per-user store: the registry on Windows, a file under the user's configuration folder
/// elsewhere.
class QtSettingsStore : public SettingsStore {
public:
    std::string value(std::string_view application, std::string_view section, std::string_view key) const override;
    void setValue(
        std::string_view application, std::string_view section, std::string_view key, std::string_view value) override;
};

} // namespace zerna
