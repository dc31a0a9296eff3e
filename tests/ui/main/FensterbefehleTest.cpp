#include <QAbstractButton>
#include <QMenuBar>

#include <map>
#include <set>

#include "support/FakeDesk.h"

namespace zerna {

struct FensterbefehleTest : FakeDesk {
    QAction& action(const char* name) const { return find<QAction>(name); }

    /// The entries that the user finds in the menus, "-" for a dimmed one and "*" for a checked one in front.
    std::map<std::string, std::string> entries() const
    {
        std::map<std::string, std::string> all;
        for (const QAction* const title : find<QMenuBar>("mnuMain").actions()) {
            emit title->menu()->aboutToShow();
            for (const QAction* const entry : title->menu()->actions())
                all[entry->objectName().toStdString()] = std::string(entry->isEnabled() ? "" : "-")
                    + (entry->isChecked() ? "*" : "") + entry->text().remove('&').toStdString();
            emit title->menu()->aboutToHide();
        }
        return all;
    }
};

TEST_F(FensterbefehleTest, NoMnemonicComesTwiceInAMenu)
{
    open();
    for (const QAction* const title : find<QMenuBar>("mnuMain").actions()) {
        emit title->menu()->aboutToShow();
        std::map<QString, int> uses;
        for (const QAction* const entry : title->menu()->actions()) {
            const QString key = QKeySequence::mnemonic(entry->text()).toString();
            EXPECT_TRUE(entry->isSeparator() || !key.isEmpty()) << entry->text().toStdString();
            EXPECT_TRUE(entry->isSeparator() || ++uses[key] == 1) << entry->text().toStdString();
        }
    }
}

TEST_F(FensterbefehleTest, MenusDoWhatTheButtonsDo)
{
    openAluminiumCopper();
    for (const auto& [button, entry] : {std::pair("cmdMFE_Kopieren", "mnuMFE_Kopieren"),
             {"cmdWiegen_Kopieren", "mnuWiegen_Kopieren"}, {"cmdMFE_Tabelle", "mnuMFE_Komma"}}) {
        find<QAbstractButton>(button).click();
        const std::string copied = clipboard();
        QApplication::clipboard()->clear();
        action(entry).trigger();
        EXPECT_EQ(clipboard(), copied) << entry;
        EXPECT_FALSE(copied.empty()) << entry;
    }
    action("mnuDiagramm_Kopieren").trigger();
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
    action("mnuFriedel_Naechstes").trigger();
    EXPECT_EQ(text("Label7"), "n = 2");
    action("mnuKom_0").trigger();
    action("mnuTyp_1").trigger();
    action("mnuSteps_1").trigger();
    EXPECT_EQ(texts({"lblAnzahl", "cmbDiagramm_Typ", "lblSteps"}), "3|3 D - ternär|Auflösung: 6");
    action("mnuPanel_1").trigger();
    EXPECT_TRUE(find("Pic_1_1").isVisible());
    action("mnuArea_1").trigger();
    EXPECT_TRUE(find("conWiegen1").isVisible());
}

TEST_F(FensterbefehleTest, MenusTellHowThingsStand)
{
    openAluminiumCopper();
    auto now = entries();
    EXPECT_EQ(now["mnuDrucken"], "Diagramm drucken ...");
    EXPECT_EQ(now["mnuPanel_0"] + now["mnuArea_1"] + now["mnuTyp_0"], "*RechnerEinwaage*Diagramm 2 D");
    EXPECT_EQ(now["mnuSteps_1"] + now["mnuZurueckholen"], "-Feinere Auflösung-Istmassen zurückholen");
    click("cmdKnopf1_1");
    type("Istmasse_0", "100");
    EXPECT_EQ(entries()["mnuDrucken"], "Wiegezettel drucken ...");
    choose("cmbElement_0", "Zn");
    now = entries();
    EXPECT_EQ(now["mnuArea_1"] + now["mnuZurueckholen"], "*EinwaageIstmassen zurückholen");
    action("mnuZurueckholen").trigger();
    EXPECT_EQ(text("Istmasse_0"), "100");
    click("optButton_1_1");
    EXPECT_EQ(entries()["mnuDrucken"], "-Diagramm drucken ...");
    find("picPSE").setFocus();
    QTest::keyClick(&find("picPSE"), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(FensterbefehleTest, ALockedWindowOffersInformationAndTheWayOut)
{
    writeBytes(folder / "elemente.dat", std::string(4, '\0'));
    open();
    const std::set<std::string> offered{"", "mnuBeenden", "mnuHandbuch", "mnuInfo", "mnuZehnMinuten"};
    for (const auto& [name, text] : entries())
        EXPECT_EQ(text.starts_with('-'), !offered.contains(name)) << name << text;
}

} // namespace zerna
