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

TEST_F(cliTest, PicturesAreMadeWithoutADisplayAndCarryTheirAlloy)
{
    if (!std::filesystem::exists(ZERNA_BIN_DIR "/zerna-bild"))
        GTEST_SKIP() << "built without the window";
    const struct {
        const char* options;
        const char* file;
        const char* begin;
    } rows[] = {
        {"--groesse 8 --variabel Cu --zweite-groesse 9 --ganze-kurve --grau", "a.svg", "<?xml"},
        {"--art ternaer --flach --groesse 5 --schritte 3", "b.png", "\x89PNG"},
        {"--art elemente --groesse 13 --kristallin --ohne-symbole --dezimal punkt", "c.PDF", "%PDF"},
    };
    const std::string alloy = " Al=60:dichte=2,5:valenz=5/2 Cu=30 Mg=10";
    for (const auto& row : rows) {
        SCOPED_TRACE(row.file);
        const std::string call =
            std::string("bild --breite 85 --hoehe 60 --aufloesung 60 --ziel ") + row.file + " " + row.options;
        const Answer answer = run(call + alloy);
        EXPECT_EQ(answer.text, "");
        EXPECT_EQ(answer.status, 0);
        const std::string first = bytesOf(folder / row.file);
        EXPECT_TRUE(first.starts_with(row.begin));
        EXPECT_EQ(run(std::string("groessen ") + row.file).text, run("groessen" + alloy).text);
        EXPECT_EQ(run("bild --breite 85 --hoehe 60 --aufloesung 60 --ziel d.svg " + std::string(row.file)).text, "")
            << "it says which diagram it is";
    }
    const std::string texts = bytesOf(folder / "a.svg");
    for (const char* const text : {"<title>Fermienergie [eV] über at% Cu</title>",
             "<desc>Al60Cu30Mg10 – Al: 2,5 g/cm³, z = 2,5;", ">2 Kf [1/nm]</text>", ">100</text>"})
        EXPECT_NE(texts.find(text), std::string::npos) << text << texts;
    for (const auto& [options, refusal] :
        {std::pair("--schrift Nixda", "--schrift Nixda: diese Schrift gibt es hier nicht"),
            {"--zweite-groesse 8", "--zweite-groesse 8: erwartet wird eine andere als die erste"},
            {"--varianten", "--varianten gibt es nur mit einer Datei, in der Legierungen gemerkt sind"}}) {
        const Answer answer = run(std::string("bild --groesse 8 --ziel e.png Al60Cu40 ") + options);
        EXPECT_EQ(answer.text, std::string("zerna-cli: ") + refusal + '\n');
        EXPECT_EQ(answer.status, 2);
    }
    EXPECT_EQ(run("bild --ziel e.png --varianten a.svg").text,
        "zerna-cli: --varianten gibt es nur mit einer Datei, in der Legierungen gemerkt sind\n");
    EXPECT_EQ(run("bild --groesse 8 --ziel e.svg Al=60 Cu=30").text,
        "zerna-cli: Die Anteile ergeben nicht 100 %, das Bild trägt keine Legierung\n");
    EXPECT_EQ(run("groessen e.svg").status, 1);
}

TEST_F(cliTest, FiguresOfTheDocumentationAreMadeByTheCommandsBelowThem)
{
    if (!std::filesystem::exists(ZERNA_BIN_DIR "/zerna-bild"))
        GTEST_SKIP() << "built without the window";
    const std::filesystem::path docs = ZERNA_DATA_DIR "/../docs";
    const Answer made = run("formel 1 >/dev/null; '" + (docs / "abbildungen.sh").string() + "' '" ZERNA_BIN_DIR "' .");
    EXPECT_EQ(made.status, 0) << made.text;
    EXPECT_EQ(made.text.find("zerna-cli:"), std::string::npos) << made.text;
    const std::string page = bytesOf(docs / "abbildungen.md");
    int figures = 0;
    for (std::size_t at = page.find("](bilder/"); at != std::string::npos; at = page.find("](bilder/", at + 1)) {
        const std::string name = page.substr(at + 9, page.find(')', at) - at - 9);
        EXPECT_TRUE(std::filesystem::exists(docs / "bilder" / name)) << name;
        EXPECT_TRUE(std::filesystem::exists(folder / name)) << name << " is shown, but not made";
        ++figures;
    }
    EXPECT_GE(figures, 6);
}

