#pragma once

#include <filesystem>
#include <string_view>

namespace zerna {

/// A file that is written beside its target and renamed over it, so that a failed write (disk full, no permission)
/// leaves an earlier file of that name untouched. A target that is no ordinary file (a device, a pipe) is written
/// directly.
class Exportdatei {
public:
    /// Error 70 if the target exists and must not be written, error 75 if it is a folder.
    explicit Exportdatei(const std::filesystem::path& target);

    /// Removes what was written unless it was committed.
    ~Exportdatei();

    Exportdatei(const Exportdatei&) = delete;
    Exportdatei& operator=(const Exportdatei&) = delete;

    /// The file to write to and to close before commit.
    const std::filesystem::path& writtenFile() const { return m_written; }

    /// Puts the written file in the target's place.
    void commit();

private:
    std::filesystem::path m_target;
    std::filesystem::path m_written;
};

/// Writes the bytes to the target in that way; the errors of Datei.
void writeExport(const std::filesystem::path& target, std::string_view bytes);

} // namespace zerna
