#include "ui/main/Sitzung.h"

#include <array>
#include <charconv>
#include <utility>

#include "core/Datei.h"
#include "core/Exportdatei.h"
#include "dokument/Dokumentdatei.h"

namespace zerna {

namespace {

constexpr int Pruefung = 3; // times as long as an edit waits: it should be written then
constexpr const char* Schluessel = "LegierungWiederherstellen";
constexpr char Trenner = '\0'; // behind the name of the file, which cannot hold it, and behind its time

/// What differs from the table, which the document keeps as typed values.
std::string abweichungen(const Lesung& lesung)
{
    std::string text = lesung.nurLesen;
    if (!lesung.unterschiede.empty())
        text += (text.empty() ? "" : "\r\n\r\n")
            + std::string(
                "Diese Werte sind in der Elementtabelle inzwischen andere und wurden als getippte behalten:\r\n");
    for (const Tabellenunterschied& unterschied : lesung.unterschiede)
        text += "\r\n" + unterschiedstext(unterschied, *lesung.dokument);
    return text;
}

} // namespace

Sitzung::Sitzung(Programm& programm, std::filesystem::path ordner, std::function<OffeneDatei()> datei,
    std::chrono::milliseconds bald)
    : m_programm(programm)
    , m_ordner(std::move(ordner))
    , m_datei(std::move(datei))
    , m_sicherung(m_ordner)
{
    m_bald.setSingleShot(true);
    m_bald.setInterval(bald);
    connect(&m_bald, &QTimer::timeout, this, &Sitzung::sichere);
}

void Sitzung::geaendert()
{
    if (!m_bald.isActive()) // while one goes on typing, the first edit does not wait for the last
        m_bald.start();
}

/// Makes the text, in any thread.
std::function<std::string()> Sitzung::text() const
{
    const OffeneDatei datei = m_datei();
    return [kopf = datei.name + Trenner + std::to_string(datei.stand) + Trenner,
               dokument = schreibeSpaeter(m_programm.Dokument())] { return kopf + dokument(); };
}

void Sitzung::sichere()
{
    m_sicherung.schreibe(text());
    QTimer::singleShot(Pruefung * m_bald.intervalAsDuration(), this, &Sitzung::pruefe);
}

/// Says once in a run that nothing is kept.
void Sitzung::pruefe()
{
    const auto fehler = m_sicherung.nimmFehler();
    if (!fehler || std::exchange(m_hatGewarnt, true))
        return;
    m_programm.boxes().show(Icon::Exclamation, Programmtitel,
        "Die laufende Arbeit lässt sich nicht sichern: " + std::string(fehler->what())
            + ".\r\n\r\nOrdner: " + utf8FromPath(m_ordner)
            + "\r\n\r\nNach einem Absturz wäre sie verloren. Bitte die Legierung als Datei speichern.");
}

std::optional<Sitzung::Stand> Sitzung::beginn()
{
    if (m_sicherung.hinterlassen())
        return nachAbbruch();
    return stelltWiederHer(m_programm.settings()) ? letzterStand() : std::nullopt;
}

std::optional<Sitzung::Stand> Sitzung::nachAbbruch()
{
    auto stand = gelesen(*m_sicherung.hinterlassen());
    if (!stand) { // of a newer program perhaps
        m_sicherung.lasseLiegen();
        return std::nullopt;
    }
    if (istGespeichert(*stand)) {
        m_sicherung.verwerfe();
        return std::nullopt;
    }
    const std::string datei = stand->datei.name.empty() ? std::string() : "\r\n\r\nGeöffnet war: " + stand->datei.name;
    const std::size_t answer = m_programm.boxes().choose(Programmtitel,
        "Zerna ist das letzte Mal nicht ordentlich beendet worden. Soll die Legierung von damals wiederhergestellt "
        "werden?"
            + datei,
        std::array<std::string_view, 3>{"&Wiederherstellen", "&Verwerfen", "&Später fragen"});
    if (answer == 1)
        m_sicherung.verwerfe();
    else if (answer == 2)
        m_sicherung.lasseLiegen();
    return answer == 0 ? stand : std::nullopt;
}

/// Whether its file holds it all.
bool Sitzung::istGespeichert(const Stand& stand) const
{
    if (stand.datei.name.empty())
        return false;
    const Dokumentoeffnung file = oeffneDokument(pathFromUtf8(stand.datei.name), m_programm.ElementCollection());
    return file.lesung.dokument && *file.lesung.dokument == stand.dokument;
}

std::optional<Sitzung::Stand> Sitzung::letzterStand() const
{
    try {
        return gelesen(readFile(letzte()));
    } catch (const Laufzeitfehler&) { // there is none yet, or it is gone
        return std::nullopt;
    }
}

std::optional<Sitzung::Stand> Sitzung::gelesen(const std::string& text) const
{
    const std::size_t name = text.find(Trenner);
    const std::size_t time = name == std::string::npos ? name : text.find(Trenner, name + 1);
    if (time == std::string::npos)
        return std::nullopt;
    Lesung lesung = lies(std::string_view(text).substr(time + 1), m_programm.ElementCollection());
    if (!lesung.dokument)
        return std::nullopt;
    OffeneDatei datei{text.substr(0, name)};
    std::from_chars(text.data() + name + 1, text.data() + time, datei.stand);
    std::string hinweis = abweichungen(lesung);
    behalteDateiwerte(*lesung.dokument, lesung.unterschiede, m_programm.ElementCollection());
    return Stand{*std::move(lesung.dokument), std::move(datei), std::move(hinweis)};
}

void Sitzung::ende()
{
    m_bald.stop();
    if (!stelltWiederHer(m_programm.settings()))
        return;
    try {
        writeExport(letzte(), text()());
    } catch (const Laufzeitfehler& error) {
        m_programm.boxes().show(Icon::Exclamation, Programmtitel,
            "Der nächste Start kann die Legierung nicht wiederherstellen: " + std::string(error.what()) + ".\r\n\r\n"
                + utf8FromPath(letzte()));
    }
}

bool Sitzung::stelltWiederHer(const Settings& settings) { return settings.istAn(Schluessel); }

void Sitzung::setWiederherstellen(Settings& settings, bool yes) { settings.setAn(Schluessel, yes); }

} // namespace zerna
