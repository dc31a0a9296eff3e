#include "cli/Stapel.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <iostream>
#include <utility>

#include "cli/Umgebung.h"
#include "core/Datei.h"
#include "core/Kuerzung.h"
#include "core/Namensnaehe.h"
#include "core/Plattformdatei.h"
#include "core/Textbytes.h"
#include "core/Zahlentext.h"
#include "core/Zeilenleser.h"
#include "model/rechnung/Groessenauswahl.h"
#include "model/rechnung/Groessennamen.h"
#include "model/rechnung/Legierungsliste.h"
#include "programm/Dokumentoeffnung.h"
#include "programm/Stapelrechner.h"

namespace zerna {

namespace {

constexpr std::string_view Standardeingabe = "-";

/// A file or standard input.
class Eingabestrom {
public:
    explicit Eingabestrom(const std::string& datei)
        : m_file(datei == Standardeingabe ? stdin : openStream(pathFromUtf8(datei)))
    {
        if (m_file == nullptr)
            throw Laufzeitfehler(systemfehler(errno));
    }

    Eingabestrom(const Eingabestrom&) = delete;
    Eingabestrom& operator=(const Eingabestrom&) = delete;

    ~Eingabestrom()
    {
        if (m_file != stdin)
            std::fclose(m_file);
    }

    std::size_t read(std::span<char> bytes) const
    {
        const std::ptrdiff_t count = readSome(m_file, bytes);
        if (count < 0)
            throw Laufzeitfehler(systemfehler(errno));
        return static_cast<std::size_t>(count);
    }

private:
    std::FILE* m_file;
};

/// Goes through lists of alloys. Lines are collected and leave before the program waits for input, so that who types
/// sees the answer at once.
class Stapellauf {
public:
    Stapellauf(Rechenkern& kern, Anteilseinheit einheit, Legierungsliste liste, bool mehrereDateien)
        : m_rechner(kern, einheit)
        , m_liste(std::move(liste))
        , m_nameFiles(mehrereDateien)
        , m_output(m_liste.kopf())
    {
    }

    /// Until its end, or until nobody takes the output any more.
    void read(const std::string& datei)
    {
        const std::string name = datei == Standardeingabe ? "Standardeingabe" : "Datei " + zitierteDatei(datei);
        m_place = m_nameFiles ? name + ", " : std::string();
        std::string grund(istDokumentname(datei) ? SchonEine : "");
        try {
            if (grund.empty())
                grund = readLines(datei);
        } catch (const Laufzeitfehler& error) {
            grund = error.what();
        }
        if (!grund.empty()) {
            say(name + ": " + grund);
            ++m_failures;
        }
        writeOut();
    }

    int failures() const { return m_failures; }

private:
    static constexpr const char* SchonEine = "ist schon eine Legierung; ohne --stapel nennen";

    /// Why it is no list, which its first line tells: each line of a picture would be wrong by itself.
    std::string readLines(const std::string& datei)
    {
        const Eingabestrom strom(datei);
        Zeilenleser zeilen([&](std::span<char> bytes) {
            writeOut();
            return std::cout ? strom.read(bytes) : 0;
        });
        while (const auto zeile = zeilen.next()) {
            if (std::string grund = zeilen.nummer() == 1 ? otherThanList(*zeile) : ""; !grund.empty())
                return grund;
            take(trimmedLine(*zeile), zeilen);
        }
        return {};
    }

    static std::string otherThanList(std::string_view firstLine)
    {
        if (istUtf16(firstLine))
            return "Text in UTF-16; erwartet wird UTF-8";
        constexpr std::array<std::string_view, 5> Pictures{"\x89PNG", "%PDF-", "<?xml", "<svg", "\x1F\x8B"};
        if (std::ranges::any_of(Pictures, [&](std::string_view begin) { return firstLine.starts_with(begin); }))
            return "ist ein Bild und keine Liste; trägt es eine Legierung, es ohne --stapel nennen";
        return firstLine.starts_with('{') ? SchonEine : "";
    }

