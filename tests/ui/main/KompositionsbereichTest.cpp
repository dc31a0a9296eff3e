#include "ui/main/Kompositionsbereich.h"

#include "support/FakeDesk.h"
#include "ui/controls/Wertfeld.h"

namespace zerna {

struct KompositionsbereichTest : FakeDesk {
    std::string fault(const char* name) const { return find<Wertfeld>(name).fehler().toStdString(); }

    /// The at% of the visible rows.
    std::string prozente() const
    {
        std::string all;
        for (int row = 0; row < 5; ++row) {
            const std::string name = "txtProzent_" + std::to_string(row);
            if (find(name.c_str()).isVisible())
                all += text(name.c_str()) + ' ';
        }
        return all;
    }
};

TEST_F(KompositionsbereichTest, TypedPercentReachesResultsAndBalanceRow)
{
    openAluminiumCopper();
    struct Row {
        const char* field;
        const char* typed;
        const char* shown;
        const char* fermi;
        bool marked;
    };
    for (const auto& [field, typed, shown, fermi, marked] : {
             Row{"txtProzent_0", "60", "60 40 ", "10,294 eV", false},
             {"txtProzent_0", "60x", "60x 40 ", "10,294 eV", true},
             {"txtProzent_0", "", " 40 ", "10,294 eV", false},
             {"txtProzent_0", "100", "100 0 ", "11,659 eV", false},
             {"txtProzent_1", "77", "100 77 ", "11,659 eV", false},
         }) {
        SCOPED_TRACE(typed);
        type(field, typed);
        EXPECT_EQ(prozente(), shown);
        EXPECT_EQ(text("lblMFE_7"), fermi);
        EXPECT_EQ(!fault(field).empty(), marked);
    }
    find("txtProzent_0").setFocus();
    EXPECT_EQ(prozente(), "100 0 ") << "what was typed into the balance row does not stay";
}

TEST_F(KompositionsbereichTest, StoredCountIsOneLessThanTheRows)
{
    for (const auto& [stored, rows] : {std::pair("4", "50 50 0 0 0 "), {"5", "100 "}, {"abc", "50 50 0 "}}) {
        settings["Komponenten"] = stored;
        open();
        EXPECT_EQ(prozente(), rows) << stored;
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(KompositionsbereichTest, AddingAndRemovingShowsAndStoresTheCount)
{
    settings["Komponenten"] = "3";
    open();
    type("txtProzent_0", "16,3");
    type("txtProzent_1", "20,4");
    struct Row {
        const char* name;
        const char* button;
        const char* count;
        const char* stored;
        const char* shown;
    };
    for (const auto& [name, button, count, stored, shown] : {
             Row{"all", "cmdKom_0", "5", "4", "16,3 20,4 0 63,3 0 "},
             {"one more than all", "cmdKom_0", "1", "0", "100 "},
             {"one less than the first", "cmdKom_1", "5", "4", "100 20,4 0 63,3 -83,7 "},
         }) {
        SCOPED_TRACE(name);
        click(button);
        EXPECT_EQ(prozente(), shown);
        EXPECT_EQ(text("lblAnzahl"), count);
        EXPECT_EQ(settings["Komponenten"], stored);
    }
}

TEST_F(KompositionsbereichTest, ChoicesFillTheFields)
{
    openAluminiumCopper();
    struct Row {
        const char* list;
        const char* entry;
        const char* field;
        const char* shown;
        bool editable;
    };
    for (const auto& [list, entry, field, shown, editable] : {
             Row{"cmdDichte_0", "<andere>", "txtDichte_0", "0", true},
             {"cmdDichte_0", "kristallin", "txtDichte_0", "2,7", false},
             {"cmbValenz_0", "p-Elektronen", "txtValenz_0", "1", false},
             {"cmbValenz_0", "<andere>", "txtValenz_0", "0", true},
             {"cmbElement_0", "At", "txtDichte_0", "0", true}, // no density is known
             {"cmbElement_0", "Fe", "txtDichte_0", "7,035", false},
         }) {
        SCOPED_TRACE(entry);
        choose(list, entry);
        EXPECT_EQ(text(field), shown);
        EXPECT_EQ(find(field).isEnabled(), editable);
    }
    EXPECT_EQ(find<QComboBox>("cmbDiagramm_Element").itemText(0), "Fe");
    open();
    EXPECT_EQ(texts({"cmbElement_0", "cmbElement_1", "lblElement_0"}), "Fe|Cu|Eisen") << "stored when chosen";
    settings["Element_0"] = "fe"; // no entry of the list
    open();
    EXPECT_EQ(texts({"cmbElement_0", "cmbElement_1", "lblElement_0"}), "|Cu|");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(KompositionsbereichTest, TypedValuesReachTheRowThatHasTheFocus)
{
    openAluminiumCopper();
    for (const char* const list : {"cmdDichte_0", "cmbValenz_0", "cmdDichte_1", "cmbValenz_1"})
        choose(list, "<andere>");
    EXPECT_EQ(text("lblMFE_2"), "") << "without density";
    for (const auto& [field, typed] : {std::pair("txtDichte_0", "2.7"), {"txtDichte_1", "8,96"}, {"txtValenz_0", "3"},
             {"txtValenz_1", "1"}, {"txtProzent_0", "60"}})
        type(field, typed);
    EXPECT_EQ(texts({"lblMFE_2", "lblMFE_7"}), "5,204 g/cm³|10,294 eV");
    type("txtDichte_1", "9x");
    EXPECT_EQ(text("lblMFE_2"), "5,22 g/cm³") << "the last number holds";
    EXPECT_EQ(fault("txtDichte_1"), "Keine gültige Zahl (Typen unverträglich)");
}

TEST_F(KompositionsbereichTest, RowsOfOneElementShowWhatIsEnteredInTheOther)
{
    openAluminiumCopper();
    choose("cmbElement_1", "Al");
    choose("cmbValenz_0", "<andere>");
    type("txtValenz_0", "5/2");
    choose("cmdDichte_1", "<andere>");
    type("txtDichte_1", "2,5");
    EXPECT_EQ(texts({"cmdDichte_0", "txtDichte_0", "cmbValenz_1", "txtValenz_1"}), "<andere>|2,5|<andere>|5/2");
}

TEST_F(KompositionsbereichTest, FormulasEchoTheirValueOrAreMarked)
{
    openAluminiumCopper();
    choose("cmbValenz_0", "<andere>");
    struct Row {
        const char* typed;
        const char* echo;
        const char* reason;
        const char* valence; // the mean with copper
        std::size_t messages; // one however often it is evaluated, and one for each further letter
    };
    for (const auto& [typed, echo, reason, valence, messages] : {
             Row{"3/2", "= 1,5", "", "1,25", 0},
             {"2+1/0", "", "Division durch Null (Zeichen 4)", "", 0},
             {"foo(1)", "", "Funktion \"foo\" ist nicht definiert (Zeichen 1)", "", 1},
             {"foo(1)+1", "", "Funktion \"foo\" ist nicht definiert (Zeichen 1)", "", 3},
             {"", "", "", "0,5", 0},
         }) {
        SCOPED_TRACE(typed);
        boxes.shown.clear();
        type("txtValenz_0", typed);
        EXPECT_EQ(find<Wertfeld>("txtValenz_0").echo().toStdString(), echo);
        EXPECT_EQ(fault("txtValenz_0"), reason);
        EXPECT_TRUE(*reason == '\0' || find("txtValenz_0").toolTip().toStdString() == reason);
        EXPECT_EQ(text("txtMFE_0"), valence);
        for (const char* const result : {"lblMFE_11", "txtMFE_1", "txtMFE_2"})
            EXPECT_EQ(text(result).empty(), *reason != '\0') << "no plausible number from a slip in " << result;
        EXPECT_EQ(boxes.shown.size(), messages);
    }
}

} // namespace zerna