TEST_F(cliTest, MissesTheProgramThatMakesPictures)
{
    const Answer answer = run("formel 1 >/dev/null; cp \"$(command -v zerna-cli)\" .; ./zerna-cli bild --art elemente "
                              "--groesse 13 --ziel a.png");
    EXPECT_EQ(answer.text,
        "zerna-cli: zerna-bild fehlt neben zerna-cli. Bilder gibt es nur, wo Zerna mit seinem Fenster gebaut wurde.\n");
    EXPECT_EQ(answer.status, 1);
}

TEST_F(cliTest, FindsItsTableThroughALinkAndSaysWhenThereIsNone)
{
    std::filesystem::create_symlink(ZERNA_BIN_DIR "/zerna-cli", folder / "rechner");
    EXPECT_EQ(run("formel 1; ./rechner formel z_Al").text, "1\n3\n");
    std::filesystem::remove(folder / "rechner");
    std::filesystem::copy_file(ZERNA_BIN_DIR "/zerna-cli", folder / "rechner");
    const std::string hint = "zerna-cli: Die Datei \"" + (folder / "elemente.dat").string()
        + "\" fehlt; es gelten nur die sechs eingebauten Elemente H bis C. Abhilfe: Zerna neu installieren, ";
    const std::string text = run("formel 1; ./rechner formel z_He").text;
    EXPECT_TRUE(text.starts_with("1\n" + hint)) << text;
    EXPECT_TRUE(text.ends_with(" nennen.\n0\n")) << text;
    EXPECT_FALSE(std::filesystem::exists(folder / "elemente.dat")) << "the command line writes none";
}

TEST_F(cliTest, ListsTakeNoMoreMemoryTheLongerTheyAre)
{
#ifdef __SANITIZE_ADDRESS__ // takes terabytes of addresses
    const std::string limit;
#else
    const std::string limit = "ulimit -v 60000; ";
#endif
    const std::string list = " | (" + limit + "zerna-cli groessen --stapel --groessen 0)";
    const Answer lines = run("formel 1 >/dev/null; yes Al=100 | head -300000" + list + " | uniq -c");
    EXPECT_EQ(lines.text, "      1 Legierung\tmittlere Valenz [e/a]\n 300000 Al=100\t3\n");
    const Answer line = run("formel 1 >/dev/null; (head -c 100000000 /dev/zero; printf '\\nAl=100\\n\\0')" + list);
    EXPECT_EQ(line.text,
        "Legierung\tmittlere Valenz [e/a]\nZeile 1: länger als 65536 Zeichen\nAl=100\t3\n"
        "Zeile 3: Nullbytes; erwartet wird Text in UTF-8\nzerna-cli: 2 Fehler\n");
    EXPECT_EQ(line.status, 1);
}

TEST_F(cliTest, ListsEndWithTheirOutput)
{
    const std::string endless = "formel 1 >/dev/null; yes Al=100 | zerna-cli groessen --stapel --groessen 0";
    EXPECT_EQ(run(endless + " >/dev/full").text, "zerna-cli: Die Standardausgabe kann nicht geschrieben werden\n");
    EXPECT_EQ(run(endless + " | head -2").text, "Legierung\tmittlere Valenz [e/a]\nAl=100\t3\n");
}

TEST_F(cliTest, ListsAnswerEachLineBeforeTheNextOneComes)
{
    const Answer answer = run("formel 1 >/dev/null; mkfifo in out; zerna-cli groessen --stapel --groessen 0 <in >out & "
                              "exec 5>in 6<out; read -r x <&6; for al in 100 50; do echo Al=$al >&5; read -r x <&6; "
                              "echo \"$x\"; done");
    EXPECT_EQ(answer.text, "Al=100\t3\nAl=50\t1.5\n");
}

} // namespace zerna
