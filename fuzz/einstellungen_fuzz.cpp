#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Pruefung.h"
#include "bild/Bildvorgabe.h"
#include "core/Plattform.h"
#include "model/eingabe/Komposition.h"
#include "programm/Dokumentverwaltung.h"
#include "support/FakeServices.h"
#include "support/RecordingBoxes.h"
#include "support/TemporaryFolder.h"

using namespace zerna;

namespace {

constexpr std::size_t LongestMessage = 2000;

/// The element lists of a main window.
class Listen : public Hauptfenster {
public:
    void addElement(std::string_view symbol, int) override { m_entries.emplace_back(symbol); }
    std::string elementEntry(int position) const override { return m_entries.at(static_cast<std::size_t>(position)); }
    int findElementEntry(std::string_view text) const override
    {
        const auto found = std::ranges::find(m_entries, text);
        return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
    }
    void ComboElementListIndex(int index, int listIndex) override
    {
        require(index >= 0 && index < MaxKomponenten && listIndex < std::ssize(m_entries));
        if (listIndex >= 0)
            ++restored;
    }
    void selectFirstDiagram() override { }
    void compute() override { isComputed = true; }
    void sperren(std::string_view) override { require(false); }
    void show() override { }

    int restored = 0;
    bool isComputed = false;

private:
    std::vector<std::string> m_entries;
};

/// Lines KEY=VALUE as the program's settings.
void fill(FakeSettings& settings, std::string_view lines)
{
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(std::min(line.size() + 1, lines.size()));
        if (const std::size_t equals = line.find('='); equals != std::string_view::npos)
            settings[std::string(line.substr(0, equals))] = line.substr(equals + 1);
    }
}

/// A picture's settings are within their limits, and remembered as they are.
void checkBildvorgabe(const Settings& settings)
{
    Bildvorgabe vorgabe = gemerkteBildvorgabe(settings);
    for (int i = 0; i < 2; ++i) { // numbers are rounded when they are remembered first
        for (const Bildmass& mass : bildmasse())
            require(vorgabe.*mass.wert >= mass.kleinstes && vorgabe.*mass.wert <= mass.groesstes);
        require(!vorgabe.schrift.empty());
        FakeSettings stored;
        Settings copy(stored, "KoltZerna");
        merkeBildvorgabe(copy, vorgabe);
        const Bildvorgabe again = gemerkteBildvorgabe(Settings(stored, "KoltZerna"));
        require(i == 0 || again == vorgabe);
        vorgabe = again;
    }
}

/// A file that is gone leaves the list, the others stay in it.
void checkZuletzt(Programm& programm, const RecordingBoxes& boxes)
{
    FakeSaveDialog save;
    FakeOpenDialog open;
    Dokumentverwaltung dateien(programm, save, open);
    const std::vector<std::string> before = dateien.zuletzt();
    require(before.size() <= Dokumentverwaltung::MostRecent && std::ranges::count(before, "") == 0);
    const auto gone = std::ranges::find_if(before, [](const std::string& name) { return name.starts_with("/fehlt/"); });
    if (gone == before.end() || pathFromUtf8(*gone).lexically_normal().string() != *gone)
        return;
    require(!dateien.oeffne(pathFromUtf8(*gone)) && !boxes.shown.empty());
    require(boxes.shown.back().text.size() < LongestMessage);
    std::vector<std::string> expected = before;
    std::erase(expected, *gone);
    require(dateien.zuletzt() == expected);
}

} // namespace

/// Starts the program with the bytes as its settings.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryFolder folder;
    static const bool isPrepared = (writeBytes(folder / Programmdatei, ""), true);
    require(isPrepared);
    const std::string bytes(data, data + size);
    FakeSettings settings;
    fill(settings, bytes);
    RecordingBoxes boxes;
    Programm programm(boxes, settings, folder.path());
    Listen window;
    require(programm.start([&]() -> Hauptfenster& { return window; }));
    require(window.isComputed && boxes.shown.size() <= 1 && (window.restored < MaxKomponenten) == !boxes.shown.empty());
    const int count =
        naechsteKomponentenzahl(gespeicherteKomponentenzahl(programm.settings().LoadSetting("Komponenten", "2")), 1);
    require(count >= 1 && count <= MaxKomponenten);
    checkBildvorgabe(programm.settings());
    checkZuletzt(programm, boxes);
    programm.shutdown();
    return 0;
}
