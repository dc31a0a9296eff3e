#include "ui/main/Tafelfaerbung.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"
#include "ui/main/Elementzelle.h"
#include "ui/platform/Farben.h"

namespace zerna {

struct TafelfaerbungTest : FilesTest {
    Zellfuellung fuellung(const Tafelfaerbung& faerbung, std::string_view egk, std::size_t index, bool aufDunklem)
    {
        clsElement element(files, boxes);
        element.setEGK(egk);
        return faerbung.fuellung(element, index, aufDunklem);
    }
};

TEST_F(TafelfaerbungTest, ValuesSpreadOverTheWholeScale)
{
    const Farbe lowest{68, 1, 84};
    const Farbe middle{33, 145, 140};
    const Farbe highest{253, 231, 37};
    struct Row {
        const char* name;
        std::vector<float> werte;
        std::vector<std::optional<Farbe>> expected; // none: hatched
        float kleinster;
        float groesster;
    };
    const Row rows[]{
        {"gap first", {Unbekannt, 2, -6, -2}, {{}, highest, lowest, middle}, -6, 2},
        {"all equal", {7, Unbekannt, 7}, {middle, {}, middle}, 7, 7},
        {"none known", {Unbekannt}, {{}}, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Tafelfaerbung faerbung({"Masse [amu]", {}, row.werte});
        for (std::size_t i = 0; i < row.werte.size(); ++i) {
            const Zellfuellung expected{row.expected.at(i), std::nullopt, !row.expected.at(i)};
            EXPECT_EQ(fuellung(faerbung, "H", i, false), expected) << "no sign of the group, value " << i;
        }
        EXPECT_EQ(faerbung.skala().kleinster(), row.kleinster);
        EXPECT_EQ(faerbung.skala().groesster(), row.groesster);
    }
    EXPECT_TRUE(Tafelfaerbung(PSEReihe()).nachGruppe()) << "a series without values";
    clsElement element(files, boxes);
    const Tafelfaerbung masse({"Masse [amu]", {}, {63.546F, Unbekannt}});
    EXPECT_EQ(masse.beschreibung(element, 0), "Masse [amu]: 63,546");
    EXPECT_EQ(masse.beschreibung(element, 1), "Masse [amu]: unbekannt");
    element.setEGK("N");
    EXPECT_EQ(Tafelfaerbung().beschreibung(element, 0), "Nebengruppen");
    EXPECT_EQ(Tafelfaerbung().wert(0), std::nullopt);
}

TEST_F(TafelfaerbungTest, AllThatCellsShowCanBeRead)
{
    std::vector<QColor> grounds;
    for (int i = 0; i <= 1000; ++i)
        grounds.push_back(toQt(farbskala(i / 1000.0)));
    for (const Elementgruppe& gruppe : elementgruppen()) {
        grounds.push_back(toQt(gruppe.hell));
        grounds.push_back(toQt(gruppe.dunkel));
    }
    for (const QColor& missing : {QColor(Qt::white), QColor(239, 239, 239), QColor(49, 54, 59), QColor(Qt::black)})
        grounds.push_back(missing);
    for (const QColor& ground : grounds) {
        const QColor text = textOn(ground);
        EXPECT_GE(kontrast(text, ground), 4.5) << ground.name().toStdString();
        EXPECT_GE(kontrast(textOn(text), text), 4.5) << "numbers on their plate";
        EXPECT_GE(kontrast(zeichenfarbe(ground, text), ground), 4.5) << ground.name().toStdString();
        EXPECT_GE(kontrast(linienfarbe(ground, text), ground), 3) << ground.name().toStdString();
    }
    EXPECT_EQ(lesbar(Qt::white, QColor(48, 140, 198)), QColor(Qt::black)) << "a chosen line of the usual style";
    EXPECT_EQ(lesbar(Qt::white, QColor(0, 90, 160)), QColor(Qt::white));
    EXPECT_NEAR(kontrast(Qt::white, QColor(118, 118, 118)), 4.54, 0.01) << "the guidelines' own example";
}

} // namespace zerna
