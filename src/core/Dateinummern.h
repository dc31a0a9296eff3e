#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "core/Datei.h"

namespace zerna {

/// The table of open files by number, through which one object opens a file and another reads from it.
class Dateinummern {
public:
    /// The smallest number that is not in use, from 1 on.
    int freeNumber() const;

    /// Opens a file under a number; the errors of Datei.
    void open(int number, const std::filesystem::path& path, Zugriff zugriff);

    /// Opens bytes in memory for reading under a number.
    void openBytes(int number, std::string bytes);

    /// The open file; error 6 for a number outside 16 bits, error 52 for one that is not open.
    Datei& at(int number);

    /// Closes; error 61 if the disk is full. A number that is not open is ignored.
    void close(int number);

private:
    std::map<int, Datei> m_open;
};

} // namespace zerna
