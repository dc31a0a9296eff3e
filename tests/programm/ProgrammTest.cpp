#include "programm/Programm.h"

#include <algorithm>

#include "core/Plattform.h"
#include "core/Zahlentext.h"
#include "programm/EingebauteTabelle.h"
#include "support/FakeServices.h"
#include "support/FilesTest.h"
#include "support/Geraet.h"

namespace zerna {

namespace {

/// Remembers what start-up puts in.
class FakeHauptfenster : public Hauptfenster {
public:
    explicit FakeHauptfenster(const Programm& programm)
        : m_programm(programm)
    {
    }

    void addElement(std::string_view symbol, int itemData) override
    {
        entries.emplace_back(symbol);
        EXPECT_EQ(itemData, std::ssize(entries));
    }
    std::string elementEntry(int position) const override { return entries.at(static_cast<std::size_t>(position)); }
    int findElementEntry(std::string_view text) const override
    {
        const auto found = std::ranges::find(entries, text);
        return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
    }
    void ComboElementListIndex(int index, int listIndex) override { log("row", index, listIndex); }
    void selectFirstDiagram() override { log("diagram", 0, 0); }
    void compute() override { log("compute", 0, m_programm.StartupDone() ? 1 : 0); }
    void sperren(std::string_view grund) override
    {
        EXPECT_NE(grund.find("neu starten"), grund.npos);
        log("sperren", 0, 0);
    }
    void show() override { log("show", 0, m_programm.StartupDone() ? 1 : 0); }

    std::vector<std::string> entries;
    std::string calls;

private:
    void log(const std::string& call, int index, int value)
    {
        calls += call + ' ' + std::to_string(index) + ' ' + std::to_string(value) + '\n';
    }

    const Programm& m_programm;
};

} // namespace

struct ProgrammTest : FilesTest {
    using Box = RecordingBoxes::Box;

    ProgrammTest() { writeBytes(folder / Programmdatei, ""); }

    bool start() { return start(programm); }

    bool start(Programm& started)
    {
        return started.start([&]() -> Hauptfenster& { return window.emplace(started); });
    }

