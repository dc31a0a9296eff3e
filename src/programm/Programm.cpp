#include "programm/Programm.h"

#include <iostream>
#include <string>
#include <system_error>

#include "core/Elementdatei.h"
#include "core/Exportdatei.h"
#include "core/Kuerzung.h"
#include "core/Zahlentext.h"
#include "dokument/Dokumentdatei.h"
#include "programm/EingebauteTabelle.h"

namespace zerna {

namespace {

constexpr std::string_view Dateiabhilfe = "Bitte die Datei durch eine gute ersetzen oder entfernen (dann legt der "
                                          "nächste Start die eingebaute Tabelle mit sechs "
                                          "Elementen an) und das Programm neu starten.";
constexpr std::string_view Neustart =
    "Das Programm ist nicht vollständig gestartet und kann nichts berechnen. Bitte beenden und neu starten.";

template <class Object>
Object& existing(const std::unique_ptr<Object>& object)
{
    if (!object)
        throw Laufzeitfehler(Fehler::ObjektNichtFestgelegt);
    return *object;
}

} // namespace

Programm::Programm(MessageBoxes& boxes, SettingsStore& settings, std::filesystem::path programFolder)
    : m_boxes(boxes)
    , m_settings(settings, std::string(clsLoader::ApplicationName()))
    , m_programFolder(std::move(programFolder))
{
}

bool Programm::start(const CreateWindow& createWindow)
{
    Hauptfenster* window = nullptr;
    try {
        if (!startSteps(createWindow, window))
            return false;
    } catch (const Laufzeitfehler& error) {
        // The window is shown all the same.
        const std::string reason = m_elementCollection.Count() == 0 ? ohneElemente() : std::string(Neustart);
        m_boxes.show(Icon::Exclamation, clsLoader::ApplicationName(), error.what() + std::string("\r\n\r\n") + reason);
        if (window != nullptr)
            window->sperren(reason);
    }
    if (window == nullptr)
        return false;
    window->show();
    if (!m_fehlendeElemente.empty())
        m_boxes.show(Icon::Exclamation, Programmtitel,
            "Diese zuletzt gewählten Elemente fehlen in der Datei\r\n" + utf8FromPath(dataFile()) + ":\r\n"
                + m_fehlendeElemente
                + "\r\n\r\nBitte in den Listen andere wählen oder die Datei durch eine ersetzen, die sie enthält.");
    return true;
}

bool Programm::startSteps(const CreateWindow& createWindow, Hauptfenster*& window)
{
    m_loader = std::make_unique<clsLoader>(m_boxes, m_programFolder);
    m_loader->Connect();
    if (!provideDataFile())
        return false;
    m_startupDone = false;
    window = &createWindow();
    m_fileHandler = std::make_unique<clsFileHandler>(m_files, m_boxes);
    m_parser = std::make_unique<clsParser>(m_elementCollection, m_boxes);
    m_calc = std::make_unique<clsCalc>(m_elementCollection, m_komponentenzahl, *m_parser);
    if (!LoadElements(*window))
        return false;
    m_selectedElement = m_elementCollection.Item(1);
    restoreElements(*window);
    window->selectFirstDiagram();
    m_startupDone = true;
    window->compute();
    return true;
}

std::filesystem::path Programm::dataFile()
{
    return pathFromUtf8(Loader().ApplicationPath() + std::string(Elementdateiname));
}

/// Writes the built-in table out if nothing has the data file's name; false if there is no file even then.
bool Programm::provideDataFile()
{
    const std::filesystem::path file = dataFile();
    std::string reason = "Es ist keine lesbare Datei";
    try {
        std::error_code unknown;
        if (std::filesystem::symlink_status(file, unknown).type() == std::filesystem::file_type::not_found)
            writeExport(file, {reinterpret_cast<const char*>(EingebauteTabelle.data()), EingebauteTabelle.size()});
        else if (m_loader->IsFileFailed(utf8FromPath(file)))
            Datei(file, Zugriff::Eingabe); // which says why not
    } catch (const Laufzeitfehler& error) {
        reason = error.what();
    }
    if (!m_loader->IsFileFailed(utf8FromPath(file)))
        return true;
    ShowDataFileMissing(Elementdateiname, reason);
    return false;
}

void Programm::ShowDataFileMissing(std::string_view name, const std::string& reason)
{
    const std::string text = "Sie benötigen eine neuere Version der Datei '" + std::string(name)
        + "'.\r\nProgramm kann nicht ausgeführt werden.\r\n\r\n" + utf8FromPath(dataFile()) + ":\r\n" + reason
        + ".\r\nAbhilfe: Zerna neu installieren, eine lesbare Datei dieses Namens in den Ordner legen oder seinen "
          "Schreibschutz aufheben (dann legt der nächste Start eine mit sechs Elementen an).";
    std::cerr << ReplaceText(text, "\r\n", "\n") << '\n'; // for those who start the program from a terminal or a menu
    m_boxes.show(Icon::Exclamation, "Zerna - Loader", text);
}

/// Why a program without elements can do nothing, and what helps.
std::string Programm::ohneElemente()
{
    return "Die Elementdatei\r\n" + utf8FromPath(dataFile())
        + "\r\nenthält keine Elemente oder ist nicht lesbar; ohne Elemente lässt sich nichts berechnen.\r\n\r\n"
        + std::string(Dateiabhilfe);
}

/// Fills the collection and the window's element lists; false if the program must end. A file that cannot be opened
/// leaves everything empty.
bool Programm::LoadElements(Hauptfenster& window)
{
    constexpr int Binaer = static_cast<int>(Zugriff::Binaer);
    m_elementCollection.clear();
    const std::string name = utf8FromPath(dataFile());
    if (!m_fileHandler->OpenFile(name, Binaer))
        return true;
    const auto fill = [&](const std::shared_ptr<clsElement>& element, int position) {
        m_dokument.eingabe.setCurrentElement(element);
        window.addElement(element->symbol(), position);
    };
    try {
        loadElements(m_files, m_fileHandler->FileHandle(), m_boxes, m_elementCollection, fill);
    } catch (const Laufzeitfehler& error) {
        m_boxes.show(Icon::Exclamation, Programmtitel,
            "Fehler beim Einlesen der Datei:\r\n" + name + "\r\n\r\n" + error.what()
                + "\r\nProgramm wird beendet.\r\n\r\n" + std::string(Dateiabhilfe));
        return false;
    }
    m_fileHandler->CloseFile();
    return true;
}

void Programm::restoreElements(Hauptfenster& window)
{
    m_fehlendeElemente.clear();
    for (int row = 0; row < MaxKomponenten; ++row) {
        const std::string value = m_settings.LoadSetting("Element_" + std::to_string(row), window.elementEntry(row));
        const int position = window.findElementEntry(value);
        if (position < 0 && !value.empty())
            m_fehlendeElemente += "\r\nKomponente " + std::to_string(row + 1) + ": " + gekuerzt(value);
        window.ComboElementListIndex(row, position);
    }
}

std::string Programm::dokumenttext() const { return schreibe(m_dokument); }

bool Programm::uebernehmen()
{
    if (!m_dokument.eingabe.istVollstaendig())
        return false;
    uebernehmeWieEingetragen();
    return true;
}

void Programm::uebernehmeWieEingetragen()
{
    zerna::Eingabe& eingabe = m_dokument.eingabe;
    eingabe.writeTo(m_legierung);
    eingabe.elementeSetzen();
    m_komponentenzahl = eingabe.anzahl();
    if (!eingabe.istVollstaendig())
        Calc().setKf_2(Unbekannt); // outlasts an alloy that cannot be computed
    Calc().Legierung_Setzen(m_legierung.komponenten());
    m_gerechnet = eingabe;
}

void Programm::shutdown() noexcept
{
    m_parser.reset();
    m_elementCollection.clear();
    m_dokument.eingabe.setCurrentElement(nullptr);
    m_selectedElement.reset();
    m_calc.reset();
    m_loader.reset();
    m_fileHandler.reset();
}

clsLoader& Programm::Loader() { return existing(m_loader); }

clsCalc& Programm::Calc() { return existing(m_calc); }

clsFileHandler& Programm::FileHandler() { return existing(m_fileHandler); }

clsParser& Programm::Parser() { return existing(m_parser); }

} // namespace zerna
