#include "ui/weighing/conWiegen.h"

#include <QDate>
#include <QListWidget>

#include "core/Zahlentext.h"
#include "support/FakeDesk.h"
#include "ui/controls/Wertfeld.h"

namespace zerna {

struct conWiegenTest : FakeDesk {
    conWiegenTest()
    {
        openAluminiumCopper();
        click("cmdKnopf1_1");
    }

    /// The message boxes since the last call, those with an exclamation mark marked.
    std::string heard()
    {
        std::string all;
        for (const auto& [icon, caption, message] : std::exchange(boxes.shown, {}))
            all.append(icon == Icon::Exclamation ? "! " : "").append(caption).append(": ").append(message).append("\n");
        return all;
    }

    void pressEnter(const char* field, Qt::Key key = Qt::Key_Return) { QTest::keyClick(&find(field), key); }

    const std::vector<const char*> targets{
        "Sollmasse_0", "Sollmasse_1", "MassProzent_0", "MassProzent_1", "lblHinweis"};
    const std::vector<const char*> weighed{
        "IstProzent_0", "IstProzent_1", "Abweichung_0", "MassProzent_0", "MassProzent_1", "lblGesamtmasse"};
};

TEST_F(conWiegenTest, TargetMassesFollowTotalAndComposition)
{
    const char* const obstacle =
        "||||Sollmassen nicht berechenbar: Aluminium hat 0 at% und ist der Bezug der Rechnung.";
    struct Row {
        const char* field;
        const char* typed;
        const char* shown;
    };
    for (const auto& [field, typed, shown] : {
             Row{"txtSollMasse", "500", "149,024|350,976|29,80|70,20|"},
             {"txtSollMasse", "5x", "||||"},
             {"txtSollMasse", "", "0,000|0,000|||"},
             {"txtSollMasse", "1e-6", "2,98E-7|7,02E-7|29,80|70,20|"},
             {"txtSollMasse", "1000", "298,048|701,952|29,80|70,20|"},
             {"txtProzent_0", "100", "1000,000|0,000|100,00|0,00|"},
             {"txtProzent_0", "0", obstacle},
         }) {
        type(field, typed);
        EXPECT_EQ(texts(targets), shown) << typed;
    }
    EXPECT_EQ(heard(), "");
}

TEST_F(conWiegenTest, EachEditOfAMassReportsOnce)
{
    const std::string end = ") in procedure Istmasse_Change of Benutzersteuerelement conWiegen\n";
    const std::string division = "Zerna: Error 11 (Division durch Null" + end;
    struct Row {
        const char* name;
        const char* field;
        const char* typed;
        std::string messages;
        const char* shown;
    };
    for (const auto& [name, field, typed, messages, shown] : {
             Row{"two letters", "Istmasse_1", "70", division + division, "|||||Gesamtmasse = 70 mg"},
             {"too much", "Istmasse_0", "298,048", "", "90,932|9,0679|+40,93|80,98|19,02|Gesamtmasse = 368,05 mg"},
             {"exactly", "Istmasse_1", "701.952", "", "50|50|0,00|29,80|70,20|Gesamtmasse = 1000 mg"},
             {"nothing stale", "Istmasse_1", "7x", "Zerna: Error 13 (Typen unverträglich" + end, "|||||"},
         }) {
        type(field, typed);
        EXPECT_EQ(heard(), messages) << name;
        EXPECT_EQ(texts(weighed), shown) << name;
    }
    for (const char* const typed : {"-5", "1e39", "&HFF", "1.234,5", " 5", "0", "99999999999999999999", "1e30", ".5"}) {
        for (const char* const field : {"Istmasse_0", "txtVerlust", "Istmasse_1", "txtSollMasse"}) {
            type(field, typed);
            EXPECT_EQ(find<Wertfeld>(field).fehler().isEmpty(), ParseValue(typed) >= 0) << typed << ' ' << field;
        }
    }
}

TEST_F(conWiegenTest, EnterMakesTheRowTheReference)
{
    type("Istmasse_0", "26,98154");
    pressEnter("Istmasse_0");
    EXPECT_EQ(texts(targets), "298,048|63,546|100,00|0,00|");
    type("Istmasse_1", "6,3546");
    pressEnter("Istmasse_1", Qt::Key_Enter);
    EXPECT_EQ(texts({"Sollmasse_0", "Sollmasse_1", "Istmasse_0"}), "2,698|63,546|26,98154");
    EXPECT_EQ(heard(), "");
    type("Istmasse_1", "");
    pressEnter("Istmasse_1");
    EXPECT_EQ(heard(), "! Zerna: Masse von Kupfer ist nicht angegeben!\n");
    type("Istmasse_1", "x");
    heard();
    pressEnter("Istmasse_1");
    EXPECT_EQ(heard(),
        "Zerna: Error 13 (Typen unverträglich) in procedure Istmasse_KeyDown of Benutzersteuerelement conWiegen\n");
    type("txtProzent_0", "100");
    pressEnter("Istmasse_1");
    EXPECT_EQ(heard(), "! Zerna @ Marra: Atomprozente von Kupfer sind nicht angegeben!\n");
}

TEST_F(conWiegenTest, RowsComeAndGoWithTheirMasses)
{
    type("Istmasse_0", "26,98154");
    type("Istmasse_1", "63,546");
    type("txtVerlust", "1");
    struct Row {
        const char* button;
        bool visible;
        const char* percents;
        int lines;
    };
    for (const auto& [button, visible, percents, lines] :
        {Row{"cmdKom_0", true, "50|50|0", 11}, {"cmdKom_1", false, "50|50|0", 8}, {"cmdKom_1", false, "100", 5}}) {
        click(button);
        EXPECT_EQ(find("Istmasse_2").isVisible(), visible);
        EXPECT_EQ(texts({"IstProzent_0", "IstProzent_1", "IstProzent_2"}).find(percents), 0U);
        EXPECT_EQ(find<QListWidget>("lstVerlust").count(), lines);
    }
    EXPECT_EQ(heard(), "");
}

TEST_F(conWiegenTest, ProtocolIsCopiedAndSavedWhole)
{
    type("Istmasse_0", "298,048");
    type("Istmasse_1", "701,952");
    click("cmdWiegen_Kopieren");
    saveDialog.answer = {(folder / "p").string(), 1};
    click("cmdWiegen_Speichern");
    EXPECT_EQ(clipboard(),
        "Einwaage vom " + QDate::currentDate().toString("d.M.yyyy").toStdString()
            + "\r\nElement\tSoll [at%]\tSollmasse [mg]\tIstmasse [mg]\tIst [at%]\tMassenprozent [%]\r\n"
              "Al\t50\t298.048\t298.048\t50\t29.80\r\nCu\t50\t701.952\t701.952\t50\t70.20\r\n");
    EXPECT_EQ(bytesOf(folder / "p.dat"), clipboard());
}

} // namespace zerna
