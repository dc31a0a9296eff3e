#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <span>

/// Files as the platform gives them. What fails sets errno.
namespace zerna {

/// Opens an ordinary file of any name; `mode` as for fopen, binary. Null for anything else: EISDIR for a folder, ENXIO
/// for a pipe or a device, at once and without waiting for its other end.
std::FILE* openFile(const std::filesystem::path& path, const char* mode);

/// Opens anything that bytes come out of, pipes and devices too, which may wait for the other end; null on failure.
std::FILE* openStream(const std::filesystem::path& path);

/// Bytes in an open file; -1 on failure.
std::int64_t sizeOf(std::FILE* file);

/// Reads what is there, waiting only while there is nothing; 0 at the end, -1 on failure. Goes past the file's buffer.
std::ptrdiff_t readSome(std::FILE* file, std::span<char> bytes);

/// Creates a file that must not be there yet, for its owner alone or as is usual; null with EEXIST if there is one.
/// While it is open removeLeftover leaves it alone. Ends with moveInto or discard, which close it.
std::FILE* createFile(const std::filesystem::path& path, bool forOwnerAlone);

/// Removes a file of createFile whose writer has died; nothing for any other.
void removeLeftover(const std::filesystem::path& path) noexcept;

/// Writes what is buffered and waits until the disk has it.
bool writeThrough(std::FILE* file);

/// Gives a file of createFile owner and permissions of another one; false if that is not allowed.
bool takeRightsOf(const std::filesystem::path& other, std::FILE* file);

/// Puts a file of createFile in the place of another one, and closes it.
bool moveInto(const std::filesystem::path& target, const std::filesystem::path& path, std::FILE* file);

/// Removes and closes a file of createFile.
void discard(const std::filesystem::path& path, std::FILE* file) noexcept;

} // namespace zerna