    static std::string_view trimmedLine(std::string_view zeile)
    {
        constexpr std::string_view Blanks = " \t";
        const std::size_t begin = std::min(zeile.find_first_not_of(Blanks), zeile.size());
        return zeile.substr(begin, zeile.find_last_not_of(Blanks) + 1 - begin);
    }

    void take(std::string_view legierung, const Zeilenleser& zeilen)
    {
        if (zeilen.zuLang())
            return fail(zeilen, "länger als " + std::to_string(Zeilenleser::LaengsteZeile) + " Zeichen");
        if (legierung.empty() || legierung.front() == '#')
            return;
        if (legierung.find('\0') != std::string_view::npos)
            return fail(zeilen, "Nullbytes; erwartet wird Text in UTF-8");
        if (!m_rechner.rechne(legierung))
            return fail(zeilen, m_rechner.grund());
        m_liste.append(m_output, legierung, m_rechner.calc());
        if (const std::string hinweis = m_rechner.hinweis(); !hinweis.empty())
            sayOf(zeilen, hinweis);
        if (m_output.size() >= Blockgroesse)
            writeOut();
    }

    void fail(const Zeilenleser& zeilen, const std::string& grund)
    {
        sayOf(zeilen, grund);
        ++m_failures;
    }

    void sayOf(const Zeilenleser& zeilen, const std::string& grund)
    {
        say(m_place + "Zeile " + std::to_string(zeilen.nummer()) + ": " + grund);
    }

    /// Behind the lines that come before it, and at once, so that the messages of several runs do not mix.
    void say(const std::string& text)
    {
        writeOut();
        std::string line = meldungszeile(text);
        std::ranges::replace_if(
            line, [](char c) { return static_cast<unsigned char>(c) < ' '; }, '?');
        std::cerr << line + '\n';
    }

    void writeOut()
    {
        std::cout.write(m_output.data(), static_cast<std::streamsize>(m_output.size())).flush();
        m_output.clear();
    }

    static constexpr std::size_t Blockgroesse = 65536;

    Stapelrechner m_rechner;
    Legierungsliste m_liste;
    bool m_nameFiles;
    std::string m_place; // of the file, in front of a line's number
    std::string m_output;
    int m_failures = 0;
};

} // namespace

void Stapel::define(CLI::App& befehl)
{
    befehl.add_flag("--stapel", gewaehlt,
        "Statt einer Legierung Dateien nennen, die eine je Zeile enthalten (- oder keine: Standardeingabe)");
    befehl.add_option("--groessen", groessen, "Mit --stapel: Kennzahlen oder Namen, durch Komma getrennt, statt aller")
        ->option_text("LISTE");
    befehl.add_flag("--jsonzeilen", jsonzeilen, "Mit --stapel: ein JSON-Objekt je Zeile");
}

void Stapel::run(Umgebung& umgebung, std::span<const std::string> dateien, Anteilseinheit einheit) const
{
    const Groessenauswahl auswahl = groessenauswahl(groessen);
    if (!auswahl.unbekannt.empty())
        throw Aufruffehler("--groessen " + gekuerzt(auswahl.unbekannt) + ": erwartet werden Kennzahlen ("
            + reihenkennzahlen() + ") oder Namen von Größen, durch Komma getrennt"
            + satzende(vorschlag(auswahl.unbekannt, eingabenamen(Groessenart::Ergebnis))));
    const auto form = jsonzeilen ? Legierungsliste::Form::Json : Legierungsliste::Form::Text;
    umgebung.load();
    Stapellauf lauf(umgebung.kern(), einheit, Legierungsliste(auswahl.groessen, form), dateien.size() > 1);
    const std::string standardeingabe(Standardeingabe);
    for (const std::string& datei : dateien.empty() ? std::span(&standardeingabe, 1) : dateien)
        lauf.read(datei);
    if (lauf.failures() > 0 && std::cout)
        throw Datenfehler(std::to_string(lauf.failures()) + " Fehler");
}

void Stapel::requireUnused() const
{
    if (!groessen.empty() || jsonzeilen)
        throw Aufruffehler(std::string(jsonzeilen ? "--jsonzeilen" : "--groessen") + " gibt es nur mit --stapel");
}

} // namespace zerna
