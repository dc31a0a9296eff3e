#pragma once

#include <string>
#include <vector>

namespace zerna {

/// The console as a command line program needs it, made at the start of main(): arguments and output are UTF-8, and
/// what is read and written are the program's own bytes. What was set comes back when the process ends.
class Konsole {
public:
    Konsole(int argc, char** argv);

    int argc() const { return static_cast<int>(m_texts.size()); }

    /// As main() gets them.
    char** argv() { return m_pointers.data(); }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers; // into the texts, null at the end
};

} // namespace zerna
