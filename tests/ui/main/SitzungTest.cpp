#include "ui/main/Sitzung.h"

#include <QCheckBox>

#include "core/Datei.h"
#include "dokument/Dokumentdatei.h"
#include "support/FakeDesk.h"
#include "support/ModalDialog.h"
#include "ui/main/frmEinstellungen.h"

namespace zerna {

struct SitzungTest : FakeDesk {
    SitzungTest() { openAluminiumCopper(); }

    std::filesystem::path kept() const { return folder / "sitzung-0.zerna"; }

    const std::function<OffeneDatei()> datei = [] { return OffeneDatei{"/nirgends/ä.zerna", 7}; };
};

TEST_F(SitzungTest, AnEditIsKeptWithinASecondAndOfferedAfterACrash)
{
    const std::filesystem::path crashed = folder / "tot";
    std::filesystem::create_directory(crashed);
    type("txtProzent_0", "60");
    {
        Sitzung session(*programm, folder.path(), datei);
        EXPECT_FALSE(session.beginn());
        session.geaendert();
        ASSERT_TRUE(QTest::qWaitFor([this] { return std::filesystem::exists(kept()); }, 900));
        std::filesystem::copy(kept(), crashed / "sitzung-0.zerna");
    }
    EXPECT_FALSE(std::filesystem::exists(kept())) << "the run has come to its end";
    const Dokument before = programm->Dokument();
    const std::string fermi = text("lblMFE_7");
    type("txtProzent_0", "70");
    boxes.way = 2; // later
    EXPECT_FALSE(Sitzung(*programm, crashed, datei).beginn());
    boxes.way = 0;
    {
        Sitzung undecided(*programm, crashed, datei);
        EXPECT_TRUE(undecided.beginn());
        std::filesystem::copy(crashed / "sitzung-0.zerna", folder / "wieder");
    }
    std::filesystem::copy(folder / "wieder", crashed / "sitzung-0.zerna"); // killed once more
    Sitzung next(*programm, crashed, datei);
    const auto stand = next.beginn();
    ASSERT_TRUE(stand);
    EXPECT_EQ(schreibe(stand->dokument), schreibe(before));
    EXPECT_EQ(stand->datei, datei());
    window->setzeFort(*stand);
    EXPECT_EQ(text("txtProzent_0") + "|" + text("lblMFE_7"), "60|" + fermi);
    EXPECT_TRUE(window->isWindowModified()) << "its file cannot be read";
    writeBytes(folder / "ä.zerna", schreibe(before));
    Sitzung saved(*programm, folder / "neu", [this] { return OffeneDatei{utf8FromPath(folder / "ä.zerna"), 0}; });
    saved.geaendert();
    ASSERT_TRUE(QTest::qWaitFor([this] { return std::filesystem::exists(folder / "neu" / "sitzung-0.zerna"); }, 900));
    std::filesystem::create_directory(folder / "gesichert");
    std::filesystem::copy(folder / "neu" / "sitzung-0.zerna", folder / "gesichert" / "sitzung-0.zerna");
    boxes.asked.clear();
    EXPECT_FALSE(Sitzung(*programm, folder / "gesichert", datei).beginn());
    EXPECT_TRUE(boxes.asked.empty()) << "all is in the file";
}

TEST_F(SitzungTest, TheLastAlloyComesBackIfTheUserWantsThat)
{
    const auto endAndBegin = [this] {
        Sitzung(*programm, folder.path(), datei).ende();
        return Sitzung(*programm, folder.path(), datei).beginn();
    };
    EXPECT_FALSE(endAndBegin());
    inDialog<frmEinstellungen>(
        [](const frmEinstellungen& dialog) {
            dialog.findChild<QCheckBox*>()->click();
            press(Qt::Key_Return);
        },
        [this] { frmEinstellungen(programm->settings(), window.get()).exec(); });
    const auto stand = endAndBegin();
    ASSERT_TRUE(stand);
    EXPECT_EQ(schreibe(stand->dokument), schreibe(programm->Dokument()));
    EXPECT_EQ(boxes.asked.size(), 0U);
}

TEST_F(SitzungTest, AFolderThatCannotBeWrittenIsToldOnce)
{
    writeBytes(folder / "datei", "");
    Sitzung session(*programm, folder / "datei", datei, std::chrono::milliseconds(10));
    for (int edit = 0; edit < 4; ++edit) {
        session.geaendert();
        QTest::qWait(60);
    }
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_NE(boxes.shown[0].text.find("lässt sich nicht sichern"), std::string::npos);
}

} // namespace zerna
