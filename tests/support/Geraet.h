#pragma once

#include <filesystem>

#include <sys/stat.h>

namespace zerna {

/// Something that can be opened like a file and is none.
#ifdef _WIN32
inline constexpr const char* Geraet = "NUL";
#else
inline constexpr const char* Geraet = "/dev/zero";
#endif

/// Makes a pipe of that name, where pipes are names in a folder; answers with something that is no file.
inline std::filesystem::path makePipe(const std::filesystem::path& name)
{
#ifdef _WIN32
    return name.parent_path() / Geraet;
#else
    return ::mkfifo(name.c_str(), 0600) == 0 ? name : std::filesystem::path(Geraet);
#endif
}

} // namespace zerna
