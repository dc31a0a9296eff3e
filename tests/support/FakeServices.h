#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Settings.h"
#include "programm/ExportFileDialog.h"
#include "programm/InputBox.h"
#include "programm/OpenFileDialog.h"

namespace zerna {

/// Settings of one session; keys are those of the program's own section.
class FakeSettings : public SettingsStore {
public:
    std::string value(std::string_view application, std::string_view section, std::string_view key) const override
    {
        const auto found = stored.find(path(application, section) + std::string(key));
        return found == stored.end() ? "" : found->second;
    }

    void setValue(
        std::string_view application, std::string_view section, std::string_view key, std::string_view value) override
    {
        stored[path(application, section) + std::string(key)] = value;
    }

    std::string& operator[](const std::string& key) { return stored[path("KoltZerna", "Settings") + key]; }

    std::map<std::string, std::string> stored;

private:
    static std::string path(std::string_view application, std::string_view section)
    {
        return std::string(application) + '/' + std::string(section) + '/';
    }
};

/// A save dialog that gives its answer at once; no answer is a cancel. A refused answer is followed by the next one.
class FakeSaveDialog : public SaveFileDialog {
public:
    std::optional<Choice> choose(
        std::string_view title, std::span<const Exportart> arten, const std::optional<Choice>& refused) override
    {
        if (refused) {
            offeredAgain.push_back(refused->path + '|' + std::to_string(refused->filterIndex));
            return std::exchange(next, std::nullopt);
        }
        offered = title;
        for (const Exportart& art : arten)
            offered.append("|").append(art.beschreibung).append("|").append(art.muster);
        return answer;
    }

    bool confirmReplace(std::string_view name) override
    {
        asked.emplace_back(name);
        return replace;
    }

    std::optional<Choice> answer;
    std::optional<Choice> next; ///< once
    bool replace = false;
    std::vector<std::string> offeredAgain; ///< path and kind
    std::string offered; ///< title and types of the last question
    std::vector<std::string> asked; ///< names of files to replace
};

/// A dialog that gives its answer at once; no answer is a cancel.
class FakeOpenDialog : public OpenFileDialog {
public:
    std::optional<std::string> choose(Dateiwahl) override { return answer; }

    std::optional<std::string> answer;
};

/// An input box that gives its answer at once; no answer is a cancel.
class FakeInputBox : public InputBox {
public:
    std::optional<std::string> ask(std::string_view, std::string_view prompt, std::string_view) override
    {
        prompts.emplace_back(prompt);
        return answer;
    }

    std::optional<std::string> answer;
    std::vector<std::string> prompts;
};

/// Puts the process back into the folder it was in: an export changes it.
class KeptCurrentFolder {
public:
    KeptCurrentFolder() = default;
    ~KeptCurrentFolder()
    {
        std::error_code ignored;
        std::filesystem::current_path(m_before, ignored);
    }
    KeptCurrentFolder(const KeptCurrentFolder&) = delete;
    KeptCurrentFolder& operator=(const KeptCurrentFolder&) = delete;

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

} // namespace zerna
