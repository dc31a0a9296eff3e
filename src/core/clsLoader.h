#pragma once

#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/MessageBoxes.h"

namespace zerna {

/// The program's description of itself: its folder, the name under which it keeps its settings, when it was built
/// (the time stamp of its own file) and its version.
class clsLoader {
public:
    /// `programFolder` is where the program lies, executableFolder() outside tests.
    clsLoader(MessageBoxes& boxes, std::filesystem::path programFolder);

    /// True if the library cannot be loaded or lacks the function.
    bool IsFunctionFailed(const std::string& library, const std::string& function) const;

    /// True if there is no such file (UTF-8 path); its content does not matter.
    bool IsFileFailed(std::string_view path) const;

    /// Folder of the program (UTF-8), ending in the platform's separator; empty before Connect.
    const std::string& ApplicationPath() const { return m_applicationPath; }

    static constexpr std::string_view ApplicationName() { return "KoltZerna"; }

    /// Fills path, date and time. When the program file cannot be looked at, the system's reason is shown and date and
    /// time stay empty.
    void Connect();

    /// Intended: a fixed figure of the about box, not counted.
    int Code_Lines() const { return 7131; }

    const std::string& Creation_Date() const { return m_creationDate; } ///< "5.3.2009"
    const std::string& Creation_Time() const { return m_creationTime; } ///< "09:07:33"
    std::string Version() const; ///< "1.02.0017"

private:
    MessageBoxes& m_boxes;
    std::filesystem::path m_programFolder;
    std::string m_creationDate;
    std::string m_creationTime;
    std::string m_applicationPath;
};

/// Day, month and year without leading zeros, "5.3.2009".
std::string dateText(const std::tm& time);

/// Hour, minute and second with two digits each, "09:07:33".
std::string timeText(const std::tm& time);

/// Major version, minor with at least two digits, revision with at least four: (1, 2, 17) gives "1.02.0017".
std::string versionText(int major, int minor, int revision);

} // namespace zerna
