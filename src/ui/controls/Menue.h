#pragma once

#include <QKeySequence>
#include <QList>
#include <QMenuBar>

#include <array>
#include <deque>
#include <functional>
#include <map>

class QActionGroup;

namespace zerna {

/// The menu bar of the main window: Datei, Bearbeiten, Ansicht, Hilfe. Each menu has sections in a fixed order, parted
/// by lines; who brings a command only says in which section it belongs, where it comes behind those that are there.
class Menue : public QMenuBar {
    Q_OBJECT

public:
    enum class Abschnitt {
        // Datei
        Dateien, ///< new, open, save
        Ausgabe, ///< results, diagram, protocol to files
        Drucken,
        Ende,
        // Bearbeiten
        Schritte, ///< undo and redo
        Kopieren,
        Legierung, ///< its components and its kept variants
        Einstellungen,
        // Ansicht
        Bereiche, ///< the panels of the window, one of which is shown
        Links, ///< what the left column shows, one of its areas
        Diagrammtyp, ///< one of them
        Diagramm,
        // Hilfe
        Handbuch,
        Info,
        Anzahl
    };

    /// What an entry of a menu says and does.
    struct Befehl {
        QString text; ///< with a mnemonic that no other entry of the menu has
        const char* name = nullptr; ///< objectName
        QList<QKeySequence> tasten = {};
        std::function<void()> tun;
        std::function<bool()> moeglich = {}; ///< asked when the menu opens and when a key is pressed; without it always
        std::function<bool()> gewaehlt = {}; ///< for an entry with a check mark
        std::function<QString()> beschriftung = {}; ///< a text that depends on how things stand
        bool immer = false; ///< also in a locked window
    };

    explicit Menue(QWidget* parent);

    QAction* add(Abschnitt abschnitt, Befehl befehl);

    /// Adds an action that someone else keeps.
    void add(Abschnitt abschnitt, QAction* action);

    /// Adds an empty submenu.
    QMenu* addUntermenue(Abschnitt abschnitt, const QString& text);

    /// From now on only what is always possible is.
    void sperre();

private:
    /// An entry of whose state the menu takes care.
    struct Eintrag {
        QAction* action;
        Befehl befehl;
    };

    void aktualisiere(const QMenu& menu);
    void gibFrei();
    bool istMoeglich(const Befehl& befehl) const;
    QMenu& menuOf(Abschnitt abschnitt) const;

    std::array<QAction*, static_cast<std::size_t>(Abschnitt::Anzahl)> m_enden{}; // the line behind each section
    std::map<Abschnitt, QActionGroup*> m_wahl; // of the sections one entry of which is checked
    std::deque<Eintrag> m_eintraege; // which stay where they are
    bool m_gesperrt = false;
};

} // namespace zerna
