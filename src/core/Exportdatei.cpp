#include "core/Exportdatei.h"

#include <cerrno>
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
    m_written += ".neu~";
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
