#include "core/Plattform.h"

#include <vector>

#ifdef _WIN32
#include <array>
#include <cstdlib>
#include <cwchar>

#include <process.h>
#include <sys/stat.h>
#include <windows.h>

#include "core/Datei.h"
#else
#include <csignal>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zerna {

#ifdef _WIN32

namespace {

/// An argument as programs take it off a command line again: in quotation marks, before which backslashes count double.
std::wstring quoted(const std::string& argument)
{
    std::wstring result = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : pathFromUtf8(argument).wstring() + L'"') {
        if (c == L'"')
            result.append(backslashes, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        if (c == L'"')
            result += L'\\';
        result += c;
    }
    result.erase(result.size() - 2, 1); // the last mark closes
    return result;
}

} // namespace

std::filesystem::path executableFolder()
{
    std::array<wchar_t, 32768> name{};
    GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    return std::filesystem::path(name.data()).parent_path();
}

void runInstead(const std::filesystem::path& program, std::span<const std::string> arguments)
{
    std::vector<std::wstring> texts{quoted(utf8FromPath(program))};
    for (const std::string& argument : arguments)
        texts.push_back(quoted(argument));
    std::vector<const wchar_t*> pointers;
    for (const std::wstring& text : texts)
        pointers.push_back(text.c_str());
    pointers.push_back(nullptr);
    if (const auto status = _wspawnv(_P_WAIT, program.c_str(), pointers.data()); status != -1)
        std::exit(static_cast<int>(status));
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
    HMODULE handle = LoadLibraryW(pathFromUtf8(library).c_str());
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

void runInstead(const std::filesystem::path& program, std::span<const std::string> arguments)
{
    std::vector<std::string> texts{program.string()};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    ::execv(program.c_str(), pointers.data());
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
