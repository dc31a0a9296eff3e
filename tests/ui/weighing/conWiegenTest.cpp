#include "ui/weighing/conWiegen.h"

#include "core/Zahlentext.h"
#include "support/FakeDesk.h"
#include "ui/button/ButtonTheme.h"
#include "ui/controls/Wertfeld.h"
#include "ui/weighing/Wiegezeile.h"

namespace zerna {

/// Target masses, loss and protocol are recorded in stunde.txt.
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
};

TEST_F(conWiegenTest, AMassIsReportedWhenItsFieldIsLeftAndOnlyOnce)
{
    const std::vector<const char*> weighed{"IstProzent_0", "IstProzent_1", "Abweichung_0", "lblGesamtmasse"};
    const std::string end = ") in procedure Istmasse_Change of Benutzersteuerelement conWiegen\n";
    const std::string division = "Zerna: Error 11 (Division durch Null" + end;
    struct Row {
        const char* name;
        const char* field;
        const char* typed;
        const char* shown;
        const char* missing; // said below the masses
        std::string messages;
    };
    for (const auto& [name, field, typed, shown, missing, messages] : {
             Row{"the second first", "Istmasse_1", "70", "|||Gesamtmasse = 70 mg",
                 "Atomprozente nicht berechenbar: Aluminium hat 0 mg und ist der Bezug der Rechnung.", division},
             {"below one", "Istmasse_0", "0,85", "2,7803|97,22|−47,22|Gesamtmasse = 70,85 mg",
                 "Noch 297,198 mg Al, 631,952 mg Cu", ""},
             {"too much", "Istmasse_0", "298,048", "90,932|9,0679|+40,93|Gesamtmasse = 368,05 mg", "Noch 631,952 mg Cu",
                 ""},
             {"exactly", "Istmasse_1", "701.952", "50|50|0,00|Gesamtmasse = 1000 mg",
                 "Alles eingewogen, größte Abweichung 0,00 at%", ""},
             {"nothing stale", "Istmasse_1", "7x", "|||",
                 "Atomprozente nicht berechenbar: Kupfer hat keine gültige Masse.",
                 "Zerna: Error 13 (Typen unverträglich" + end},
         }) {
        SCOPED_TRACE(name);
        type(field, typed);
        EXPECT_EQ(texts(weighed), shown);
        EXPECT_EQ(text("lblHinweis"), missing);
        EXPECT_EQ(find("Istmasse_0").toolTip() == missing, !messages.empty());
        EXPECT_EQ(heard(), "") << "between keys";
        EXPECT_EQ(text(field), typed);
        for (const char* const next : {"txtVerlust", "txtSollMasse"})
            find(next).setFocus();
        QCoreApplication::processEvents();
        EXPECT_EQ(heard(), messages);
    }
    type("Istmasse_0", "");
    type("Istmasse_1", "7");
    EXPECT_EQ(find<QLineEdit>("Istmasse_0").placeholderText(), "fehlt");
    QTest::keyClick(&find("Istmasse_1"), Qt::Key_Return);
    EXPECT_EQ(heard(), division) << "a failure is followed by another edit: one box";
    find("txtVerlust").setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(heard(), "") << "told on Enter already";
}

TEST_F(conWiegenTest, HintSaysWhyThereAreNoTargetMasses)
{
    struct Row {
        const char* prozent;
        const char* shown;
    };
    for (const auto& [prozent, shown] : {
             Row{"0", "Sollmassen nicht berechenbar: Aluminium hat 0 at% und ist der Bezug der Rechnung.||"},
             {"1e-45", "Sollmassen nicht berechenbar: die Zahlen sind zu klein für die Rechnung.||"},
             {"50", "Noch 298,048 mg Al, 701,952 mg Cu|298,048|701,952"},
         }) {
        type("txtProzent_0", prozent);
        EXPECT_EQ(texts({"lblHinweis", "Sollmasse_0", "Sollmasse_1"}), shown) << prozent;
    }
}

TEST_F(conWiegenTest, OnlyMassesFromZeroOnAreNotMarked)
{
    for (const char* const typed : {"-5", "1e39", "&HFF", "1.234,5", " 5", "0", "99999999999999999999", "1e30", ".5"}) {
        for (const char* const field : {"Istmasse_0", "txtVerlust", "Istmasse_1", "txtSollMasse"}) {
            type(field, typed);
            EXPECT_EQ(find<Wertfeld>(field).fehler().isEmpty(), ParseValue(typed) >= 0) << typed << ' ' << field;
        }
    }
}

