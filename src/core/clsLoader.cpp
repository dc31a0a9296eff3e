#include "core/clsLoader.h"

#include <cerrno>
#include <system_error>

#include "ProgramVersion.h"
#include "core/Datei.h"
#include "core/Plattform.h"

namespace zerna {

namespace {

std::string padded(int number, std::size_t digits)
{
    const std::string text = std::to_string(number);
    return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

} // namespace

clsLoader::clsLoader(MessageBoxes& boxes, std::filesystem::path programFolder)
    : m_boxes(boxes)
    , m_programFolder(std::move(programFolder))
{
}

bool clsLoader::IsFunctionFailed(const std::string& library, const std::string& function) const
{
    return !libraryHasFunction(library, function);
}

bool clsLoader::IsFileFailed(std::string_view path) const
{
    std::error_code missing;
    return !std::filesystem::is_regular_file(pathFromUtf8(path), missing);
}

void clsLoader::Connect()
{
    m_applicationPath = utf8FromPath(m_programFolder / "");
    const auto time = lastWriteTime(m_programFolder / Programmdatei);
    if (time) {
        m_creationDate = dateText(*time);
        m_creationTime = timeText(*time);
    } else {
        const Laufzeitfehler reason = systemfehler(errno);
        m_boxes.show(Icon::Exclamation, "Fehler - cApplication Modul", reason.what());
        m_creationDate.clear();
        m_creationTime.clear();
    }
}

std::string clsLoader::Version() const { return versionText(VersionMajor, VersionMinor, VersionRevision); }

std::string dateText(const std::tm& time)
{
    return std::to_string(time.tm_mday) + "." + std::to_string(time.tm_mon + 1) + "."
        + std::to_string(time.tm_year + 1900);
}

std::string timeText(const std::tm& time)
{
    return padded(time.tm_hour, 2) + ":" + padded(time.tm_min, 2) + ":" + padded(time.tm_sec, 2);
}

std::string versionText(int major, int minor, int revision)
{
    return std::to_string(major) + "." + padded(minor, 2) + "." + padded(revision, 4);
}

} // namespace zerna
