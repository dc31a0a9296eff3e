#include "core/Plattform.h"

#ifdef _WIN32
#include <array>
#include <cwchar>

#include <sys/stat.h>
#include <windows.h>
#else
#include <csignal>

#include <dlfcn.h>
#include <sys/stat.h>
#endif

namespace zerna {

#ifdef _WIN32

std::filesystem::path executableFolder()
{
    std::array<wchar_t, 32768> name{};
    GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    return std::filesystem::path(name.data()).parent_path();
}

void surviveFileSizeLimit() { } // there is none

std::optional<std::tm> lastWriteTime(const std::filesystem::path& path)
{
    struct _stat64 information { };
    std::tm local{};
    if (_wstat64(path.c_str(), &information) != 0 || _localtime64_s(&local, &information.st_mtime) != 0)
        return std::nullopt;
    return local;
}

bool libraryHasFunction(const std::string& library, const std::string& function)
{
    HMODULE handle = LoadLibraryA(library.c_str());
    if (handle == nullptr)
        return false;
    const bool found = GetProcAddress(handle, function.c_str()) != nullptr;
    FreeLibrary(handle);
    return found;
}

#else

std::filesystem::path executableFolder()
{
    std::error_code unreadable;
    return std::filesystem::read_symlink("/proc/self/exe", unreadable).parent_path();
}

void surviveFileSizeLimit() { std::signal(SIGXFSZ, SIG_IGN); }

std::optional<std::tm> lastWriteTime(const std::filesystem::path& path)
{
    struct stat information { };
    std::tm local{};
    if (::stat(path.c_str(), &information) != 0 || ::localtime_r(&information.st_mtime, &local) == nullptr)
        return std::nullopt;
    return local;
}

bool libraryHasFunction(const std::string& library, const std::string& function)
{
    void* const handle = ::dlopen(library.c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (handle == nullptr)
        return false;
    const bool found = ::dlsym(handle, function.c_str()) != nullptr;
    ::dlclose(handle);
    return found;
}

#endif

} // namespace zerna