    const std::string builtIn{EingebauteTabelle.begin(), EingebauteTabelle.end()};
    const std::filesystem::path dataFile = folder / "elemente.dat";
    FakeSettings settings;
    Programm programm{boxes, settings, folder.path()};
    std::optional<FakeHauptfenster> window;
};

TEST_F(ProgrammTest, FirstStartWritesTheBuiltInTableAndFillsTheWindow)
{
    ASSERT_TRUE(start());
    EXPECT_EQ(bytesOf(dataFile), builtIn);
    EXPECT_EQ(window->entries, (std::vector<std::string>{"H", "He", "Li", "Be", "B", "C"}));
    EXPECT_EQ(window->calls, "row 0 0\nrow 1 1\nrow 2 2\nrow 3 3\nrow 4 4\ndiagram 0 0\ncompute 0 1\nshow 0 1\n");
    EXPECT_EQ(programm.SelectedElement()->symbol(), "H");
    EXPECT_EQ(programm.CurrentElement()->symbol(), "C");
    EXPECT_EQ(programm.ElementCollection().Item("Li")->Dichte_Kristallin(), 0.534F);
    EXPECT_TRUE(boxes.shown.empty() && settings.stored.empty());
}

TEST_F(ProgrammTest, BadDataFilesAreReportedAndNeverOverwritten)
{
    const std::string helium("\x12\x01\x02\0He", 6); // how its record begins
    const std::string hydrogen = builtIn.substr(4, builtIn.find(helium) - 4);
    const std::string remedy = "\r\n\r\nBitte die Datei durch eine gute ersetzen oder entfernen (dann legt der nächste "
                               "Start die eingebaute Tabelle mit sechs Elementen an) und das Programm neu starten.";
    const auto damaged = [&](const std::string& reason) {
        return "Fehler beim Einlesen der Datei:\r\n" + dataFile.string() + "\r\n\r\n" + reason
            + "\r\nProgramm wird beendet." + remedy;
    };
    const std::string none = "Index außerhalb des gültigen Bereichs\r\n\r\nDie Elementdatei\r\n" + dataFile.string()
        + "\r\nenthält keine Elemente oder ist nicht lesbar; ohne Elemente lässt sich nichts berechnen." + remedy;
    const std::string twice = damaged("Dieser Schlüssel ist bereits einem Element dieser Auflistung zugeordnet");
    for (const auto& [name, bytes, caption, text, runs] : {
             std::tuple("no elements", std::string(4, '\0'), "KoltZerna", none, true),
             {"an element twice", builtIn.substr(0, 4) + hydrogen + hydrogen, "Zerna", twice, false},
             {"empty", "", "Zerna", damaged("Eingabe hinter Dateiende"), false},
         }) {
        SCOPED_TRACE(name);
        boxes.shown.clear();
        writeBytes(dataFile, bytes);
        EXPECT_EQ(start(), runs);
        EXPECT_EQ(boxes.shown, std::vector({Box{Icon::Exclamation, caption, text}}));
        EXPECT_EQ(window->calls, runs ? "sperren 0 0\nshow 0 0\n" : "");
        EXPECT_EQ(bytesOf(dataFile), bytes);
    }
}

TEST_F(ProgrammTest, EndsWithAMessageWhenThereIsNoDataFile)
{
    const auto says = [this](const std::filesystem::path& file, const std::string& cause) {
        const std::string text = "Sie benötigen eine neuere Version der Datei 'elemente.dat'.\r\nProgramm kann nicht "
                                 "ausgeführt werden.\r\n\r\n"
            + file.string() + ":\r\n" + cause;
        const Box& box = boxes.shown.back();
        EXPECT_TRUE(box.caption == "Zerna - Loader" && box.text.starts_with(text)) << box.text;
        EXPECT_NE(box.text.find("\r\nAbhilfe: Zerna neu installieren, "), std::string::npos) << box.text;
    };
    Programm nowhere(boxes, settings, folder / "fehlt");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(start(nowhere));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), ReplaceText(boxes.shown.back().text, "\r\n", "\n") + "\n");
    says(folder / "fehlt/elemente.dat", "Pfad nicht gefunden.");
    EXPECT_FALSE(window || std::filesystem::exists(dataFile));
    const std::pair<std::function<void()>, const char*> rows[] = {
        {[&] { std::filesystem::create_symlink("fehlt.dat", dataFile); },
            "Datei nicht gefunden (die Verknüpfung führt zu keiner Datei)."},
        {[&] { std::filesystem::create_directory(dataFile); },
            "Fehler beim Zugriff auf Pfad/Datei (das ist ein Ordner)."},
        {[&] { ASSERT_EQ(makePipe(dataFile), dataFile); },
            "Fehler beim Zugriff auf Pfad/Datei (das ist keine gewöhnliche Datei)."}};
    for (const auto& [make, cause] : rows) {
        make();
        EXPECT_FALSE(start());
        says(dataFile, cause);
        EXPECT_NE(std::filesystem::symlink_status(dataFile).type(), std::filesystem::file_type::regular);
        std::filesystem::remove(dataFile);
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "fehlt.dat"));
}

TEST_F(ProgrammTest, StoredElementsThatTheTableLacksAreNamed)
{
    settings["Element_1"] = "Cu";
    settings["Element_3"] = std::string(1000, 'x');
    ASSERT_TRUE(start());
    EXPECT_NE(window->calls.find("row 1 -1\n"), std::string::npos);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.starts_with("Diese zuletzt gewählten Elemente fehlen in der Datei\r\n"
        + dataFile.string() + ":\r\n\r\nKomponente 2: Cu\r\nKomponente 4: xxx"))
        << boxes.shown[0].text;
    EXPECT_LT(boxes.shown[0].text.size(), 500U);
}

TEST_F(ProgrammTest, AfterShutdownNothingIsLeft)
{
    ASSERT_TRUE(start());
    programm.shutdown();
    for (const std::function<void()>& use : {std::function<void()>([&] { programm.Loader(); }),
             {[&] { programm.Calc(); }}, {[&] { programm.FileHandler(); }}, {[&] { programm.Parser(); }}})
        EXPECT_EQ(errorNumber(use), 91);
    EXPECT_EQ(programm.ElementCollection().Count(), 0);
    EXPECT_FALSE(programm.CurrentElement() || programm.SelectedElement());
}

} // namespace zerna
