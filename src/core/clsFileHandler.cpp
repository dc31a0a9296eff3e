#include "core/clsFileHandler.h"

#include "core/Zeichensatz.h"

namespace zerna {

clsFileHandler::clsFileHandler(Dateinummern& files, MessageBoxes& boxes)
    : m_files(files)
    , m_boxes(boxes)
{
}

clsFileHandler::~clsFileHandler()
{
    if (m_open)
        CloseFile();
}

void clsFileHandler::CloseFile()
{
    if (!m_open)
        return;
    m_open = false;
    try {
        m_files.close(m_fileHandle);
    } catch (const Laufzeitfehler& error) {
        m_boxes.show(Icon::Exclamation, "FileHandler", error.what());
    }
}

bool clsFileHandler::OpenFile(std::optional<std::string_view> filename, std::optional<int> accessModus)
{
    CloseFile();
    if (filename)
        m_filename = *filename;
    if (m_filename.empty())
        return false;
    if (accessModus)
        m_accessModus = *accessModus;
    m_open = true;
    m_fileHandle = m_files.freeNumber();
    if (m_accessModus < 0 || m_accessModus > 2) {
        m_open = false;
        return false;
    }
    try {
        m_files.open(m_fileHandle, pathFromUtf8(m_filename), static_cast<Zugriff>(m_accessModus));
    } catch (const Laufzeitfehler& error) {
        m_boxes.show(Icon::Exclamation, "FileHandler - Öffnen", error.what());
        return false;
    }
    return true;
}

std::string clsFileHandler::ReadLine()
{
    if (!m_open)
        return {};
    try {
        return fromWindows1252(m_files.at(m_fileHandle).readLine());
    } catch (const Laufzeitfehler&) {
        return {};
    }
}

void clsFileHandler::WriteLine(std::string_view text)
{
    if (!m_open)
        return;
    try {
        m_files.at(m_fileHandle).write(toWindows1252(text) + "\r\n");
    } catch (const Laufzeitfehler&) {
        // Swallowed as documented; a full disk shows when the file is closed.
    }
}

bool clsFileHandler::FileEnd()
{
    try {
        return m_files.at(m_fileHandle).atEnd();
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace zerna
