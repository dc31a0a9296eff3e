#include "support/Stoerung.h"

#include <gmock/gmock.h>

#include "support/Kommandozeile.h"

namespace zerna {

/// The command line program, of whose calls one fails.
struct BefehlsstoerungTest : Kommandozeile {
    BefehlsstoerungTest()
    {
        std::filesystem::create_directory(ordner);
        EXPECT_EQ(run("elemente exportieren e.csv").text, "");
    }

    /// Runs a command in the folder with that disturbance: the earlier file is there or the new one and nothing else,
    /// and a failure names the file and the cause. The answer is what was disturbed.
    std::string disturb(
        const std::string& command, const std::string& file, Stoerung::Art art, int call, const std::string& name = {})
    {
        writeBytes(ordner / file, "alt");
        std::filesystem::remove(folder / "zeuge");
        const std::string disturbance = Stoerung::fuer(ordner, art, call, name, folder / "zeuge");
        const Answer answer = run("formel 1 >/dev/null; cd Ordner; " + disturbance + "zerna-cli " + command);
        const std::string was = bytesOf(folder / "zeuge");
        if (was.empty())
            return was;
        if (art == Stoerung::Art::Verschwunden)
            std::filesystem::rename(ordner.string() + ".weg", ordner);
        SCOPED_TRACE(command + ": " + was + ": " + answer.text);
        EXPECT_EQ(answer.status == 0, bytesOf(ordner / file) != "alt");
        if (answer.status != 0) {
            EXPECT_EQ(answer.status, 1);
            EXPECT_THAT(answer.text, testing::HasSubstr("\"" + file + "\""));
            EXPECT_THAT(answer.text, testing::ContainsRegex("voll|verweigert|E/A-Fehler|nicht gefunden|Pfad"));
        }
        const auto left = std::distance(std::filesystem::directory_iterator(ordner), {});
        EXPECT_TRUE(left == 1 || art == Stoerung::Art::Verschwunden);
        std::filesystem::remove(ordner / file);
        return was;
    }

    const std::filesystem::path ordner = folder / "Ordner";
};

TEST_F(BefehlsstoerungTest, EachCallThatFailsWhileATableIsWritten)
{
    for (const Stoerung::Art art : {Stoerung::Art::Einmal, Stoerung::Art::Verschwunden}) {
        int call = 1;
        while (!disturb("elemente importieren \"$OLDPWD/e.csv\" e.dat", "e.dat", art, call).empty())
            ASSERT_LT(++call, 200);
        EXPECT_GT(call, 3);
    }
}

TEST_F(BefehlsstoerungTest, AllThatCommandsWriteIsWholeOrTheEarlierFile)
{
    const std::pair<const char*, const char*> rows[] = {
        {"text --ausgabe a.dat Al=60 Cu=40", "a.dat"},
        {"groessen --json --ausgabe a.json Al=60 Cu=40", "a.json"},
        {"reihe --groesse 8 --variabel Al --ausgabe a.txt Al=60 Cu=40", "a.txt"},
        {"pse --groesse 13 --ausgabe a.txt", "a.txt"},
        {"ternaer --groesse 8 --aufloesung 3 --ausgabe a.3dd Al=60 Cu=30 Mg=10", "a.3dd"},
        {"wiegen --masse 1000 --ausgabe a.txt Al=60 Cu=40", "a.txt"},
        {"friedel --ausgabe a.fri Al=60 Cu=40", "a.fri"},
        {"elemente exportieren a.csv", "a.csv"},
    };
    for (const auto& [command, file] : rows)
        for (const char* const name : {"open", "fwrite", "rename"})
            EXPECT_EQ(disturb(command, file, Stoerung::Art::Einmal, 1, name), name + std::string(" 1")) << command;
    if (!std::filesystem::exists(ZERNA_BIN_DIR "/zerna-bild"))
        return;
    for (const std::string file : {"a.png", "a.svg", "a.pdf"})
        EXPECT_NE(disturb("bild --groesse 8 Al60Cu40 --ziel " + file, file, Stoerung::Art::Einmal, 1, "rename"), "");
}

} // namespace zerna
