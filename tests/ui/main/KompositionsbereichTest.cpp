#include "ui/main/Kompositionsbereich.h"

#include "support/FakeDesk.h"
#include "ui/controls/Wertfeld.h"

namespace zerna {

/// What the fields show after each edit is recorded in stunde.txt.
struct KompositionsbereichTest : FakeDesk {
    KompositionsbereichTest() { openAluminiumCopper(); }
};

TEST_F(KompositionsbereichTest, FormulasEchoTheirValueOrAreMarkedAndSpokenOfOnLeaving)
{
    choose("cmbValenz_0", "<andere>");
    struct Row {
        const char* typed;
        const char* echo;
        const char* reason;
        std::size_t messages; // of each function once, when the field is left
    };
    for (const auto& [typed, echo, reason, messages] : {
             Row{"3/2", "= 1,5", "", 0},
             {"2+1/0", "", "Valenz: Division durch Null (Zeichen 4)", 0},
             {"foo(1)+1", "", "Valenz: Funktion \"foo\" ist nicht definiert (Zeichen 1)", 1},
             Row{"foo(1)+bar(foo(2))", "", "Valenz: Funktion \"foo\" ist nicht definiert (Zeichen 1)", 2},
             {"", "= 0", "", 0},
         }) {
        SCOPED_TRACE(typed);
        boxes.shown.clear();
        type("txtValenz_0", typed);
        EXPECT_EQ(find<Wertfeld>("txtValenz_0").echo().toStdString(), echo);
        const std::string shown = find<Wertfeld>("txtValenz_0").fehler().toStdString();
        EXPECT_EQ(shown.substr(0, shown.find(". ")), reason);
        EXPECT_TRUE(boxes.shown.empty()) << "between keys";
        QTest::keyClick(&find("txtValenz_0"), Qt::Key_Return);
        QTest::keyClick(&find("txtValenz_0"), Qt::Key_Tab);
        EXPECT_EQ(boxes.shown.size(), messages);
    }
}

TEST_F(KompositionsbereichTest, OneListChoosesTheDensityOfAllRows)
{
    EXPECT_EQ(text("cmbDichteart"), "kristallin");
    choose("cmbElement_1", "Se");
    EXPECT_EQ(text("cmbDichteart"), "") << "they differ";
    choose("cmbDichteart", "flüssig");
    EXPECT_EQ(texts({"cmdDichte_0", "txtDichte_0", "cmdDichte_1", "txtDichte_1"}), "flüssig|2,377|flüssig|3,99");
    EXPECT_FALSE(find("lblDichteart").isVisible());
    choose("cmbDichteart", "amorph");
    EXPECT_EQ(texts({"cmdDichte_0", "cmdDichte_1", "lblDichteart"}),
        "flüssig|amorph|Keine Dichte „amorph“ bekannt, unverändert: Al");
    EXPECT_TRUE(find("lblDichteart").isVisible());
    type("txtProzent_0", "40");
    EXPECT_FALSE(find("lblDichteart").isVisible()) << "until the next entry";
}

} // namespace zerna