TEST_F(conWiegenTest, EnterMakesTheRowTheReference)
{
    struct Row {
        const char* field;
        const char* typed;
        Qt::Key key;
        const char* masses;
        const char* message;
    };
    for (const auto& [field, typed, key, masses, message] : {
             Row{"Istmasse_0", "26,98154", Qt::Key_Return, "298,048|63,546|26,98154", ""},
             {"Istmasse_1", "6,3546", Qt::Key_Enter, "2,698|63,546|26,98154", ""},
             {"Istmasse_1", "", Qt::Key_Return, "2,698|63,546|26,98154",
                 "! Zerna: Masse von Kupfer ist nicht angegeben!\n"},
         }) {
        type(field, typed);
        QTest::keyClick(&find(field), key);
        EXPECT_EQ(texts({"Sollmasse_0", "Sollmasse_1", "Istmasse_0"}), masses) << typed;
        EXPECT_EQ(heard(), message) << typed;
    }
    type("txtProzent_0", "100");
    EXPECT_EQ(texts({"Sollmasse_0", "Sollmasse_1"}), "1000,000|0,000");
    QTest::keyClick(&find("Istmasse_1"), Qt::Key_Return);
    EXPECT_EQ(heard(), "! Zerna @ Marra: Atomprozente von Kupfer sind nicht angegeben!\n");
}

TEST_F(conWiegenTest, AMassGoesWithItsElementAndCanBeHadBack)
{
    const std::vector<const char*> seen{"Istmasse_0", "Istmasse_1", "lblGesamtmasse", "lblAbgelegt"};
    const auto isOffered = [this] { return find("cmdZurueckholen").isVisible(); };
    type("Istmasse_0", "298,048");
    type("Istmasse_1", "703");
    choose("cmbElement_1", "Pb");
    EXPECT_EQ(texts(seen), "298,048||Gesamtmasse = 298,05 mg|Gelöscht, da nicht mehr in der Legierung: Kupfer 703 mg");
    click("cmdKom_1");
    EXPECT_FALSE(isOffered()) << "its row is gone";
    click("cmdKom_0");
    choose("cmbElement_1", "Cu");
    EXPECT_TRUE(isOffered());
    find("cmdZurueckholen").setFocus();
    QTest::keyClick(&find("cmdZurueckholen"), Qt::Key_Space);
    EXPECT_EQ(texts(seen), "298,048|703|Gesamtmasse = 1001 mg|");
    EXPECT_EQ(text("IstProzent_1"), "50,037");
    click("cmdKom_1");
    click("cmdKom_0");
    EXPECT_EQ(texts(seen), "298,048||Gesamtmasse = 298,05 mg|Gelöscht, da nicht mehr in der Legierung: Kupfer 703 mg");
    type("Istmasse_1", "7");
    EXPECT_EQ(texts(seen), "298,048|7|Gesamtmasse = 305,05 mg|") << "another mass takes its place";
    EXPECT_FALSE(isOffered());
    EXPECT_EQ(find("lblGesamtmasse").toolTip(), "305,048 mg");
}

TEST_F(conWiegenTest, SpeaksOfDeviationsOnlyWhenAllIsWeighedAndStaysInPlace)
{
    const auto places = [this] {
        QList<QRect> all;
        for (const char* const name : {"Label_1", "Istmasse_1", "MassProzent_1", "lblHinweis", "txtVerlust"})
            all += QRect(find(name).mapTo(window.get(), QPoint(0, 0)), find(name).size());
        return all;
    };
    const QList<QRect> before = places();
    EXPECT_EQ(texts({"SollMassProzent_0", "MassProzent_0"}), "29,80|") << "wanted and weighed are kept apart";
    type("Istmasse_0", "300,2");
    EXPECT_EQ(texts({"IstProzent_0", "Abweichung_0", "MassProzent_0"}), "100||100,00");
    QTest::keyClick(&find("Istmasse_0"), Qt::Key_Return);
    EXPECT_EQ(texts({"Bezug_0", "Bezug_1", "Sollmasse_1", "lblHinweis"}), "Bezug||707,021|Noch 707,021 mg Cu");
    EXPECT_EQ(find("Bezug_0").toolTip(), "Die übrigen Sollmassen beziehen sich auf 300,2 mg");
    type("Istmasse_1", "705,9");
    EXPECT_EQ(texts({"Abweichung_0", "Abweichung_1"}), "+0,04|−0,04");
    choose("cmbElement_1", "Pb");
    QCoreApplication::processEvents();
    EXPECT_EQ(places(), before) << "nothing moves";
    EXPECT_EQ(text("Bezug_0"), "") << "a new composition sets all target masses";
}

} // namespace zerna
