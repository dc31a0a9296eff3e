#include <QAction>

#include <array>

#include <gmock/gmock.h>

#include "support/FakeDesk.h"
#include "support/Messkurven.h"
#include "support/ModalDialog.h"
#include "support/Stoerprobe.h"
#include "ui/diagram/frmBild.h"
#include "ui/main/Sitzung.h"
#include "ui/platform/QtSettingsStore.h"

namespace zerna {

namespace {

/// A user who saves one kind after the other into a folder, always to the same name. Each time one call of the system
/// after the other fails, until one attempt is left alone.
class Beharrliche : public SaveFileDialog {
public:
    Beharrliche(std::filesystem::path folder, RecordingBoxes& boxes)
        : m_folder(std::move(folder))
        , m_boxes(boxes)
    {
    }

    std::optional<Choice> choose(
        std::string_view, std::span<const Exportart> arten, const std::optional<Choice>& refused) override
    {
        m_last = m_kind == arten.size();
        if (refused && m_call > 0)
            examine();
        else
            begin(arten[m_kind - 1].endung);
        m_stoerung.reset();
        if (m_call < Aufrufe.size())
            m_stoerung.emplace(m_folder, Stoerung::Art::Einmal, 1, Aufrufe.at(m_call));
        ++m_call;
        return Choice{m_ziel.string(), static_cast<int>(m_kind)};
    }

    bool confirmReplace(std::string_view) override { return true; }

    /// Saves as all kinds that are offered; the answer is their extensions.
    template <class Save>
    std::string saveAll(const Save& save)
    {
        std::string kinds;
        m_last = false;
        for (m_kind = 1; !m_last; ++m_kind) {
            m_call = 0;
            m_stoerung.reset();
            save();
            EXPECT_EQ(m_call, Aufrufe.size() + 1) << "attempts for " << m_ziel;
            EXPECT_GT(bytesOf(m_ziel).size(), 10U) << m_ziel;
            EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_folder), {}), 1);
            EXPECT_TRUE(m_boxes.shown.empty()) << m_boxes.shown.at(0).text;
            std::filesystem::remove(m_ziel);
            kinds += m_ziel.extension().string();
            m_last = m_last || m_call == 0;
        }
        return kinds;
    }

private:
    static constexpr std::array Aufrufe{"open", "fwrite", "fsync", "rename"};

    void begin(std::string_view endung)
    {
        m_ziel = m_folder / ("ä b" + std::string(endung.empty() ? ".bmp" : endung));
        writeBytes(m_ziel, "alt");
    }

    void examine()
    {
        SCOPED_TRACE(m_ziel.string() + ": " + Aufrufe.at(m_call - 1));
        EXPECT_EQ(bytesOf(m_ziel), "alt");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(m_folder), {}), 1);
        ASSERT_EQ(m_boxes.shown.size(), 1U);
        EXPECT_THAT(m_boxes.shown[0].text, testing::HasSubstr(m_ziel.filename().string()));
        EXPECT_THAT(m_boxes.shown[0].text, testing::ContainsRegex("voll|verweigert|E/A-Fehler"));
        m_boxes.shown.clear();
    }

    std::filesystem::path m_folder;
    RecordingBoxes& m_boxes;
    std::filesystem::path m_ziel;
    std::size_t m_kind = 1;
    bool m_last = false;
    std::size_t m_call = 0;
    std::optional<Stoerung> m_stoerung;
};

} // namespace

struct SpeicherstoerungTest : FakeDesk {
    SpeicherstoerungTest()
    {
        std::filesystem::create_directory(ordner);
        settings["Komponenten"] = "2";
        for (const auto& [key, symbol] : {std::pair("Element_0", "Al"), {"Element_1", "Cu"}, {"Element_2", "Mg"}})
            settings[key] = symbol;
        saving = &dialog;
        open();
    }

    /// Saves by a menu entry.
    std::string saveAll(const char* entry)
    {
        return dialog.saveAll([this, entry] { find<QAction>(entry).trigger(); });
    }

    std::string savePictures()
    {
        return dialog.saveAll([this] {
            inDialog<frmBild>([](frmBild& form) { QTest::keyClick(&form, Qt::Key_Return); },
                [this] { find<QAction>("mnuBild_Speichern").trigger(); });
        });
    }

    const std::filesystem::path ordner = folder / "Ordner";
    Beharrliche dialog{ordner, boxes};
};

TEST_F(SpeicherstoerungTest, AllThatTheWindowSavesIsWholeOrTheEarlierFile)
{
    inputBox.answer = "10";
    EXPECT_EQ(saveAll("mnuMFE_Speichern"), ".dat.fri");
    EXPECT_EQ(saveAll("mnuKurven_Speichern"), ".csv.txt.html");
    EXPECT_EQ(saveAll("mnuDiagramm_Speichern"), ".dat.bmp");
    EXPECT_EQ(savePictures(), ".png.svg.pdf");
    choose("cmbDiagramm_Typ", "3 D - ternär");
    EXPECT_EQ(saveAll("mnuDiagramm_Speichern"), ".3dd.bmp");
    choose("cmbDiagramm_Typ", "PSE");
    EXPECT_EQ(saveAll("mnuDiagramm_Speichern"), ".dat.bmp");
    writeBytes(folder / "g.txt", messdatei(glasmodell().punkte(0.15, 0.01, 100, 0.001, 1)));
    openDialog.answer = (folder / "g.txt").string();
    find<QAction>("mnuMesskurve").trigger();
    EXPECT_EQ(saveAll("mnuDiagramm_Speichern"), ".dat.csv.bmp");
    find<QAction>("mnuVergleich_Merken").trigger();
    click("optButton_1_2");
    EXPECT_EQ(saveAll("mnuVergleich_Speichern"), ".csv.txt.html");
    click("cmdKnopf1_1");
    type("txtSollMasse", "1000");
    EXPECT_EQ(saveAll("mnuWiegen_Speichern"), ".dat.pdf");
    EXPECT_EQ(saveAll("mnuSpeichernUnter"), ".zerna");
}

TEST_F(SpeicherstoerungTest, WhatALaterRunIsToRestoreIsSaidToBeMissing)
{
    Sitzung::setWiederherstellen(programm->settings(), true);
    Sitzung session(*programm, ordner, [] { return OffeneDatei{}; });
    session.ende();
    const std::filesystem::path file = ordner / "letzte.zerna";
    for (const char* const call : {"open", "fwrite", "fsync", "rename"}) {
        writeBytes(file, "alt");
        const Stoerung stoerung(ordner, Stoerung::Art::Einmal, 1, call);
        session.ende();
        EXPECT_EQ(bytesOf(file), "alt");
        EXPECT_THAT(boxes.shown.back().text, testing::HasSubstr(file.filename().string()));
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(ordner), {}), 2) << "and the mark of this run";
    }
    EXPECT_EQ(boxes.shown.size(), 4U);
}

TEST(EinstellungsstoerungTest, SettingsAreTheEarlierOnesOrTheNewOnes)
{
    const auto ordner = std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "Gestoert";
    std::filesystem::create_directory(ordner);
    const auto choose = [] {
        QtSettingsStore().setValue("Gestoert", "Settings", "Element_0", "Cu");
        return std::string();
    };
    Stoerprobe{ordner / "Gestoert.conf", choose, "[Settings]\nElement_0=H\nElement_1=Fe\n", true}.laufe();
}

} // namespace zerna
