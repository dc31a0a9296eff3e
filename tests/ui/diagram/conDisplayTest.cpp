#include "ui/diagram/conDisplay.h"

#include "support/FakeDesk.h"
#include "support/FilesTest.h"
#include "ui/diagram/Bildausgabe.h"

namespace zerna {

/// The density of aluminium and copper falls from 2 to 1: four pixels to the right and two and a half down per at%.
struct conDisplayTest : FakeDesk {
    conDisplayTest()
    {
        openAluminiumCopper();
        display.emplace(*programm, Dialoge{saveDialog, inputBox, openDialog});
        display->resize(460, 330);
        display->setKompositionBereit(true);
        display->Element_Add(1, "Cu", -100);
        display->Element_Add(0, "Al", 50);
        display->setVariablesElement(0);
        draw(1, 2);
    }

    void draw(float first, float second)
    {
        display->setDichtefelder({first, second});
        display->Zeichne_Diagramm_2D(3, 0);
    }

    QImage picture(int ratio = 1)
    {
        return imageOf(display->diagramm().maler(), {display->size(), display->font(), static_cast<double>(ratio)});
    }

    /// The one colour of a part, transparent if it has several.
    static QColor colour(QImage part)
    {
        const QImage before = part;
        part.fill(before.pixelColor(0, 0));
        return part == before ? before.pixelColor(0, 0) : Qt::transparent;
    }

    std::optional<conDisplay> display;
};

TEST_F(conDisplayTest, EachMappedPixelHasTheFullColour)
{
    display->Zeichne_Punkt(10, 1, 0x0000FF); // red
    display->Zeichne_Punkt(59, 1, 0x00FF00); // a green spike
    display->Zeichne_LinieZu(60, 2, 0x00FF00);
    display->Zeichne_LinieZu(61, 1, 0x00FF00);
    const struct {
        const char* name;
        int x, y;
        QColor expected;
    } rows[] = {
        {"a point", 100, 275, Qt::red},
        {"the tip of the spike", 300, 25, Qt::green},
        {"above the curve", 220, 120, Qt::white},
        {"a tick of the y axis", 53, 270, Qt::black},
    };
    for (const int ratio : {1, 2, 3}) {
        const QImage image = picture(ratio);
        const auto at = [&](int x, int y) { return colour(image.copy(x * ratio, y * ratio, ratio, ratio)); };
        for (int i = 0; i < 58; i += 2)
            EXPECT_EQ(at(60 + 4 * i, 25 + 5 * i / 2), QColor(Qt::blue)) << i << " at " << ratio;
        for (const auto& row : rows)
            EXPECT_EQ(at(row.x, row.y), row.expected) << row.name << " at " << ratio;
    }
    display->Display_Loeschen();
    EXPECT_EQ(picture().pixelColor(300, 25), QColor(Qt::white));
    EXPECT_EQ(picture().pixelColor(220, 125), QColor(Qt::blue)) << "the series is the background";
}

TEST_F(conDisplayTest, UnknownValuesLeaveAGap)
{
    for (const auto& element : programm->ElementCollection())
        element->setDichte(element->Masse());
    display->Zeichne_Diagramm_2D(4, 0); // no volume at 50 at%, and so no particles
    EXPECT_EQ(picture().pixelColor(256, 153), QColor(Qt::blue)) << "49 at%";
    EXPECT_EQ(picture().pixelColor(260, 150), QColor(Qt::white)) << "50 at%";
    EXPECT_EQ(picture().pixelColor(264, 147), QColor(Qt::blue)) << "51 at%";
}

TEST_F(conDisplayTest, LabelsAreWholeAtAnyFont)
{
    draw(1090, 900); // the topmost label is the widest
    for (const int points : {4, 9, 20, 30, 80}) {
        display->setFont(QFont(display->font().family(), points));
        EXPECT_NE(colour(picture().copy(5, 0, 46, 300)), QColor(Qt::white)) << points;
        EXPECT_EQ(colour(picture().copy(52, 0, 1, 300)), QColor(Qt::white)) << "runs into the ticks at " << points;
        EXPECT_EQ(colour(picture().copy(0, 329, 460, 1)), QColor(Qt::white)) << "cut off below at " << points;
    }
}

TEST_F(conDisplayTest, FaultsKeepThePictureAndTheErrorDisplayReplacesIt)
{
    const QImage before = picture();
    const auto drawing = [this](float density) { return errorNumber([&] { draw(density, density); }); };
    EXPECT_EQ(drawing(0), 11) << "an empty range";
    EXPECT_EQ(drawing(3.3e38F), 6) << "a margin too large for a single";
    const auto choosing = [this](int slot) { return errorNumber([&] { display->setVariablesElement(slot); }); };
    EXPECT_EQ(choosing(5), 9) << "no such slot";
    EXPECT_EQ(choosing(-1), 9) << "no such slot";
    EXPECT_EQ(choosing(4), 91) << "an empty slot";
    display->setKompositionBereit(false);
    draw(7, 8);
    EXPECT_EQ(picture(), before);
    display->Zeichne_Fehler();
    EXPECT_EQ(colour(picture().copy(61, 0, 399, 150)), QColor(Qt::white)) << "the text begins at half the height";
    EXPECT_NE(colour(picture().copy(160, 150, 200, 40)), QColor(Qt::white));
}

} // namespace zerna
