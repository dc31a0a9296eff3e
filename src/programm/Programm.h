#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "core/ElementCollection.h"
#include "core/Settings.h"
#include "core/clsFileHandler.h"
#include "core/clsLoader.h"
#include "model/dokument/Dokument.h"
#include "model/rechnung/clsCalc.h"
#include "parser/clsParser.h"
#include "programm/Hauptfenster.h"

namespace zerna {

/// Owns the program-wide objects from start-up to shutdown and hands them on by reference. An object that does not
/// exist yet or any more is error 91.
class Programm {
public:
    /// The main window's owner makes it on demand; it stays the owner.
    using CreateWindow = std::function<Hauptfenster&()>;

    Programm(MessageBoxes& boxes, SettingsStore& settings, std::filesystem::path programFolder);

    /// Makes sure that the element data file exists, loads it, restores the chosen elements and shows the window.
    /// False if the program must end at once; the reason has been shown. A run-time error later than that is shown and
    /// leaves a window in which nothing can be entered and StartupDone false.
    bool start(const CreateWindow& createWindow);

    /// Releases the program-wide objects in their fixed order. Nothing is stored.
    void shutdown() noexcept;

    clsLoader& Loader();
    zerna::ElementCollection& ElementCollection() { return m_elementCollection; }
    clsCalc& Calc();
    clsFileHandler& FileHandler();
    clsParser& Parser();

    /// The element that a row handler looked up last; typed density and valence go into it. Maybe null.
    const std::shared_ptr<clsElement>& CurrentElement() const { return m_dokument.eingabe.CurrentElement(); }

    /// The element chosen in the periodic table. Maybe null.
    const std::shared_ptr<clsElement>& SelectedElement() const { return m_selectedElement; }
    void setSelectedElement(std::shared_ptr<clsElement> element) { m_selectedElement = std::move(element); }

    /// False while the window is being filled; change events then do no work.
    bool StartupDone() const { return m_startupDone; }

    /// While it lives StartupDone is false; then it is again what it was.
    class Fuellung {
    public:
        explicit Fuellung(Programm& programm)
            : m_programm(programm)
            , m_before(std::exchange(programm.m_startupDone, false))
        {
        }
        ~Fuellung() { m_programm.m_startupDone = m_before; }
        Fuellung(const Fuellung&) = delete;
        Fuellung& operator=(const Fuellung&) = delete;

    private:
        Programm& m_programm;
        bool m_before;
    };

    /// All that is being worked on.
    zerna::Dokument& Dokument() { return m_dokument; }

    /// The same as the text of a file.
    std::string dokumenttext() const;

    /// The alloy as it is being entered.
    zerna::Eingabe& Eingabe() { return m_dokument.eingabe; }

    /// The entered alloy as it was when Calc got it.
    const zerna::Eingabe& gerechneteEingabe() const { return m_gerechnet; }

    /// Hands the entered alloy to Calc, all of it at once; false, and nothing changed, while a row has no element or no
    /// readable at%.
    bool uebernehmen();

    /// Hands the entered alloy to Calc as it stands, with unknown results where something is missing, so that nothing
    /// of another alloy remains.
    void uebernehmeWieEingetragen();

    /// Components of the alloy in Calc.
    int Komponentenzahl() const { return m_komponentenzahl; }

    Settings& settings() { return m_settings; }
    MessageBoxes& boxes() { return m_boxes; }

private:
    bool startSteps(const CreateWindow& createWindow, Hauptfenster*& window);
    bool provideDataFile();
    bool LoadElements(Hauptfenster& window);
    void restoreElements(Hauptfenster& window);
    void ShowDataFileMissing(std::string_view name, const std::string& reason);
    std::string ohneElemente();
    std::filesystem::path dataFile();

    MessageBoxes& m_boxes;
    Settings m_settings;
    std::filesystem::path m_programFolder;
    Dateinummern m_files;
    std::unique_ptr<clsLoader> m_loader;
    zerna::ElementCollection m_elementCollection;
    std::shared_ptr<clsElement> m_selectedElement;
    zerna::Dokument m_dokument{m_elementCollection};
    zerna::Eingabe m_gerechnet{m_elementCollection};
    Legierung m_legierung; // the same as numbers
    bool m_startupDone = false;
    std::string m_fehlendeElemente; // chosen last time and not in the table, a line each
    int m_komponentenzahl = 0;
    std::unique_ptr<clsFileHandler> m_fileHandler;
    std::unique_ptr<clsParser> m_parser;
    std::unique_ptr<clsCalc> m_calc;
};

} // namespace zerna
