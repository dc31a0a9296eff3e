#include "core/Plattformdatei.h"

#include <cerrno>
#include <optional>
#include <string_view>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zerna {

#ifdef _WIN32

namespace {

std::FILE* failedWith(int error)
{
    errno = error;
    return nullptr;
}

/// What errno would be for the platform's last error.
int lastError()
{
    const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
    const std::error_condition condition = error.default_error_condition();
    return condition.category() == std::generic_category() ? condition.value() : EIO;
}

bool isFolder(const std::filesystem::path& path)
{
    std::error_code unknown;
    return std::filesystem::is_directory(path, unknown);
}

} // namespace

std::FILE* openFile(const std::filesystem::path& path, const char* mode)
{
    if (isFolder(path)) // opening it would mean "access denied"
        return failedWith(EISDIR);
    std::FILE* const file = _wfopen(path.c_str(), std::filesystem::path(mode).c_str());
    if (file == nullptr || GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)))) == FILE_TYPE_DISK)
        return file;
    std::fclose(file);
    return failedWith(ENXIO);
}

std::FILE* openStream(const std::filesystem::path& path)
{
    return isFolder(path) ? failedWith(EISDIR) : _wfopen(path.c_str(), L"rb");
}

std::int64_t sizeOf(std::FILE* file) { return _filelengthi64(_fileno(file)); }

std::ptrdiff_t readSome(std::FILE* file, std::span<char> bytes)
{
    return _read(_fileno(file), bytes.data(), static_cast<unsigned>(bytes.size()));
}

std::FILE* createFile(const std::filesystem::path& path, bool)
{
    // Nobody can delete it while it is open, since deleting is not shared.
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
        FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return failedWith(lastError());
    return _fdopen(_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY), "w+b");
}

void removeLeftover(const std::filesystem::path& path) noexcept { DeleteFileW(path.c_str()); }

bool writeThrough(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool takeRightsOf(const std::filesystem::path&, std::FILE*) { return true; } // moveInto keeps them

bool moveInto(const std::filesystem::path& target, const std::filesystem::path& path, std::FILE* file)
{
    const bool moved = std::fclose(file) == 0
        && (ReplaceFileW(target.c_str(), path.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0
            || MoveFileExW(path.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING) != 0);
    if (moved)
        return true;
    const int error = lastError();
    DeleteFileW(path.c_str());
    errno = error;
    return false;
}

void discard(const std::filesystem::path& path, std::FILE* file) noexcept
{
    std::fclose(file);
    DeleteFileW(path.c_str());
}

#else

namespace {

/// These do not touch errno.
void closeQuietly(int descriptor)
{
    const int error = errno;
    ::close(descriptor);
    errno = error;
}

void unlinkQuietly(const std::filesystem::path& path)
{
    const int error = errno;
    ::unlink(path.c_str());
    errno = error;
}

int flagsOf(std::string_view mode)
{
    const bool both = mode.find('+') != std::string_view::npos;
    if (mode.starts_with('r'))
        return both ? O_RDWR : O_RDONLY;
    return (both ? O_RDWR : O_WRONLY) | O_CREAT | O_TRUNC;
}

bool isOrdinary(int descriptor)
{
    struct stat file { };
    if (::fstat(descriptor, &file) != 0)
        return false;
    if (!S_ISREG(file.st_mode))
        errno = S_ISDIR(file.st_mode) ? EISDIR : ENXIO;
    return S_ISREG(file.st_mode);
}

/// Whether the path still names the open file; no value if that cannot be found out.
std::optional<bool> isStillAt(const std::filesystem::path& path, int descriptor)
{
    struct stat open { };
    struct stat named { };
    if (::fstat(descriptor, &open) == 0 && ::lstat(path.c_str(), &named) == 0)
        return open.st_dev == named.st_dev && open.st_ino == named.st_ino;
    return errno == ENOENT ? std::optional(false) : std::nullopt;
}

} // namespace

std::FILE* openFile(const std::filesystem::path& path, const char* mode)
{
    const int descriptor = ::open(path.c_str(), flagsOf(mode) | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
    if (descriptor < 0)
        return nullptr;
    std::FILE* const file = isOrdinary(descriptor) ? ::fdopen(descriptor, mode) : nullptr;
    if (file == nullptr)
        closeQuietly(descriptor);
    return file;
}

std::FILE* openStream(const std::filesystem::path& path) { return std::fopen(path.c_str(), "rbe"); }

std::int64_t sizeOf(std::FILE* file)
{
    struct stat open { };
    return ::fstat(::fileno(file), &open) == 0 ? open.st_size : -1;
}

std::ptrdiff_t readSome(std::FILE* file, std::span<char> bytes)
{
    ::ssize_t count = -1;
    do
        count = ::read(::fileno(file), bytes.data(), bytes.size());
    while (count < 0 && errno == EINTR);
    return count;
}

std::FILE* createFile(const std::filesystem::path& path, bool forOwnerAlone)
{
    const int descriptor =
        ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, forOwnerAlone ? 0600 : 0666);
    if (descriptor < 0)
        return nullptr;
    // Whoever cleans up may have come between, have the lock, and be removing the file.
    const bool lost = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    std::FILE* file = nullptr;
    if (lost || !isStillAt(path, descriptor).value_or(true))
        errno = EEXIST;
    else if (file = ::fdopen(descriptor, "w+b"); file == nullptr)
        unlinkQuietly(path);
    if (file == nullptr)
        closeQuietly(descriptor);
    return file;
}

void removeLeftover(const std::filesystem::path& path) noexcept
{
    const int descriptor = ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return;
    // The lock ends with its writer. Between open and lock the name may have gone to another writer's file.
    if (isOrdinary(descriptor) && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0
        && isStillAt(path, descriptor).value_or(false))
        ::unlink(path.c_str());
    ::close(descriptor);
}

bool writeThrough(std::FILE* file)
{
    if (std::fflush(file) != 0)
        return false;
    return ::fsync(::fileno(file)) == 0 || errno == EINVAL; // a file system that cannot wait
}

bool takeRightsOf(const std::filesystem::path& other, std::FILE* file)
{
    struct stat from { };
    struct stat to { };
    const int descriptor = ::fileno(file);
    if (::stat(other.c_str(), &from) != 0 || ::fstat(descriptor, &to) != 0)
        return false;
    const bool sameOwner = from.st_uid == to.st_uid && from.st_gid == to.st_gid;
    return (sameOwner || ::fchown(descriptor, from.st_uid, from.st_gid) == 0)
        && ::fchmod(descriptor, from.st_mode & 07777U) == 0;
}

bool moveInto(const std::filesystem::path& target, const std::filesystem::path& path, std::FILE* file)
{
    const bool moved = ::rename(path.c_str(), target.c_str()) == 0;
    if (!moved)
        unlinkQuietly(path);
    const int error = errno;
    std::fclose(file); // only now: the lock must last as long as the name
    errno = error;
    return moved;
}

void discard(const std::filesystem::path& path, std::FILE* file) noexcept
{
    ::unlink(path.c_str());
    std::fclose(file);
}

#endif

} // namespace zerna
