#include "ui/weighing/Wiegezettel.h"

#include <QPrinterInfo>

#include "support/Druckdialog.h"
#include "support/FakeDesk.h"
#include "traeger/Dokumentfund.h"

namespace zerna {

struct WiegezettelTest : FakeDesk {
    const Wiegeprotokoll protokoll{"1.2.2026", {{"<Al", "50", "298,048", "29,80", "300,2", "50,04", "+0,04", "29,84"}},
        "1000", "1006,1", "bezogen auf 300,2 mg Al", {"Masseverlust = 3 mg", "Al: 50,1 at%"}};
};

TEST_F(WiegezettelTest, PageHasWhatWasWeighedAndLinesToSign)
{
    const std::string page = wiegezettel(protokoll).toStdString();
    for (const char* const part :
        {"Einwaage vom 1.2.2026", "&lt;Al", "298,048", "29,80", "300,2", "50,04", "+0,04", "29,84", "1006,1",
            "bezogen auf 300,2 mg Al", "Masseverlust = 3 mg", "Al: 50,1 at%", "Datum", "Unterschrift"})
        EXPECT_NE(page.find(part), std::string::npos) << part;
    printTo((folder / "zettel.pdf").string(), "Wiegezettel drucken",
        [this] { druckeWiegezettel(nullptr, boxes, protokoll); });
    EXPECT_TRUE(bytesOf(folder / "zettel.pdf").starts_with("%PDF-"));
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(WiegezettelTest, WithoutAPrinterTheUserIsToldAndCanSaveThePage)
{
    openAluminiumCopper();
    click("cmdKnopf1_1");
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        click("cmdWiegen_Drucken");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_TRUE(boxes.shown[0].text.starts_with("Es ist kein Drucker eingerichtet.")) << boxes.shown[0].text;
    }
    saveDialog.answer = {(folder / "zettel").string(), 2};
    click("cmdWiegen_Speichern");
    EXPECT_EQ(dokumentAus(bytesOf(folder / "zettel.pdf")).dokument, programm->dokumenttext());
    type("txtSollMasse", "x");
    boxes.shown.clear();
    click("cmdWiegen_Drucken");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, "Es gibt weder Sollmassen noch gewogene Massen.");
}

} // namespace zerna
