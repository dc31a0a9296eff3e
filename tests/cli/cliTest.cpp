#include "core/Zeichensatz.h"
#include "support/ErwarteteTexte.h"
#include "support/Kommandozeile.h"

namespace zerna {

struct cliTest : Kommandozeile {
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
}

TEST_F(cliTest, ReportsAFullStandardOutput)
{
    const Answer answer = run("text Al=100 >/dev/full");
    EXPECT_EQ(answer.status, 1);
    EXPECT_EQ(answer.text, "zerna-cli: Die Standardausgabe kann nicht geschrieben werden\n");
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
