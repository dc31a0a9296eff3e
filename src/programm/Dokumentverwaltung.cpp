#include "programm/Dokumentverwaltung.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

#include "core/Datei.h"
#include "core/Exportdatei.h"
#include "core/Kuerzung.h"
#include "programm/Exportieren.h"

namespace zerna {

namespace {

constexpr std::string_view Endung = ".zerna";

std::string zitierterName(const std::filesystem::path& file) { return zitierteDatei(utf8FromPath(file.filename())); }

/// The message about values that the table gives otherwise, some of them by name.
std::string unterschiedsfrage(const std::filesystem::path& file, const Lesung& lesung)
{
    constexpr std::size_t Named = 12;
    std::string text = "In der Datei " + zitierterName(file) + " stehen andere Werte als in der Elementtabelle:\r\n";
    const std::size_t count = lesung.unterschiede.size();
    for (std::size_t i = 0; i < std::min(count, Named); ++i)
        text += "\r\n" + unterschiedstext(lesung.unterschiede[i], *lesung.dokument);
    if (count > Named)
        text += "\r\nund " + std::to_string(count - Named) + " weitere";
    return text + "\r\n\r\nMit welchen soll gerechnet werden?";
}

std::string einstellung(int i) { return "Datei_" + std::to_string(i); }

} // namespace

bool Dokumentverwaltung::neu()
{
    if (!darfErsetzen())
        return false;
    const Eingabe& now = m_programm.Eingabe();
    Dokument dokument(m_programm.ElementCollection());
    dokument.eingabe.setAnzahl(now.anzahl());
    for (int i = 0; i < MaxKomponenten; ++i) {
        if (now.zeile(i).element)
            dokument.eingabe.waehleElement(i, now.zeile(i).element->symbol());
    }
    m_programm.Dokument() = std::move(dokument);
    m_datei.clear();
    m_gespeichert.reset();
    m_nurLesen = false;
    beginne();
    return true;
}

bool Dokumentverwaltung::oeffne()
{
    if (!darfErsetzen())
        return false;
    const auto file = m_open.choose(Dateiwahl::Legierung);
    return file && lade(pathFromUtf8(*file));
}

bool Dokumentverwaltung::oeffne(const std::filesystem::path& file) { return darfErsetzen() && lade(file); }

void Dokumentverwaltung::setzeFort(const OffeneDatei& datei)
{
    const std::filesystem::path file = pathFromUtf8(datei.name);
    Dokumentoeffnung oeffnung = oeffneDokument(file, m_programm.ElementCollection());
    Lesung& lesung = oeffnung.lesung;
    const bool isRead = lesung.dokument.has_value();
    if (isRead)
        behalteDateiwerte(*lesung.dokument, lesung.unterschiede, m_programm.ElementCollection());
    nimmAn(file, isRead ? *std::move(lesung.dokument) : Dokument(m_programm.ElementCollection()));
    m_stand = std::filesystem::file_time_type(std::filesystem::file_time_type::duration(datei.stand));
    m_nurLesen = !isRead || oeffnung.istBild || !lesung.nurLesen.empty();
}

bool Dokumentverwaltung::lade(const std::filesystem::path& file)
{
    std::error_code unknown;
    const std::filesystem::path whole = std::filesystem::absolute(file, unknown).lexically_normal();
    Dokumentoeffnung oeffnung = oeffneDokument(whole, m_programm.ElementCollection());
    Lesung& lesung = oeffnung.lesung;
    if (!lesung.dokument) {
        const bool isForgotten = !std::filesystem::exists(whole, unknown) && merke(whole, false);
        m_programm.boxes().show(Icon::Exclamation, Programmtitel,
            "Die Datei " + zitierterName(whole) + " konnte nicht geöffnet werden:\r\n" + oeffnung.grund
                + (isForgotten ? "\r\nSie steht nicht mehr in der Liste der zuletzt geöffneten." : ""));
        return false;
    }
    Dokument gespeichert = *lesung.dokument;
    if (!lesung.unterschiede.empty() && !entscheide(whole, lesung, gespeichert))
        return false;
    if (!lesung.nurLesen.empty())
        m_programm.boxes().show(Icon::Exclamation, Programmtitel,
            "Die Datei " + zitierterName(whole) + " wird nur zum Lesen geöffnet. " + lesung.nurLesen
                + "\r\nSpeichern fragt nach einem neuen Namen.");
    m_programm.Dokument() = *std::move(lesung.dokument);
    nimmAn(whole, std::move(gespeichert));
    m_nurLesen = oeffnung.istBild || !lesung.nurLesen.empty();
    return true;
}

/// Lets the user say which values are to count; kept ones are no change of the file.
bool Dokumentverwaltung::entscheide(const std::filesystem::path& file, Lesung& lesung, Dokument& gespeichert)
{
    const auto& elements = m_programm.ElementCollection();
    const std::size_t answer = m_programm.boxes().choose(Programmtitel, unterschiedsfrage(file, lesung),
        std::array<std::string_view, 3>{"Werte der &Datei behalten", "Werte dieser &Tabelle übernehmen", "&Abbrechen"});
    if (answer == 0) {
        behalteDateiwerte(*lesung.dokument, lesung.unterschiede, elements);
        gespeichert = *lesung.dokument;
    } else if (answer == 1) {
        uebernehmeTabelle(*lesung.dokument, lesung.unterschiede, elements);
    }
    return answer < 2;
}

bool Dokumentverwaltung::speichere()
{
    if (m_datei.empty() || m_nurLesen)
        return speichereUnter();
    if (istUeberholt()
        && !m_programm.boxes().ask(Programmtitel,
            "Die Datei " + zitierterName(m_datei)
                + " hat inzwischen ein anderes Programm geändert.\r\nSoll sie überschrieben werden?",
            "&Überschreiben"))
        return false;
    try {
        writeExport(m_datei, schreibe(m_programm.Dokument()));
    } catch (const Laufzeitfehler& error) {
        zeigeSpeicherfehler(m_programm.boxes(), utf8FromPath(m_datei.filename()), error.what());
        return speichereUnter();
    }
    nimmAn(m_datei, m_programm.Dokument());
    m_save.gespeichert(utf8FromPath(m_datei.filename()));
    return true;
}

bool Dokumentverwaltung::speichereUnter()
{
    const std::array arten{Exportart{"Zerna-Legierung (*.zerna)", "*.zerna", Endung,
        [this] { return std::optional(schreibe(m_programm.Dokument())); }}};
    std::optional<SaveFileDialog::Choice> suggested;
    if (!m_datei.empty())
        suggested = {utf8FromPath(vorschlag()), 1};
    const auto file = speichereAls(m_programm.boxes(), m_save, "Legierung speichern unter", arten, suggested);
    if (!file)
        return false;
    nimmAn(*file, m_programm.Dokument());
    m_nurLesen = false;
    return true;
}

/// The name to save under: never that of a file that must not be written over.
std::filesystem::path Dokumentverwaltung::vorschlag() const
{
    std::filesystem::path name = m_datei;
    name.replace_extension(Endung);
    if (m_nurLesen && name == m_datei)
        name.replace_filename(pathFromUtf8(utf8FromPath(name.stem()) + " (Kopie)" + std::string(Endung)));
    return name;
}

bool Dokumentverwaltung::darfSchliessen()
{
    if (!darfGehen())
        return false;
    if (istGeaendert())
        m_programm.Dokument() = *m_gespeichert;
    return true;
}

bool Dokumentverwaltung::darfGehen()
{
    return !istGeaendert()
        || frage(
            "Die Legierung " + zitierterName(m_datei) + " ist geändert. Sollen die Änderungen gespeichert werden?");
}

/// The same for a document that no file has yet: replacing it takes its undo steps and kept alloys along.
bool Dokumentverwaltung::darfErsetzen()
{
    if (!m_datei.empty())
        return darfGehen();
    return !m_anfang || *m_anfang == m_programm.Dokument()
        || frage("Die jetzige Legierung steht in keiner Datei. Soll sie gespeichert werden?");
}

bool Dokumentverwaltung::frage(const std::string& satz)
{
    const std::size_t answer = m_programm.boxes().choose(
        Programmtitel, satz, std::array<std::string_view, 3>{"&Speichern", "&Verwerfen", "&Abbrechen"});
    return answer == 1 || (answer == 0 && speichere());
}

/// Whether the file is another one than the document was read from.
bool Dokumentverwaltung::istUeberholt() const
{
    std::error_code gone;
    const auto now = std::filesystem::last_write_time(m_datei, gone);
    return !gone && now != m_stand;
}

/// From now on the document belongs to that file.
void Dokumentverwaltung::nimmAn(const std::filesystem::path& file, Dokument gespeichert)
{
    std::error_code unknown;
    m_datei = file;
    m_gespeichert = std::move(gespeichert);
    m_stand = std::filesystem::last_write_time(file, unknown);
    merke(file, true);
}

std::vector<std::string> Dokumentverwaltung::zuletzt() const
{
    std::vector<std::string> files;
    for (int i = 0; i < MostRecent; ++i) {
        if (std::string file = m_programm.settings().LoadSetting(einstellung(i), ""); !file.empty())
            files.push_back(std::move(file));
    }
    return files;
}

/// Puts a file at the head of those opened last, or drops it; whether it was one of them.
bool Dokumentverwaltung::merke(const std::filesystem::path& file, bool dabei)
{
    const std::string name = utf8FromPath(file);
    std::vector<std::string> files = zuletzt();
    const bool wasThere = std::erase(files, name) > 0;
    if (dabei)
        files.insert(files.begin(), name);
    files.resize(MostRecent);
    for (int i = 0; i < MostRecent; ++i)
        m_programm.settings().SaveSetting(einstellung(i), files[static_cast<std::size_t>(i)]);
    return wasThere;
}

} // namespace zerna
