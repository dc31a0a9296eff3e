#include "core/Exportdatei.h"

#include <cerrno>
#include <string>
#include <system_error>

#include "core/Datei.h"
#include "core/Plattform.h"

namespace zerna {

namespace {

/// The target with links resolved, so that a link keeps pointing at the file that is replaced.
std::filesystem::path resolved(const std::filesystem::path& target)
{
    std::error_code missing;
    const auto path = std::filesystem::canonical(target, missing);
    return missing ? target : path;
}

/// An existing file that must not be written would be replaced by a rename all the same.
void requireWritable(const std::filesystem::path& target)
{
    std::FILE* const file = openFile(target, "r+b");
    if (file == nullptr)
        throw Laufzeitfehler(fehlerOfSystem(errno));
    std::fclose(file);
}

/// A short name that no file of the folder has.
std::filesystem::path freeNameIn(const std::filesystem::path& folder)
{
    std::error_code unknown;
    std::filesystem::path name;
    int number = 0;
    do {
        name = folder / (".zerna-" + std::to_string(number++) + ".neu");
    } while (
        std::filesystem::symlink_status(name, unknown).type() != std::filesystem::file_type::not_found && !unknown);
    return name;
}

/// The new file may be read and written by whom the old one could be.
void keepPermissions(const std::filesystem::path& from, const std::filesystem::path& to)
{
    std::error_code ignored;
    const auto status = std::filesystem::status(from, ignored);
    if (std::filesystem::is_regular_file(status))
        std::filesystem::permissions(to, status.permissions(), ignored);
}

} // namespace

Exportdatei::Exportdatei(const std::filesystem::path& target)
    : m_target(resolved(target))
    , m_written(m_target)
{
    std::error_code unknown;
    const auto status = std::filesystem::status(m_target, unknown);
    if (std::filesystem::is_directory(status))
        throw Laufzeitfehler(Fehler::PfadZugriff);
    if (std::filesystem::is_regular_file(status))
        requireWritable(m_target);
    else if (std::filesystem::exists(status))
        return;
    m_written = freeNameIn(m_target.parent_path());
}

Exportdatei::~Exportdatei()
{
    std::error_code ignored;
    if (m_written != m_target)
        std::filesystem::remove(m_written, ignored);
}

void Exportdatei::commit()
{
    if (m_written == m_target)
        return;
    keepPermissions(m_target, m_written);
    std::error_code failed;
    std::filesystem::rename(m_written, m_target, failed);
    if (failed)
        throw Laufzeitfehler(fehlerOfSystem(failed.value()));
    m_written = m_target;
}

void writeExport(const std::filesystem::path& target, std::string_view bytes)
{
    Exportdatei file(target);
    Datei output(file.writtenFile(), Zugriff::Ausgabe);
    output.write(bytes);
    output.close();
    file.commit();
}

} // namespace zerna
