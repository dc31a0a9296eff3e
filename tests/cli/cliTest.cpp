#include <cstdio>
#include <cstdlib>

#include <sys/wait.h>

#include "core/Zeichensatz.h"
#include "support/ErwarteteTexte.h"
#include "support/FilesTest.h"

namespace zerna {

struct cliTest : FilesTest {
    struct Answer {
        int status = -1;
        std::string text; ///< standard output, errors too
    };

    /// Runs the program with arguments as a shell reads them.
    Answer run(const std::string& arguments) const
    {
        const std::string command = "exec 2>&1; cd '" + folder.path().string() + "'; '" ZERNA_BIN_DIR "/zerna-cli' ";
        Answer answer;
        FILE* const pipe = popen((command + arguments).c_str(), "r");
        for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
            answer.text.push_back(static_cast<char>(c));
        answer.status = WEXITSTATUS(pclose(pipe));
        return answer;
    }

    const std::string alloy = "Al=60:dichte=kristallin Cu=40:dichte=kristallin";
};

TEST_F(cliTest, PrintsWithLineFeedsAndSavesTheBytesOfTheWindow)
{
    std::string printed = erwartet::Ergebnistext + "\n";
    std::erase(printed, '\r');
    EXPECT_EQ(run("text " + alloy).text, printed);
    const Answer saved = run("text --ausgabe ä.dat " + alloy);
    EXPECT_EQ(saved.status, 0);
    EXPECT_EQ(saved.text, "");
    EXPECT_EQ(bytesOf(folder / "ä.dat"), toWindows1252(erwartet::Ergebnisdatei));
    EXPECT_EQ(run("friedel " + alloy).text.substr(0, 48), "0.238906163722277\t50\n0.238906163722277\t55\n \t \n0.");
}

TEST_F(cliTest, PrintsTablesAndFormulas)
{
    const std::pair<std::string, const char*> rows[] = {
        {"formel '2*e-1'", "4,5436563656918\n"},
        {"formel Z_cu", "1\n"},
        {"groessen " + alloy, "mittlere Valenz\t2.2\te/a\nmittlere Teilchenzahldichte\t68.1795"},
        {"groessen --json " + alloy, "[\n  {\"name\": \"mittlere Valenz\", \"wert\": 2.2, \"einheit\": \"e/a\"},\n"},
        {"wiegen --masse 1000 Al=50 Cu=50", "Al\t50\t298.0"},
    };
    for (const auto& [arguments, text] : rows) {
        const Answer answer = run(arguments);
        EXPECT_EQ(answer.status, 0) << answer.text;
        EXPECT_TRUE(answer.text.starts_with(text)) << answer.text;
    }
}

TEST_F(cliTest, ErrorsAreGermanNameTheArgumentAndSetTheStatus)
{
    writeBytes(folder / "kaputt.dat", "abc");
    const std::tuple<std::string, int, std::string> rows[] = {
        {"", 2, "Es fehlt ein Befehl (Hilfe: zerna-cli --hilfe)"},
        {"drucken", 2, "Unbekannter Befehl drucken (Hilfe: zerna-cli --hilfe)"},
        {"text", 2, "Es fehlt das Argument komponenten (Hilfe: zerna-cli --hilfe)"},
        {"reihe --groesse x --variabel Al Al=50", 2, "Ungültiger Wert"},
        {"text Al=x", 2, "Komponente \"Al=x\": at% \"x\" ist keine gültige Zahl"},
        {"text Qq=5", 1, "Komponente \"Qq=5\": Element \"Qq\" ist nicht bekannt"},
        {"formel 1/0", 1, "Formel \"1/0\": Division durch Null (Zeichen 2)"},
        {"--daten kaputt.dat text Al=5", 1, "Datei \"kaputt.dat\": Eingabe hinter Dateiende"},
        {"friedel --ausgabe fehlt/a.fri Al=100", 1, "Datei \"fehlt/a.fri\": Pfad nicht gefunden"},
        {"elemente importieren fehlt.csv a.dat", 1, "Datei \"fehlt.csv\" kann nicht gelesen werden"},
        {"text Al=100 >/dev/full", 1, "Die Standardausgabe kann nicht geschrieben werden"},
    };
    for (const auto& [arguments, status, message] : rows) {
        SCOPED_TRACE(arguments);
        const Answer answer = run(arguments);
        EXPECT_EQ(answer.status, status);
        EXPECT_NE(answer.text.find("zerna-cli: " + message), std::string::npos) << answer.text;
    }
    EXPECT_EQ(run("--hilfe").status, 0);
}

TEST_F(cliTest, ElementsGoToATableAndBackUnchanged)
{
    EXPECT_EQ(run("elemente exportieren a.csv").status, 0);
    EXPECT_EQ(bytesOf(folder / "a.csv"), bytesOf(ZERNA_DATA_DIR "/elemente.csv"));
    EXPECT_EQ(run("elemente importieren a.csv a.dat").status, 0);
    EXPECT_EQ(bytesOf(folder / "a.dat"), bytesOf(ZERNA_BIN_DIR "/elemente.dat"));
    writeBytes(folder / "a.csv", "X,Y\n1,2\n");
    EXPECT_EQ(run("elemente importieren a.csv a.dat").status, 1);
    EXPECT_EQ(bytesOf(folder / "a.dat"), bytesOf(ZERNA_BIN_DIR "/elemente.dat")) << "left untouched";
}

} // namespace zerna
