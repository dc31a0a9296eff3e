#pragma once

#include <ctime>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

/// Calls that differ from platform to platform; everything else in this room is the same everywhere.
namespace zerna {

/// The name of the window program's file.
#ifdef _WIN32
inline constexpr const char* Programmdatei = "Zerna.exe";
#else
inline constexpr const char* Programmdatei = "zerna";
#endif

/// The name of the file of the program that makes pictures for the command line: on Windows a program of its own, else
/// the window program by another name.
#ifdef _WIN32
inline constexpr const char* Bildprogramm = "zerna-bild.exe";
#else
inline constexpr const char* Bildprogramm = "zerna-bild";
#endif

/// The folder in which the running executable really lies, symbolic links resolved.
std::filesystem::path executableFolder();

/// Runs another program with these arguments in the place of this one, which ends with its exit status. Returns only if
/// it cannot be started.
void runInstead(const std::filesystem::path& program, std::span<const std::string> arguments);

/// Makes writing beyond the largest size that a file may have an error like any other instead of the program's end.
void surviveFileSizeLimit();

/// Time of the last write to a file in local time; no value with errno set on failure.
std::optional<std::tm> lastWriteTime(const std::filesystem::path& path);

/// Whether the library can be loaded and has a function of that name.
bool libraryHasFunction(const std::string& library, const std::string& function);

} // namespace zerna
