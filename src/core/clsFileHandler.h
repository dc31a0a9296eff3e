#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Dateinummern.h"
#include "core/MessageBoxes.h"

namespace zerna {

/// One numbered file at a time: opened by name and access mode, read and written by whole lines, or handed on by its
/// number for binary records. Lines are UTF-8 here and Windows-1252 in the file.
class clsFileHandler {
public:
    clsFileHandler(Dateinummern& files, MessageBoxes& boxes);
    ~clsFileHandler();
    clsFileHandler(const clsFileHandler&) = delete;
    clsFileHandler& operator=(const clsFileHandler&) = delete;

    /// The number taken by the last OpenFile.
    int FileHandle() const { return m_fileHandle; }

    /// Closes; an error is shown under the caption "FileHandler".
    void CloseFile();

    /// Opens the named file (default: the stored name and mode) and returns whether it is open. An error is shown
    /// under the caption "FileHandler - Öffnen". Modes: 0 write a new text file, 1 read a text file, 2 binary; any
    /// other opens nothing.
    /// Intended: after a failed open the handler still counts its file as open until the next CloseFile.
    bool OpenFile(
        std::optional<std::string_view> filename = std::nullopt, std::optional<int> accessModus = std::nullopt);

    /// Path (UTF-8) and access mode for the next OpenFile; writing them does not reopen the file.
    const std::string& Filename() const { return m_filename; }
    void setFilename(std::string_view filename) { m_filename = filename; }
    int AccessModus() const { return m_accessModus; }
    void setAccessModus(int modus) { m_accessModus = modus; }

    /// The next line without its end; empty on any error, the end of the file included.
    std::string ReadLine();

    /// Writes the line with CR LF; errors are swallowed.
    void WriteLine(std::string_view text);

    /// Whether the end of the file is reached; false on any error.
    bool FileEnd();

private:
    Dateinummern& m_files;
    MessageBoxes& m_boxes;
    std::string m_filename;
    int m_accessModus = 0;
    bool m_open = false;
    int m_fileHandle = 0;
};

} // namespace zerna
