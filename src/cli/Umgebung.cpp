#include "cli/Umgebung.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <vector>

#include "cli/Argumente.h"
#include "core/Elementdatei.h"
#include "core/Exportdatei.h"
#include "core/Kuerzung.h"
#include "core/Plattform.h"
#include "core/Zahlentext.h"
#include "core/Zeichensatz.h"
#include "model/eingabe/Legierungsformel.h"
#include "model/rechnung/Ergebnislage.h"
#include "programm/Dokumentoeffnung.h"

namespace zerna {

namespace {

/// Runs what is done with a file; a run-time error becomes one that names it.
template <class Action>
auto withFile(const std::string& file, Action&& action)
{
    try {
        return action(pathFromUtf8(file));
    } catch (const Laufzeitfehler& error) {
        throw Datenfehler("Datei " + zitierteDatei(file) + ": " + error.what());
    }
}

} // namespace

std::string meldungszeile(const std::string& text)
{
    const bool isOneSentence = text.ends_with('.') && text.find(". ") == std::string::npos;
    return gekuerzt(isOneSentence ? text.substr(0, text.size() - 1) : text, LaengsteMeldung);
}

void melde(const std::string& text) { std::cerr << "zerna-cli: " << meldungszeile(text) << '\n'; }

void StandardErrorBoxes::show(Icon, std::string_view, std::string_view text)
{
    std::cerr << gekuerzt(ReplaceText(text, "\r\n", " "), LaengsteMeldung) << '\n';
}

void Umgebung::load()
{
    const std::filesystem::path beside = executableFolder() / Elementdateiname;
    std::error_code unknown; // a name that leads nowhere or cannot be looked at is reported when it is opened
    const auto kind = std::filesystem::symlink_status(beside, unknown).type();
    if (!daten.empty())
        m_kern.loadFile(pathFromUtf8(daten));
    else if (kind != std::filesystem::file_type::not_found)
        m_kern.loadFile(beside);
    else {
        m_kern.loadBuiltIn();
        melde("Die Datei " + zitierteDatei(utf8FromPath(beside))
            + " fehlt; es gelten nur die sechs eingebauten Elemente H bis C. Abhilfe: Zerna neu installieren, eine "
              "Elementdatei dieses Namens in den Ordner legen oder mit --daten nennen.");
    }
}

void Umgebung::readAlloy(const Komponenten& komponenten)
{
    const std::vector<std::string>& texte = komponenten.texte;
    const auto hasPart = [](const std::string& text) { return text.find('=') != std::string::npos; };
    if (const auto file = std::ranges::find_if(texte, istDokumentname); file != texte.end()) {
        if (texte.size() > 1)
            throw Aufruffehler("Die Datei " + zitierteDatei(*file) + " ist schon die ganze Legierung");
        if (komponenten.massenprozent)
            throw Aufruffehler("--massenprozent gibt es nicht mit einer Datei, in der steht, was eingetragen ist");
        loadDocument(*file);
    } else if (std::ranges::any_of(texte, hasPart)) {
        loadComponents(komponenten);
    } else {
        loadFormel(komponenten);
    }
}

void Umgebung::nenneBefund()
{
    const Ergebnislage lage = ergebnislage(m_kern.eingabe(), m_kern.eingabe(), m_kern.calc());
    if (lage.befund)
        melde(befundgrund(m_kern.eingabe(), *lage.befund));
}

void Umgebung::loadAlloy(const Komponenten& komponenten)
{
    readAlloy(komponenten);
    nenneBefund();
}

void Umgebung::loadComponents(const Komponenten& komponenten)
{
    std::vector<Komponentenangabe> angaben;
    for (const std::string& text : komponenten.texte)
        angaben.push_back(komponentenangabe(text, komponenten.einheit()));
    load();
    m_kern.setAlloy(angaben, komponenten.einheit());
    if (!m_kern.hinweis().empty())
        melde(m_kern.hinweis());
}

void Umgebung::loadFormel(const Komponenten& worte)
{
    std::string text;
    for (const std::string& wort : worte.texte)
        text += (text.empty() ? "" : " ") + wort;
    load();
    const auto [formel, fehler] = legierungsformel(text, m_kern.elements(), worte.einheit());
    if (fehler)
        throw Aufruffehler(formelgrund(text, *fehler));
    m_kern.setAlloy(angabenAus(formel), formel.einheit());
    if (formel.istUmgerechnet())
        melde(std::string(UmgerechnetHinweis));
}

/// Values that the table gives otherwise stay those of the file, which is said.
void Umgebung::loadDocument(const std::string& file)
{
    const std::string name = "Datei " + zitierteDatei(file) + ": ";
    load();
    Dokumentoeffnung oeffnung = oeffneDokument(pathFromUtf8(file), m_kern.elements());
    Lesung& lesung = oeffnung.lesung;
    if (!lesung.dokument)
        throw Datenfehler(name + oeffnung.grund);
    if (!lesung.nurLesen.empty())
        melde(name + lesung.nurLesen);
    for (const Tabellenunterschied& unterschied : lesung.unterschiede) {
        if (!unterschied.variante)
            melde(name + unterschiedstext(unterschied, *lesung.dokument));
    }
    behalteDateiwerte(*lesung.dokument, lesung.unterschiede, m_kern.elements());
    try {
        m_dokument = std::move(lesung.dokument);
        m_kern.setAlloy(m_dokument->eingabe);
    } catch (const Datenfehler& error) {
        throw Datenfehler(name + error.what());
    }
}

bool Umgebung::nennt(std::string_view argument) const { return std::ranges::find(aufruf, argument) != aufruf.end(); }

void put(const std::string& text, const std::string& file)
{
    if (file.empty())
        std::cout << ReplaceText(text, "\r\n", "\n");
    else
        writeFile(file, toWindows1252(text));
}

void writeFile(const std::string& file, std::string_view bytes)
{
    withFile(file, [&](const std::filesystem::path& path) { writeExport(path, bytes); });
}

std::string readFile(const std::string& file)
{
    return withFile(file, [](const std::filesystem::path& path) { return readFile(path); });
}

} // namespace zerna
