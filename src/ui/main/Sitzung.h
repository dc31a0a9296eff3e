#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "programm/Dokumentverwaltung.h"
#include "programm/Sicherung.h"

namespace zerna {

/// What outlasts a run without being saved: while one works, the document is kept less than a second after every edit,
/// and offered by the next start if the run was killed; and the next start shows the last alloy again if the user wants
/// that.
class Sitzung : public QObject {
    Q_OBJECT

public:
    /// A document, and the file that it was opened from or saved to.
    struct Stand {
        zerna::Dokument dokument;
        OffeneDatei datei;
        std::string hinweis = {}; ///< what is to be said about it, in sentences; empty for nothing
    };

    /// `datei` names the open file. The folder is the user's own. An edit is kept after `bald`.
    Sitzung(Programm& programm, std::filesystem::path ordner, std::function<OffeneDatei()> datei,
        std::chrono::milliseconds bald = std::chrono::milliseconds(300));

    /// The document is another one than it was.
    void geaendert();

    /// What the window is to show instead of a new alloy: asks, after a run that was killed. Nothing for a new alloy.
    std::optional<Stand> beginn();

    /// The run ends without need: what was kept is not needed any more.
    void ende();

    /// Whether the next start shows the last alloy again.
    static bool stelltWiederHer(const Settings& settings);
    static void setWiederherstellen(Settings& settings, bool yes);

private:
    std::function<std::string()> text() const;
    std::optional<Stand> gelesen(const std::string& text) const;
    std::optional<Stand> nachAbbruch();
    std::optional<Stand> letzterStand() const;
    bool istGespeichert(const Stand& stand) const;
    std::filesystem::path letzte() const { return m_ordner / "letzte.zerna"; }
    void sichere();
    void pruefe();

    Programm& m_programm;
    std::filesystem::path m_ordner;
    std::function<OffeneDatei()> m_datei;
    Sicherung m_sicherung;
    QTimer m_bald;
    bool m_hatGewarnt = false;
};

} // namespace zerna
