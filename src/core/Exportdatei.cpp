#include "core/Exportdatei.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "core/Datei.h"
#include "core/Kuerzung.h"
#include "core/Plattformdatei.h"

namespace zerna {

namespace {

/// The file that a write to the target reaches, links followed even where they lead to no file yet.
std::filesystem::path behindLinks(std::filesystem::path target)
{
    constexpr int MostLinks = 40;
    std::error_code noLink;
    for (int links = 0; links <= MostLinks; ++links) {
        const std::filesystem::path next = std::filesystem::read_symlink(target, noLink);
        if (noLink)
            return target;
        target = target.parent_path() / next;
    }
    throw Laufzeitfehler(systemfehler(ELOOP));
}

/// Whether there is a file to replace; an error if it must not be written.
bool isWritableFile(const std::filesystem::path& file)
{
    std::FILE* const old = openFile(file, "r+b");
    if (old == nullptr && errno != ENOENT)
        throw Laufzeitfehler(systemfehler(errno));
    if (old != nullptr)
        std::fclose(old);
    return old != nullptr;
}

[[noreturn]] void throwNotCreated(const std::filesystem::path& folder, int error)
{
    std::error_code unknown;
    if (!folder.empty() && !std::filesystem::exists(folder, unknown))
        throw Laufzeitfehler(Fehler::PfadNichtGefunden);
    if (error == EACCES || error == EPERM || error == ENOENT)
        throw Laufzeitfehler(Fehler::ZugriffVerweigert, "in diesem Ordner lässt sich keine Datei anlegen");
    throw Laufzeitfehler(systemfehler(error));
}

/// The new version of a file: beside it until it takes its place, and gone if it does not.
class Neufassung {
public:
    Neufassung(const std::filesystem::path& target, bool replaces)
    {
        constexpr int Cleaned = 16; // names that are looked at for what killed runs have left
        for (int number = 0; number < Cleaned; ++number)
            removeLeftover(nameIn(target.parent_path(), number));
        for (int number = 0; m_file == nullptr; ++number) {
            m_name = nameIn(target.parent_path(), number);
            m_file = createFile(m_name, replaces);
            if (m_file == nullptr && errno != EEXIST)
                throwNotCreated(target.parent_path(), errno);
        }
    }

    ~Neufassung()
    {
        if (m_file != nullptr)
            discard(m_name, m_file);
    }

    Neufassung(const Neufassung&) = delete;
    Neufassung& operator=(const Neufassung&) = delete;

    void write(std::string_view bytes)
    {
        if (std::fwrite(bytes.data(), 1, bytes.size(), m_file) != bytes.size() || !writeThrough(m_file))
            throw Laufzeitfehler(systemfehler(errno));
    }

    /// Whether nothing of the old file but its bytes would be lost.
    bool canReplace(const std::filesystem::path& old)
    {
        std::error_code unknown;
        return std::filesystem::hard_link_count(old, unknown) <= 1 && takeRightsOf(old, m_file);
    }

    void takePlaceOf(const std::filesystem::path& target)
    {
        if (!moveInto(target, m_name, std::exchange(m_file, nullptr)))
            throw Laufzeitfehler(systemfehler(errno));
    }

    /// Stays beside the target under a name that the user finds; the answer is that name.
    std::string stayBeside(const std::filesystem::path& target)
    {
        std::filesystem::path name = target;
        std::error_code unknown;
        do
            name += ".neu";
        while (std::filesystem::exists(name, unknown));
        takePlaceOf(name);
        return utf8FromPath(name.filename());
    }

private:
    static std::filesystem::path nameIn(const std::filesystem::path& folder, int number)
    {
        return folder / (".zerna-" + std::to_string(number) + ".neu");
    }

    std::filesystem::path m_name;
    std::FILE* m_file = nullptr;
};

/// Writes over a file's bytes. What it has in excess goes last, so that undoing needs no room.
void rewrite(const std::filesystem::path& file, std::string_view bytes)
{
    std::FILE* const output = openFile(file, "r+b");
    const bool isWritten =
        output != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), output) == bytes.size() && writeThrough(output);
    const int error = errno;
    if (output != nullptr)
        std::fclose(output);
    if (!isWritten)
        throw Laufzeitfehler(systemfehler(error));
    std::error_code failed;
    std::filesystem::resize_file(file, bytes.size(), failed);
    if (failed)
        throw Laufzeitfehler(systemfehler(failed.default_error_condition().value()));
}

/// Writes into a file that must stay the same one; what fails is undone. A disk that refuses even that keeps the new
/// version beside it.
void overwrite(const std::filesystem::path& file, std::string_view bytes, Neufassung& neu)
{
    const std::string before = readFile(file);
    try {
        return rewrite(file, bytes);
    } catch (const Laufzeitfehler& error) {
        try {
            rewrite(file, before);
        } catch (const Laufzeitfehler&) {
            throw Laufzeitfehler(static_cast<Fehler>(error.Nummer()),
                "die frühere Datei ist dabei beschädigt worden, die neue steht vollständig in "
                    + zitierteDatei(neu.stayBeside(file)));
        }
        throw;
    }
}

} // namespace

void writeExport(const std::filesystem::path& target, std::string_view bytes)
{
    if (target.empty())
        throw Laufzeitfehler(Fehler::DateinummerFalsch);
    const std::filesystem::path file = behindLinks(target);
    const bool replaces = isWritableFile(file);
    Neufassung neu(file, replaces);
    neu.write(bytes); // in full before the old file is touched: then there is room for it
    if (!replaces || neu.canReplace(file))
        neu.takePlaceOf(file);
    else
        overwrite(file, bytes, neu);
}

} // namespace zerna
