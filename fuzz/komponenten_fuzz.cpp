#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Pruefung.h"
#include "core/Unbekannt.h"
#include "model/rechnung/Groessen.h"
#include "programm/Stapelrechner.h"
#include "support/RecordingBoxes.h"

using namespace zerna;

namespace {

/// The words of a call, in which a component holds neither blanks nor zero bytes.
std::vector<std::string> wordsOf(std::string_view line)
{
    std::vector<std::string> words(1);
    for (const char c : line) {
        if (c != ' ' && c != '\t')
            words.back() += c;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

/// What is taken apart can be put together and is taken apart in the same way.
void readBack(const Komponentenangabe& angabe)
{
    std::string text = angabe.symbol + "=" + angabe.prozent;
    text += angabe.dichte.empty() ? "" : ":dichte=" + angabe.dichte;
    text += angabe.valenz.empty() ? "" : ":valenz=" + angabe.valenz;
    Komponentenangabe again;
    require(liesAngabe(text, again).empty() && again.text == text);
    require(again.symbol == angabe.symbol && again.prozent == angabe.prozent);
    require(again.dichte == angabe.dichte && again.valenz == angabe.valenz);
}

/// Why the command for one alloy does not compute these components; empty if it does.
std::string grundAllein(Rechenkern& kern, const std::vector<std::string>& words, Anteilseinheit einheit)
{
    try {
        std::vector<Komponentenangabe> angaben;
        for (const std::string& word : words)
            angaben.push_back(komponentenangabe(word, einheit));
        kern.setAlloy(angaben, einheit);
        return {};
    } catch (const Aufruffehler& error) {
        return error.what();
    } catch (const Datenfehler& error) {
        return error.what();
    }
}

/// Both commands say the same about a line: the same reason, or the same quantities.
void compare(Anteilseinheit einheit, const std::string& line, const std::vector<std::string>& words)
{
    static RecordingBoxes boxes;
    static Rechenkern allein{boxes};
    static Rechenkern kern{boxes};
    static const bool loaded = (allein.loadBuiltIn(), kern.loadBuiltIn(), true);
    require(loaded);
    boxes.shown.clear();
    Stapelrechner liste(kern, einheit);
    const bool isComputed = liste.rechne(line);
    require(isComputed == liste.grund().empty());
    if (!line.empty() && line.find('=') == std::string::npos)
        return; // a formula
    const std::string grund = grundAllein(allein, words, einheit);
    require(isComputed == grund.empty());
    if (words.size() == 1) // of several faults each names another one first
        require(grund == liste.grund());
    if (!isComputed)
        return;
    for (const Groesse& groesse : ergebniszeilen())
        require(wert(groesse, allein.calc()) == wert(groesse, liste.calc()));
    require(liste.hinweis().find('\n') == std::string::npos);
}

} // namespace

/// Takes the bytes for the components of an alloy as a call of the command line, or a line of a list, gives them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string line(data, data + size);
    if (line.find_first_of(std::string_view("\0\r\n", 3)) != std::string::npos)
        return -1;
    const std::vector<std::string> words = wordsOf(line);
    for (const std::string& word : words) {
        Komponentenangabe angabe;
        if (liesAngabe(word, angabe).empty())
            readBack(angabe);
    }
    compare(Anteilseinheit::Atom, line, words);
    compare(Anteilseinheit::Masse, line, words);
    return 0;
}
