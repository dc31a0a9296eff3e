#include "programm/Sicherung.h"

#include <exception>
#include <system_error>
#include <utility>

#include "core/Datei.h"
#include "core/Exportdatei.h"
#include "core/Plattformdatei.h"

namespace zerna {

namespace {

constexpr int Plaetze = 100;

std::optional<std::string> inhalt(const std::filesystem::path& datei)
{
    try {
        return readFile(datei);
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

} // namespace

Sicherung::Sicherung(std::filesystem::path ordner)
    : m_ordner(std::move(ordner))
{
    std::error_code shownByWriting;
    std::filesystem::create_directories(m_ordner, shownByWriting);
    for (int nummer = 0; nummer < Plaetze && m_nummer < 0; ++nummer) {
        if (!std::filesystem::exists(datei(nummer), shownByWriting) || !belege(nummer))
            continue;
        m_hinterlassen = inhalt(datei(nummer));
        if (!m_hinterlassen) // nobody can read it now, so nothing is written over it
            gibFrei();
    }
    if (m_nummer < 0)
        belegeLeeren();
    m_schreiber = std::thread([this] { arbeite(); });
}

Sicherung::~Sicherung()
{
    warte();
    {
        const std::lock_guard lock(m_mutex);
        m_endet = true;
    }
    m_geweckt.notify_one();
    m_schreiber.join();
    std::error_code noneIsFine;
    if (m_nummer >= 0)
        std::filesystem::remove(datei(m_nummer), noneIsFine);
    gibFrei();
}

void Sicherung::verwerfe()
{
    std::error_code noneIsFine;
    m_hinterlassen.reset();
    if (m_nummer >= 0)
        std::filesystem::remove(datei(m_nummer), noneIsFine);
}

void Sicherung::lasseLiegen()
{
    warte();
    gibFrei();
    m_hinterlassen.reset();
    belegeLeeren();
}

void Sicherung::schreibe(std::function<std::string()> bytes)
{
    {
        const std::lock_guard lock(m_mutex);
        m_auftrag = std::move(bytes);
    }
    m_geweckt.notify_one();
}

std::optional<Laufzeitfehler> Sicherung::nimmFehler()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_fehler, std::nullopt);
}

void Sicherung::warte()
{
    std::unique_lock lock(m_mutex);
    m_fertig.wait(lock, [this] { return !m_auftrag && !m_schreibt; });
}

/// Ends by a word of its own: on Windows GCC 12 may wait for ever for a std::stop_token.
void Sicherung::arbeite()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_geweckt.wait(lock, [this] { return m_endet || m_auftrag != nullptr; });
        if (m_auftrag == nullptr)
            return;
        const auto bytes = std::exchange(m_auftrag, nullptr);
        m_schreibt = true;
        lock.unlock();
        std::optional<Laufzeitfehler> fehler;
        try {
            if (m_nummer < 0)
                throw Laufzeitfehler(Fehler::ZugriffVerweigert);
            writeExport(datei(m_nummer), bytes());
        } catch (const Laufzeitfehler& error) {
            fehler = error;
        } catch (const std::exception&) { // memory, say: nobody else could catch it in this thread
            fehler = Laufzeitfehler(Fehler::ZugriffVerweigert);
        }
        lock.lock();
        m_schreibt = false;
        m_fehler = std::move(fehler);
        m_fertig.notify_all();
    }
}

/// False if the place has a living owner, or cannot be marked.
bool Sicherung::belege(int nummer)
{
    removeLeftover(marke(nummer));
    m_marke = createFile(marke(nummer), true);
    if (m_marke != nullptr)
        m_nummer = nummer;
    return m_marke != nullptr;
}

void Sicherung::belegeLeeren()
{
    std::error_code unknown;
    for (int nummer = 0; nummer < Plaetze && m_nummer < 0; ++nummer) {
        if (!std::filesystem::exists(datei(nummer), unknown))
            belege(nummer);
    }
}

void Sicherung::gibFrei()
{
    if (m_marke != nullptr)
        discard(marke(m_nummer), std::exchange(m_marke, nullptr));
    m_nummer = -1;
}

std::filesystem::path Sicherung::datei(int nummer) const
{
    return m_ordner / ("sitzung-" + std::to_string(nummer) + ".zerna");
}

std::filesystem::path Sicherung::marke(int nummer) const
{
    return m_ordner / ("sitzung-" + std::to_string(nummer) + ".offen");
}

} // namespace zerna
