#include "support/Kommandozeile.h"

namespace zerna {

using cliTest = Kommandozeile;

TEST_F(cliTest, PrintsWithLineFeedsAndSavesTheBytesOfTheWindow)
{
    const std::string printed = run("text Al=60:dichte=kristallin Cu=40:dichte=kristallin").text;
    EXPECT_EQ(printed.find('\r'), std::string::npos);
    EXPECT_NE(printed.find("5,204 g/cm³\n"), std::string::npos) << printed;
    EXPECT_EQ(run("text --ausgabe ä.dat Al=60:dichte=kristallin Cu=40:dichte=kristallin").text, "");
    EXPECT_NE(bytesOf(folder / "ä.dat").find("mittlere Dichte: 5,204 g/cm\xB3\r\n"), std::string::npos);
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
