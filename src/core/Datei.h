#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/Laufzeitfehler.h"

namespace zerna {

/// How a file is opened.
enum class Zugriff : int {
    Ausgabe = 0, ///< write a new text file; an existing one is emptied
    Eingabe = 1, ///< read a text file
    Binaer = 2, ///< read and write bytes; a missing file is created, one that must not be written opened for reading
};

/// One open file: bytes in and out at the current position. Every failure is a Laufzeitfehler; a read never goes past
/// the end (error 62). Folders, pipes and devices are no files (error 75).
class Datei {
public:
    Datei(const std::filesystem::path& path, Zugriff zugriff);

    /// A file for reading that exists in memory only.
    static Datei fromBytes(std::string bytes) { return Datei(std::move(bytes)); }

    /// Fills `target` with the next bytes. Error 62 if there are fewer; the position is then the end.
    void read(void* target, std::size_t count)
    {
        if (m_buffer.size() - m_next < count)
            fill(count);
        std::memcpy(target, m_buffer.data() + m_next, count);
        m_next += count;
    }

    /// The next `count` bytes as text, valid until the next call. Error 62 if there are fewer.
    std::string_view readText(std::size_t count)
    {
        if (m_buffer.size() - m_next < count)
            fill(count);
        const std::string_view text(m_buffer.data() + m_next, count);
        m_next += count;
        return text;
    }

    /// The next line without its end (CR LF, CR or LF). Error 62 at the end of the file.
    std::string readLine();

    /// A failed write is remembered: close() then fails with the same error, however often writing was tried.
    void write(std::string_view bytes);

    bool atEnd();

    /// Bytes between the position and the end of the file.
    std::uint64_t remaining();

    /// Writes what is still buffered and closes; error 61 if the disk is full. Later calls do nothing.
    void close();

private:
    explicit Datei(std::string bytes);

    /// Makes at least `count` unread bytes available or throws.
    void fill(std::size_t count);
    bool tryFill(std::size_t count);
    std::FILE* handle();

    std::unique_ptr<std::FILE, int (*)(std::FILE*)> m_file; // null for a file in memory and after close
    std::string m_buffer; // bytes read ahead; those before m_next are used up
    std::size_t m_next = 0;
    std::uint64_t m_size = 0; // of the file when it was opened
    std::uint64_t m_readIntoBuffer = 0; // bytes of the file that have passed into the buffer
    bool m_writing = false;
    std::optional<Laufzeitfehler> m_writeError;
};

/// More bytes than this (64 MB) are not read at once.
inline constexpr std::size_t GroessteDatei = std::size_t{64} << 20U;

/// All bytes of a file that fits into memory with ease; an error for one that is larger than that.
std::string readFile(const std::filesystem::path& path);

/// The run-time error that a failed call of the system means, from its error code (errno).
Laufzeitfehler systemfehler(int error);

/// A UTF-8 text as the name of a file, and back.
std::filesystem::path pathFromUtf8(std::string_view utf8);
std::string utf8FromPath(const std::filesystem::path& path);

} // namespace zerna
