#include "support/Stoerung.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string_view>

namespace zerna {

namespace {

/// How a call fails by itself, and whether a full disk makes it fail.
struct Systemaufruf {
    const char* name;
    int error;
    bool brauchtPlatz = false;
};

struct Zustand {
    std::mutex mutex;
    std::atomic<bool> isArmed = false;
    std::string folder;
    Stoerung::Art art{};
    int call = 0;
    std::string only;
    int count = 0;
    std::string was; // name and number of the first one
    std::string_view kind; // its name
    std::string zeuge;
};

Zustand& zustand()
{
    static auto* const zustand = new Zustand; // outlives everything
    return *zustand;
}

// What follows makes calls that nobody disturbs.

std::string placeOf(const char* path)
{
    if (path == nullptr || *path == '/')
        return path == nullptr ? "" : path;
    std::array<char, PATH_MAX> current{};
    return syscall(SYS_getcwd, current.data(), current.size()) < 0 ? "" : std::string(current.data()) + '/' + path;
}

std::string placeOf(int descriptor)
{
    std::array<char, PATH_MAX> name{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const auto length = syscall(SYS_readlink, link.c_str(), name.data(), name.size());
    return length < 0 ? "" : std::string(name.data(), static_cast<std::size_t>(length));
}

std::string placeOf(std::FILE* file) { return file == nullptr ? "" : placeOf(fileno(file)); }

void bezeuge(const Zustand& now)
{
    if (now.zeuge.empty())
        return;
    const long file = syscall(SYS_open, now.zeuge.c_str(), O_WRONLY | O_CREAT, 0600);
    syscall(SYS_write, file, now.was.data(), now.was.size());
    syscall(SYS_close, file);
}

/// Whether this call is to fail; errno is then set.
bool failsNow(Zustand& now, const Systemaufruf& aufruf)
{
    const bool isCounted = now.only.empty() || now.only == aufruf.name;
    const bool isFirst = isCounted && ++now.count == now.call;
    if (isFirst) {
        now.was = std::string(aufruf.name) + ' ' + std::to_string(now.call);
        now.kind = aufruf.name;
        bezeuge(now);
    }
    if (now.was.empty())
        return false;
    switch (now.art) {
    case Stoerung::Art::Einmal:
        errno = aufruf.error;
        return isFirst;
    case Stoerung::Art::Bleibend:
        errno = aufruf.error;
        return now.kind == aufruf.name;
    case Stoerung::Art::Voll:
        errno = ENOSPC;
        return aufruf.brauchtPlatz;
    case Stoerung::Art::Verschwunden:
        if (isFirst)
            syscall(SYS_rename, now.folder.c_str(), (now.folder + ".weg").c_str());
        return false;
    }
    return false;
}

template <class Place>
bool isHit(const Systemaufruf& aufruf, Place place)
{
    Zustand& now = zustand();
    if (!now.isArmed)
        return false;
    const int error = errno;
    const std::lock_guard lock(now.mutex);
    const std::string where = placeOf(place) + '/';
    errno = error;
    return now.isArmed && where.starts_with(now.folder + '/') && failsNow(now, aufruf);
}

bool isThere(const char* path)
{
    struct stat file { };
    const int error = errno;
    const bool found = syscall(SYS_newfstatat, AT_FDCWD, path, &file, AT_SYMLINK_NOFOLLOW) == 0;
    errno = error;
    return found;
}

void arm(const std::string& folder, Stoerung::Art art, int call, const std::string& only, const std::string& zeuge)
{
    Zustand& now = zustand();
    const std::lock_guard lock(now.mutex);
    now.folder = folder;
    now.art = art;
    now.call = call;
    now.only = only;
    now.count = 0;
    now.was.clear();
    now.kind = {};
    now.zeuge = zeuge;
    now.isArmed = true;
}

/// What another program was told by `fuer`.
[[gnu::constructor]] void armFromEnvironment()
{
    const char* const folder = std::getenv("STOERUNG_ORDNER");
    if (folder != nullptr)
        arm(folder, static_cast<Stoerung::Art>(std::atoi(std::getenv("STOERUNG_ART"))),
            std::atoi(std::getenv("STOERUNG_AUFRUF")), std::getenv("STOERUNG_NAME"), std::getenv("STOERUNG_ZEUGE"));
}

} // namespace

Stoerung::Stoerung(const std::filesystem::path& folder, Art art, int call, const std::string& name)
{
    arm(folder.string(), art, call, name, {});
}

Stoerung::~Stoerung()
{
    Zustand& now = zustand();
    const std::lock_guard lock(now.mutex);
    now.isArmed = false;
    if (now.art != Art::Verschwunden || now.was.empty())
        return;
    std::filesystem::remove_all(now.folder); // if it was made anew
    std::filesystem::rename(now.folder + ".weg", now.folder);
}

std::string Stoerung::was()
{
    const std::lock_guard lock(zustand().mutex);
    return zustand().was;
}

std::string Stoerung::fuer(
    const std::filesystem::path& folder, Art art, int call, const std::string& name, const std::filesystem::path& zeuge)
{
    // The name of what is loaded ends at a blank, its folder may hold some.
    return "ASAN_OPTIONS=\"$ASAN_OPTIONS:verify_asan_link_order=0\" LD_LIBRARY_PATH='" ZERNA_STOERUNG_ORDNER
           "' LD_PRELOAD=libstoerung.so STOERUNG_ORDNER='"
        + folder.string() + "' STOERUNG_ART=" + std::to_string(static_cast<int>(art)) + " STOERUNG_AUFRUF="
        + std::to_string(call) + " STOERUNG_NAME='" + name + "' STOERUNG_ZEUGE='" + zeuge.string() + "' ";
}

// A function with the name that the C library gives its own, under another one for the compiler, which knows that one's
// exact type. `failure` is done in place of the call, or after it where the call cannot be left out.
#define ZERNA_DISTURBED(Result, name, error, needsRoom, place, parameters, arguments, failure)                         \
    Result disturbed_##name parameters asm(#name);                                                                     \
    Result disturbed_##name parameters                                                                                 \
    {                                                                                                                  \
        static const auto real = reinterpret_cast<Result(*) parameters>(dlsym(RTLD_NEXT, #name));                      \
        if (!isHit({#name, error, needsRoom}, place))                                                                  \
            return real arguments;                                                                                     \
        const int failedWith = errno;                                                                                  \
        const Result result = failure;                                                                                 \
        errno = failedWith;                                                                                            \
        return result;                                                                                                 \
    }

// Nobody waits for the disk here: that takes long on a busy one.
int disturbed_fsync(int file) asm("fsync");
int disturbed_fsync(int file) { return isHit({"fsync", EIO, true}, file) ? -1 : 0; }
int disturbed_fdatasync(int file) asm("fdatasync");
int disturbed_fdatasync(int file) { return isHit({"fdatasync", EIO, true}, file) ? -1 : 0; }

/// Names that may be missing are looked at only where there is something.
static const char* found(const char* path) { return isThere(path) ? path : nullptr; }
static const char* foundOrNew(const char* path, int flags) { return (flags & O_CREAT) != 0 ? path : found(path); }

using Datei = std::FILE*;
using Anzahl = ssize_t;
using Groesse = std::size_t;

#define ZERNA_OPEN(name)                                                                                               \
    ZERNA_DISTURBED(int, name, EACCES, (flags & O_CREAT) != 0, foundOrNew(path, flags),                                \
        (const char* path, int flags, mode_t mode), (path, flags, mode), -1)
#define ZERNA_STAT(name)                                                                                               \
    ZERNA_DISTURBED(int, name, EACCES, false, found(path), (const char* path, void* file), (path, file), -1)

ZERNA_OPEN(open)
ZERNA_OPEN(open64)
ZERNA_STAT(stat)
ZERNA_STAT(lstat)
ZERNA_DISTURBED(Datei, fopen, EACCES, false, found(path), (const char* path, const char* mode), (path, mode), nullptr)
ZERNA_DISTURBED(Datei, fdopen, ENOMEM, false, file, (int file, const char* mode), (file, mode), nullptr)
ZERNA_DISTURBED(Anzahl, read, EIO, false, file, (int file, void* bytes, Groesse count), (file, bytes, count), -1)
ZERNA_DISTURBED(
    Anzahl, write, ENOSPC, true, file, (int file, const void* bytes, Groesse count), (file, bytes, count), -1)
ZERNA_DISTURBED(Groesse, fread, EIO, false, file, (void* bytes, Groesse size, Groesse count, Datei file),
    (bytes, size, count, file), (file->_flags |= _IO_ERR_SEEN, 0))
ZERNA_DISTURBED(Groesse, fwrite, ENOSPC, true, file, (const void* bytes, Groesse size, Groesse count, Datei file),
    (bytes, size, count, file), real(bytes, size, count / 2, file))
ZERNA_DISTURBED(int, fflush, ENOSPC, true, file, (Datei file), (file), EOF)
ZERNA_DISTURBED(int, truncate, EIO, false, path, (const char* path, off_t size), (path, size), -1)
ZERNA_DISTURBED(int, close, EIO, false, file, (int file), (file), (real(file), -1))
ZERNA_DISTURBED(int, fclose, ENOSPC, false, file, (Datei file), (file), (real(file), EOF))
ZERNA_DISTURBED(int, rename, EACCES, false, from, (const char* from, const char* to), (from, to), -1)
ZERNA_DISTURBED(int, unlink, EACCES, false, found(path), (const char* path), (path), -1)
ZERNA_DISTURBED(int, mkdir, EACCES, true, path, (const char* path, mode_t mode), (path, mode), -1)
ZERNA_DISTURBED(int, fstat, EIO, false, file, (int file, void* status), (file, status), -1)
ZERNA_DISTURBED(int, fchmod, EPERM, false, file, (int file, mode_t mode), (file, mode), -1)
ZERNA_DISTURBED(int, fchown, EPERM, false, file, (int file, uid_t user, gid_t group), (file, user, group), -1)
ZERNA_DISTURBED(int, flock, ENOLCK, false, file, (int file, int operation), (file, operation), -1)

} // namespace zerna
