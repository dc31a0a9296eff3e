#pragma once

#include <condition_variable>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "core/Laufzeitfehler.h"

namespace zerna {

/// Keeps what is being worked on in a folder of the user's, outside every file, so that a run that is killed loses at
/// most what came after the last schreibe. Each run has a place of its own there, which it marks as long as it lives; a
/// place without a living owner holds what a killed run has left. Writing is done beside the caller.
class Sicherung {
public:
    /// Takes a place in the folder, which is made if need be: one that a killed run has left, else an empty one.
    /// Without a folder that can be written there is no place, and the first schreibe fails.
    explicit Sicherung(std::filesystem::path ordner);

    /// Ends as a run that has come to its end: what was kept is removed.
    ~Sicherung();

    Sicherung(const Sicherung&) = delete;
    Sicherung& operator=(const Sicherung&) = delete;

    /// What a killed run has left in this run's place; it stays until it is written over or the run ends.
    const std::optional<std::string>& hinterlassen() const { return m_hinterlassen; }

    /// Removes what a killed run has left.
    void verwerfe();

    /// Leaves what a killed run has left for a later run, and takes an empty place.
    void lasseLiegen();

    /// Keeps these bytes, which are made beside the caller; of several that wait only the last are written.
    void schreibe(std::function<std::string()> bytes);

    /// Why the last schreibe has kept nothing, told once; waits for nothing.
    std::optional<Laufzeitfehler> nimmFehler();

    /// Waits until all is written.
    void warte();

private:
    bool belege(int nummer);
    void belegeLeeren();
    void gibFrei();
    std::filesystem::path datei(int nummer) const;
    std::filesystem::path marke(int nummer) const;
    void arbeite();

    std::filesystem::path m_ordner;
    int m_nummer = -1; // of the place; -1 for none
    std::FILE* m_marke = nullptr; // locked as long as it is open
    std::optional<std::string> m_hinterlassen;

    std::mutex m_mutex; // for what follows
    std::condition_variable m_geweckt;
    std::condition_variable m_fertig;
    std::function<std::string()> m_auftrag; // null for none
    bool m_schreibt = false;
    bool m_endet = false;
    std::optional<Laufzeitfehler> m_fehler;
    std::thread m_schreiber;
};

} // namespace zerna
