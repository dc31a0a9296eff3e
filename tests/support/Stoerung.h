#pragma once

#include <filesystem>
#include <string>

namespace zerna {

/// Makes calls of the system fail that reach into a folder; whatever calls them, in any thread. The dynamic linker
/// finds Stoerung.cpp, a library of its own, before the C library: linked to a test program, or loaded before a program
/// that the environment tells what to disturb. Calls are counted from 1; those that fail by themselves do not count.
class Stoerung {
public:
    enum class Art {
        Einmal, ///< this call fails
        Bleibend, ///< and all later ones of its kind do
        Voll, ///< from this call on there is no room: creating, writing and waiting for the disk fail
        Verschwunden, ///< before this call the folder gets another name
    };
    static constexpr Art Arten[] = {Art::Einmal, Art::Bleibend, Art::Voll, Art::Verschwunden};

    /// Disturbs as long as it lives. With a name only calls of that one ("rename") count.
    Stoerung(const std::filesystem::path& folder, Art art, int call, const std::string& name = {});
    ~Stoerung();
    Stoerung(const Stoerung&) = delete;
    Stoerung& operator=(const Stoerung&) = delete;

    /// The call that was disturbed first, "rename 1" say; empty if there were too few calls.
    static std::string was();

    /// What disturbs another program in the same way: words to put before its call in a shell. What was() would say is
    /// then in the file `zeuge`.
    static std::string fuer(const std::filesystem::path& folder, Art art, int call, const std::string& name,
        const std::filesystem::path& zeuge);
};

} // namespace zerna
