#include "programm/Stapelrechner.h"

#include <random>
#include <typeinfo>

#include "core/ElementCsv.h"
#include "core/Elementdatei.h"
#include "model/rechnung/Ergebnislage.h"
#include "model/rechnung/Groessenauswahl.h"
#include "model/rechnung/Groessentabelle.h"
#include "model/rechnung/Legierungsliste.h"
#include "support/FilesTest.h"

namespace {

int exceptions = 0;

} // namespace

// The linker calls the original __real_NAME and this __wrap_NAME.
extern "C" [[noreturn]] void __real___cxa_throw(void* object, std::type_info* type, void (*destructor)(void*));
extern "C" [[noreturn]] void __wrap___cxa_throw(void* object, std::type_info* type, void (*destructor)(void*))
{
    ++exceptions;
    __real___cxa_throw(object, type, destructor);
}

namespace zerna {

struct StapelrechnerTest : FilesTest {
    StapelrechnerTest()
    {
        saveElements(folder / "e.dat", readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv")));
        kern.loadFile(folder / "e.dat");
        einzeln.loadFile(folder / "e.dat");
    }

    /// All quantities of an alloy and what is to be said about it, or why there are none.
    std::string amStueck(Stapelrechner& welcher, const std::string& legierung)
    {
        if (!welcher.rechne(legierung))
            return welcher.grund();
        std::string zeile;
        liste.append(zeile, "", welcher.calc());
        return zeile + welcher.hinweis();
    }

    /// The same by way of the command for one alloy.
    std::string allein(const std::vector<std::string>& komponenten, Anteilseinheit einheit = Anteilseinheit::Atom)
    try {
        std::vector<Komponentenangabe> angaben;
        for (const std::string& text : komponenten)
            angaben.push_back(komponentenangabe(text, einheit));
        einzeln.setAlloy(angaben, einheit);
        const std::vector<std::vector<std::string>> known = groessentabelle(einzeln.calc()).zeilen;
        std::string zeile;
        auto next = known.begin();
        for (const Groesse& groesse : ergebniszeilen()) {
            zeile += '\t';
            if (next != known.end() && next->front() == groesse.bezeichnung())
                zeile += (next++)->at(1);
        }
        const Ergebnislage lage = ergebnislage(einzeln.eingabe(), einzeln.eingabe(), einzeln.calc());
        const std::string doubt = lage.befund ? befundgrund(einzeln.eingabe(), *lage.befund) : "";
        return zeile + '\n' + einzeln.hinweis() + (einzeln.hinweis().empty() || doubt.empty() ? "" : "; ") + doubt;
    } catch (const std::runtime_error& error) {
        return error.what();
    }

    template <class List>
    const auto& oneOf(const List& list)
    {
        return list[random() % std::size(list)];
    }

    std::mt19937 random{9};
    Rechenkern kern{boxes};
    Rechenkern einzeln{boxes};
    Stapelrechner rechner{kern};
    Stapelrechner massenrechner{kern, Anteilseinheit::Masse};
    Legierungsliste liste{groessenauswahl({}).groessen, Legierungsliste::Form::Text};
};

TEST_F(StapelrechnerTest, AnswersLikeTheCommandForOneAlloy)
{
    const std::string symbole[] = {"Al", "Cu", "Mg", "Fe", "B", "cu", "ZN"};
    const std::string prozente[] = {"0", "12,5", "33.3", "1e1", "60", "0.5", "100", "-3", "120"};
    const std::string dichten[] = {"", "", ":dichte=kristallin", ":dichte=2,7", ":dichte=fluessig", ":dichte=-1"};
    const std::string valenzen[] = {
        "", "", ":valenz=2", ":valenz=s", ":valenz=3/2", ":valenz=z_Cu", ":valenz=0-3", ":valenz=0"};
    const std::string faults[] = {"", "At=5", "=5", "Xx=5", "Al=x", "Al=1e999", "Al=1:", "Al=1:dichte=amorph",
        "B=1:valenz=d", "Al=1:valenz=1/0", "Al=1:valenz=foo(1)", "Al=1:dichte=0", "Al=1:farbe=2",
        "Al=1:dichte=2:valenz=1:dichte=2"};
    int failures = 0;
    for (int i = 0; i < 2000; ++i) {
        std::vector<std::string> komponenten(1 + random() % 5);
        for (std::string& k : komponenten)
            k = oneOf(symbole) + "=" + oneOf(prozente) + oneOf(dichten) + oneOf(valenzen);
        if (const std::string& fault = oneOf(faults); i % 3 == 0 && !fault.empty())
            komponenten.back() = fault;
        std::string legierung = oneOf(std::array<std::string, 2>{"", " \t"});
        for (const std::string& k : komponenten)
            legierung += k + (random() % 2 == 0 ? " " : "\t ");
        ASSERT_EQ(amStueck(rechner, legierung), allein(komponenten)) << legierung;
        ASSERT_EQ(amStueck(massenrechner, legierung), allein(komponenten, Anteilseinheit::Masse)) << legierung;
        failures += rechner.grund().empty() ? 0 : 1;
    }
    EXPECT_GT(failures, 400);
    EXPECT_LT(failures, 1000);
    EXPECT_EQ(amStueck(rechner, ""), allein({}));
    EXPECT_EQ(amStueck(rechner, "Al=1 Al=1 Al=1 Al=1 Al=1 Al=1"), allein(std::vector<std::string>(6, "Al=1")));
}

TEST_F(StapelrechnerTest, TakesFormulas)
{
    const struct {
        const char* name;
        std::string formula;
        std::vector<std::string> komponenten;
        Anteilseinheit einheit;
        std::string hinweis;
    } rows[] = {{"at%", "Al60Cu40", {"Al=60", "Cu=40"}, Anteilseinheit::Atom, ""},
        {"blanks", "Al60 Cu40", {"Al=60", "Cu=40"}, Anteilseinheit::Atom, ""},
        {"scaled", "CuAl", {"Cu=50", "Al=50"}, Anteilseinheit::Atom, "Mengen auf 100 % umgerechnet"},
        {"mass %", "Al-4Cu-1,5Mg wt%", {"Al=94,5", "Cu=4", "Mg=1,5"}, Anteilseinheit::Masse, ""},
        {"doubtful", "He", {"He=100"}, Anteilseinheit::Atom, ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(amStueck(rechner, row.formula), allein(row.komponenten, row.einheit) + row.hinweis);
        EXPECT_EQ(amStueck(rechner, "Al=10"), allein({"Al=10"})) << "its unit goes with it";
    }
    EXPECT_EQ(amStueck(massenrechner, "Al60Cu40"), allein({"Al=60", "Cu=40"}, Anteilseinheit::Masse));
    EXPECT_EQ(amStueck(rechner, "Al60Qx40"), "Legierung \"Al60Qx40\": Element \"Qx\" ist nicht bekannt (Zeichen 5)");
    EXPECT_EQ(amStueck(rechner, "At50Al50"), "Komponente \"At\": keine Dichte bekannt, dichte=ZAHL angeben");
}

TEST_F(StapelrechnerTest, ThrowsNothingForWrongTextsAndForgetsOldOnes)
{
    const auto thrown = [this](const std::string& legierung) {
        const int before = exceptions;
        amStueck(rechner, legierung);
        return exceptions - before;
    };
    for (const char* const wrong : {"", "Qx", "Al60Qx40", "Al=60 Xx=40", "Al=x", "Al=1e999", "Al=1:dichte=amorph",
             "B=1:valenz=d", "Al=1:dichte=0", "Al=1 Al=1 Al=1 Al=1 Al=1 Al=1"})
        EXPECT_EQ(thrown(wrong), 0) << wrong;
    for (const std::string wrong : {"1/0", "1e39"}) { // ends with an exception when it is read, once
        thrown("Al=5:valenz=" + wrong);
        EXPECT_EQ(thrown("Al=7:valenz=" + wrong), 0) << wrong;
    }
    const std::string tooLong = "Al=5:valenz=1/" + std::string(60, '0'); // to be remembered
    EXPECT_GT(thrown(tooLong), 0);
    EXPECT_GT(thrown(tooLong), 0);
    EXPECT_EQ(amStueck(rechner, tooLong), allein({tooLong}));
    const std::string sound = amStueck(rechner, "Al=60 Cu=40");
    for (int i = 1; i < 20000; ++i)
        ASSERT_TRUE(rechner.rechne("Al=100:dichte=" + std::to_string(i))) << i << rechner.grund();
    EXPECT_EQ(amStueck(rechner, "Al=60 Cu=40"), sound);
}

TEST_F(StapelrechnerTest, AnAlloyIsOneLineAndOneColumnWhateverIsBetweenItsComponents)
{
    const auto begin = [this](Legierungsliste::Form form, std::string_view legierung) {
        std::string zeile;
        Legierungsliste({}, form).append(zeile, legierung, rechner.calc());
        return zeile;
    };
    ASSERT_TRUE(rechner.rechne("Al60\rCu40")) << rechner.grund();
    EXPECT_EQ(begin(Legierungsliste::Form::Text, "Al60\r\t\v\n\x1FµCu40"), "Al60     µCu40\n");
    EXPECT_EQ(
        begin(Legierungsliste::Form::Json, "\"Al60\r\t\v\n\x1FµCu40"), "{\"Legierung\": \"\\\"Al60     µCu40\"}\n");
}

} // namespace zerna
