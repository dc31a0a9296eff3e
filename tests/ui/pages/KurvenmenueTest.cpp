#include <QAction>
#include <QMenu>
#include <QUndoStack>

#include "support/FakeDesk.h"
#include "ui/diagram/conDisplay.h"

namespace zerna {

/// What is drawn beside the curve of Al60Cu40 over aluminium.
struct KurvenmenueTest : FakeDesk {
    KurvenmenueTest()
    {
        openAluminiumCopper();
        type("txtProzent_0", "60");
        choose("cmbDiagramm", "Fermienergie");
        window->verlauf().beginne();
    }

    QMenu& menu() const { return *window->findChild<QMenu*>(QStringLiteral("mnuKurven")); }

    /// An entry as it is when the menu opens.
    QAction& entry(const char* name) const
    {
        emit menu().aboutToShow();
        return *window->findChild<QAction*>(QLatin1String(name));
    }

    /// An entry of a submenu, by the beginning of their texts.
    QAction& entry(const char* submenu, const char* text) const
    {
        emit menu().aboutToShow();
        for (QAction* const sub : menu().actions()) {
            if (sub->menu() == nullptr || !sub->text().remove(u'&').startsWith(QString::fromUtf8(submenu)))
                continue;
            emit sub->menu()->aboutToShow();
            for (QAction* const action : sub->menu()->actions()) {
                if (action->text().remove(u'&').startsWith(QString::fromUtf8(text)))
                    return *action;
            }
        }
        throw std::logic_error(text);
    }

    const Kurvenbild& bild() const { return find<conDisplay>("conDisplay1").diagramm().bild(); }

    std::string names() const
    {
        std::string all;
        for (const Kurve& kurve : bild().kurven)
            all += kurve.name + '|';
        return all;
    }
};

TEST_F(KurvenmenueTest, TheMixtureBecomesTheCurveThatIsSavedAndStaysItNextTime)
{
    const auto value = [this] {
        const std::string values = find<conDisplay>("conDisplay1").values(60);
        return values.substr(values.rfind('\t') + 1, 5);
    };
    EXPECT_EQ(
        value() + ' ' + names(), "10.99 Anteile wie eingetragen|Mischungsreihe (Summe 100 %)|Al60Cu40: 10,294 eV|");
    entry("mnuMischungsreihe").trigger();
    EXPECT_EQ(value() + ' ' + names(), "10.29 Mischungsreihe (Summe 100 %)|Al60Cu40: 10,294 eV|");
    EXPECT_EQ(settings["Mischungsreihe"], "1");
    EXPECT_EQ(window->verlauf().stapel().count(), 0) << "a switch is no step";
    start();
    EXPECT_TRUE(entry("mnuMischungsreihe").isChecked());
    EXPECT_EQ(names().find("Mischungsreihe"), 0U);
}

TEST_F(KurvenmenueTest, ACurveThatLeavesThePictureOffersAllOfIt)
{
    EXPECT_FALSE(find("lblAngebot").isVisible());
    type("txtProzent_0", "40");
    choose("cmbDiagramm", "Valenz");
    choose("cmbDiagramm_Element", "Cu");
    EXPECT_TRUE(find("lblAngebot").isVisible());
    click("lblAngebot");
    EXPECT_FALSE(find("lblAngebot").isVisible());
    EXPECT_GT(bild().y.bereich.max, 3);
    EXPECT_EQ(settings["GanzeKurve"], "1");
    EXPECT_TRUE(entry("mnuGanzeKurve").isChecked());
}

TEST_F(KurvenmenueTest, UpToSixCurvesAreKeptWithTheDocument)
{
    for (const char* const prozent : {"0", "10", "20", "30", "40", "50"}) {
        type("txtProzent_0", prozent);
        entry("mnuKurve_Festhalten").trigger();
        EXPECT_FALSE(entry("mnuKurve_Festhalten").isEnabled()) << "it is kept";
    }
    type("txtProzent_0", "60");
    EXPECT_EQ(entry("mnuKurve_Festhalten").text(), QStringLiteral("Kurve festhalten (es sind schon sechs)"));
    entry("mnuKurve_Festhalten").trigger();
    EXPECT_EQ(programm->Dokument().kurven->size(), 6U);
    EXPECT_NE(names().find("|Al30Cu70 über Al|"), std::string::npos) << names();
    entry("Festgehaltene", "Al30Cu70").trigger();
    EXPECT_EQ(names().find("|Al30Cu70 über Al|"), std::string::npos);
    entry("Festgehaltene", "Alle").trigger();
    EXPECT_TRUE(programm->Dokument().kurven->empty());
    window->verlauf().stapel().undo();
    EXPECT_EQ(programm->Dokument().kurven->size(), 5U);
    EXPECT_NE(names().find("|Al50Cu50 über Al|"), std::string::npos) << names();
    choose("cmbDiagramm", "Valenz");
    EXPECT_NE(bild().bildschirmhinweise.back().find("5 festgehaltene Kurven"), std::string::npos);
}

TEST_F(KurvenmenueTest, VariantsAndASecondQuantityAreDrawnOnDemand)
{
    EXPECT_FALSE(entry("mnuKurven_Varianten").isEnabled()) << "there are none";
    const auto remember = [this] { find<QAction>("mnuVergleich_Merken").trigger(); };
    remember();
    entry("mnuKurven_Varianten").trigger();
    EXPECT_NE(names().find("|Al60Cu40|"), std::string::npos) << names();
    type("txtProzent_0", "20");
    remember();
    EXPECT_NE(names().find("|Al20Cu80|"), std::string::npos) << names();
    entry("Zweite", "Valenz").trigger();
    ASSERT_TRUE(bild().rechts);
    EXPECT_EQ(bild().rechts->titel, "Valenz [e/a]");
    EXPECT_TRUE(entry("Zweite", "Valenz").isChecked());
    window->verlauf().stapel().undo();
    EXPECT_FALSE(bild().rechts);
}

TEST_F(KurvenmenueTest, AllCurvesAreOneTable)
{
    entry("mnuKurve_Festhalten").trigger();
    entry("Zweite", "Valenz").trigger();
    entry("mnuKurven_Kopieren").trigger();
    const std::string copied = clipboard();
    EXPECT_EQ(copied.substr(0, copied.find('\r')),
        "at% Al\tAnteile wie eingetragen [eV]\tMischungsreihe (Summe 100 %) [eV]\tValenz (rechte Achse) [e/a]\t"
        "Al60Cu40 über Al [eV]");
    saveDialog.answer = {(folder / "kurven").string(), 1};
    entry("mnuKurven_Speichern").trigger();
    const std::string saved = bytesOf(folder / "kurven.csv");
    EXPECT_EQ(std::ranges::count(saved, '\n'), 102);
    EXPECT_NE(saved.find("\r\n100;"), std::string::npos);
    choose("cmbDiagramm_Typ", "PSE");
    EXPECT_FALSE(menu().isEnabled());
}

} // namespace zerna
