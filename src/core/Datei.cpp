#include "core/Datei.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "core/Plattformdatei.h"

namespace zerna {

namespace {

constexpr std::size_t Blockgroesse = 16384;

int closeFile(std::FILE* file) { return std::fclose(file); }

[[noreturn]] void throwSystemError() { throw Laufzeitfehler(systemfehler(errno)); }

std::FILE* openWith(const std::filesystem::path& path, Zugriff zugriff)
{
    switch (zugriff) {
    case Zugriff::Ausgabe:
        return openFile(path, "wb");
    case Zugriff::Eingabe:
        return openFile(path, "rb");
    case Zugriff::Binaer:
        break;
    }
    if (std::FILE* const file = openFile(path, "r+b"))
        return file;
    if (errno == ENOENT)
        return openFile(path, "w+b");
    return errno == EACCES || errno == EPERM || errno == EROFS ? openFile(path, "rb") : nullptr;
}

} // namespace

Datei::Datei(const std::filesystem::path& path, Zugriff zugriff)
    : m_file(openWith(path, zugriff), &closeFile)
{
    if (!m_file) {
        const int error = errno;
        std::error_code unknown;
        if (error == ENOENT && path.has_parent_path() && !std::filesystem::exists(path.parent_path(), unknown))
            throw Laufzeitfehler(Fehler::PfadNichtGefunden);
        if (error == ENOENT && std::filesystem::is_symlink(path, unknown))
            throw Laufzeitfehler(Fehler::DateiNichtGefunden, "die Verknüpfung führt zu keiner Datei");
        throw Laufzeitfehler(systemfehler(error));
    }
    const std::int64_t size = sizeOf(m_file.get());
    if (size < 0) // else the file would pass for an empty one
        throwSystemError();
    m_size = static_cast<std::uint64_t>(size);
}

Datei::Datei(std::string bytes)
    : m_file(nullptr, &closeFile)
    , m_buffer(std::move(bytes))
    , m_size(m_buffer.size())
    , m_readIntoBuffer(m_buffer.size())
{
}

std::FILE* Datei::handle()
{
    if (!m_file)
        throw Laufzeitfehler(Fehler::DateinummerFalsch);
    return m_file.get();
}

bool Datei::tryFill(std::size_t count)
{
    if (!m_file)
        return m_buffer.size() - m_next >= count;
    if (m_writing) {
        if (std::fflush(handle()) != 0 || std::fseek(handle(), 0, SEEK_CUR) != 0)
            throwSystemError();
        m_writing = false;
    }
    m_buffer.erase(0, m_next);
    m_next = 0;
    while (m_buffer.size() < count) {
        const std::size_t old = m_buffer.size();
        // Room that nothing comes into would be cleared in vain; a file may have grown since it was opened.
        const std::uint64_t known = m_size > m_readIntoBuffer ? m_size - m_readIntoBuffer : Blockgroesse;
        const auto block = static_cast<std::size_t>(std::min<std::uint64_t>(known, Blockgroesse));
        m_buffer.resize(old + block);
        const std::size_t got = std::fread(m_buffer.data() + old, 1, block, handle());
        const int systemError = errno;
        m_buffer.resize(old + got);
        m_readIntoBuffer += got;
        if (got == 0 && std::ferror(handle()) != 0)
            throw Laufzeitfehler(systemfehler(systemError));
        if (got == 0)
            return false;
    }
    return true;
}

void Datei::fill(std::size_t count)
{
    if (tryFill(count))
        return;
    m_next = m_buffer.size(); // else the rest of a cut-off record would be taken for the next ones
    throw Laufzeitfehler(Fehler::HinterDateiende);
}

std::string Datei::readLine()
{
    if (atEnd())
        throw Laufzeitfehler(Fehler::HinterDateiende);
    std::string line;
    while (!atEnd()) {
        const char c = m_buffer[m_next++];
        if (c == '\r') {
            if (!atEnd() && m_buffer[m_next] == '\n')
                ++m_next;
            break;
        }
        if (c == '\n')
            break;
        line += c;
    }
    return line;
}

void Datei::write(std::string_view bytes)
{
    if (!m_writing) {
        const auto unread = static_cast<long>(m_buffer.size() - m_next);
        if (m_readIntoBuffer != 0 && std::fseek(handle(), -unread, SEEK_CUR) != 0)
            throwSystemError();
        m_readIntoBuffer -= static_cast<std::uint64_t>(unread);
        m_buffer.clear();
        m_next = 0;
        m_writing = true;
    }
    if (std::fwrite(bytes.data(), 1, bytes.size(), handle()) != bytes.size()) {
        m_writeError = systemfehler(errno);
        throw Laufzeitfehler(*m_writeError);
    }
}

bool Datei::atEnd() { return m_next == m_buffer.size() && !tryFill(1); }

std::uint64_t Datei::remaining()
{
    const std::uint64_t used = m_readIntoBuffer - (m_buffer.size() - m_next);
    return m_size > used ? m_size - used : 0;
}

void Datei::close()
{
    std::FILE* const file = m_file.release();
    if (file == nullptr)
        return;
    const bool closed = std::fclose(file) == 0;
    const int systemError = errno;
    if (m_writeError || !closed)
        throw Laufzeitfehler(m_writeError.value_or(systemfehler(systemError)));
}

std::string readFile(const std::filesystem::path& path)
{
    Datei file(path, Zugriff::Eingabe);
    if (file.remaining() > GroessteDatei)
        throw Laufzeitfehler(Fehler::EinAusgabefehler, "die Datei ist größer als 64 MB");
    return std::string(file.readText(static_cast<std::size_t>(file.remaining())));
}

Laufzeitfehler systemfehler(int error)
{
    switch (error) {
    case ENOENT:
        return Laufzeitfehler(Fehler::DateiNichtGefunden);
    case ENOTDIR:
        return Laufzeitfehler(Fehler::PfadNichtGefunden);
    case EACCES:
    case EPERM:
        return Laufzeitfehler(Fehler::ZugriffVerweigert);
    case EROFS:
        return Laufzeitfehler(Fehler::ZugriffVerweigert, "der Datenträger ist schreibgeschützt");
    case EISDIR:
        return Laufzeitfehler(Fehler::PfadZugriff, "das ist ein Ordner");
    case ENXIO:
        return Laufzeitfehler(Fehler::PfadZugriff, "das ist keine gewöhnliche Datei");
    case ELOOP:
        return Laufzeitfehler(Fehler::PfadZugriff, "die Verknüpfung führt im Kreis");
    case EEXIST:
    case EBUSY:
        return Laufzeitfehler(Fehler::PfadZugriff);
    case ENAMETOOLONG:
    case EINVAL:
        return Laufzeitfehler(Fehler::DateinummerFalsch);
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return Laufzeitfehler(Fehler::DatentraegerVoll);
    case EFBIG:
        return Laufzeitfehler(Fehler::DatentraegerVoll, "so groß darf eine Datei hier nicht werden");
    default:
        return Laufzeitfehler(Fehler::EinAusgabefehler);
    }
}

std::filesystem::path pathFromUtf8(std::string_view utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::string utf8FromPath(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

} // namespace zerna
