#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/Datei.h"
#include "programm/Dokumentoeffnung.h"
#include "programm/ExportFileDialog.h"
#include "programm/OpenFileDialog.h"
#include "programm/Programm.h"

namespace zerna {

/// The open file, for a later run.
struct OffeneDatei {
    std::string name; ///< absolute path, UTF-8; empty for none
    std::int64_t stand = 0; ///< when it was written last, as far as the document knows it

    bool operator==(const OffeneDatei&) const = default;
};

/// The file that the program's document is kept in, if any. Where an answer is a bool it says whether it was done:
/// false after a cancel or a failure, which has been shown and has changed nothing. What replaces the document asks
/// first what is to become of unsaved changes.
class Dokumentverwaltung {
public:
    static constexpr int MostRecent = 8;

    Dokumentverwaltung(Programm& programm, SaveFileDialog& save, OpenFileDialog& open)
        : m_programm(programm)
        , m_save(save)
        , m_open(open)
    {
    }

    /// The open file's name without its folder; empty without a file.
    std::string name() const { return m_datei.empty() ? "" : utf8FromPath(m_datei.filename()); }

    OffeneDatei offen() const { return {utf8FromPath(m_datei), m_stand.time_since_epoch().count()}; }

    /// The document as it is now begins without a file: it may be replaced unasked as long as it stays so.
    void beginne() { m_anfang = m_programm.Dokument(); }

    /// Goes on with a document that was restored and belongs to that file. What others have written since is asked
    /// about when it is saved; where the file cannot be read, saving asks for a name.
    void setzeFort(const OffeneDatei& datei);

    /// Whether a file is open that does not hold what the document is now.
    bool istGeaendert() const { return m_gespeichert && !(*m_gespeichert == m_programm.Dokument()); }

    /// A document without a file: the rows and elements of now with the values of a start.
    bool neu();

    bool oeffne();
    bool oeffne(const std::filesystem::path& file);

    bool speichere();
    bool speichereUnter();

    /// Asks what is to become of changes that the open file does not have; true if the window may close, and what was
    /// discarded is then gone.
    bool darfSchliessen();

    /// The files that were opened or saved last, the last one first; absolute paths.
    std::vector<std::string> zuletzt() const;

private:
    std::filesystem::path vorschlag() const;
    bool darfGehen();
    bool darfErsetzen();
    bool frage(const std::string& satz);
    bool lade(const std::filesystem::path& file);
    bool entscheide(const std::filesystem::path& file, Lesung& lesung, Dokument& gespeichert);
    bool istUeberholt() const;
    void nimmAn(const std::filesystem::path& file, Dokument gespeichert);
    bool merke(const std::filesystem::path& file, bool dabei);

    Programm& m_programm;
    SaveFileDialog& m_save;
    OpenFileDialog& m_open;
    std::filesystem::path m_datei; // absolute; empty for none
    bool m_nurLesen = false; // must not be written over
    std::optional<Dokument> m_anfang; // of a document without a file
    std::optional<Dokument> m_gespeichert; // as the file has it
    std::filesystem::file_time_type m_stand; // of the file then
};

} // namespace zerna
