#include "bild/Kurvenlayout.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "bild/Kurvenfarben.h"

namespace zerna {

namespace {

constexpr double Size = 16;

/// A font whose letters are 7 wide; bold ones 8.
Textmasse masse(const Schrift& schrift)
{
    const double letter = (schrift.fett ? 8 : 7) * schrift.grad;
    const auto width = [letter](std::string_view text) {
        return letter * static_cast<double>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
    };
    return {width, Size * schrift.grad};
}

/// A picture with everything, of values as small as those of the Hall coefficient.
Kurvenbild vollesBild(double largest)
{
    Kurvenbild bild;
    bild.titel = "Größe [m³/As] über dem Anteil von Al";
    bild.untertitel = "Al 60 at% (2,7 g/cm³, z = 3), Cu 40 at% (8,96 g/cm³, z = 1), Zn 0 at% (7,13 g/cm³, z = 2)";
    bild.x = {"Al [at%]", {0, 100}};
    bild.y = {"Größe [m³/As]", {-largest, largest / 3}};
    bild.rechts = Achse{"Dichte [g/cm³]", {0, 10}};
    for (std::size_t i = 0; i < Kurvenfarben; ++i)
        bild.kurven.push_back({"Kurve mit einem Namen " + std::to_string(i), {{0, 0}, {100, 1}}, {0, 0, 255}});
    bild.marken = {{20, "20 at%", {}}, {21, "21 at%", {}}, {99, "99 at%", {}}};
    bild.hinweise = {"Die Kurve geht nicht durch die Legierung, weil die anderen Anteile fest bleiben."};
    return bild;
}

/// A picture with nothing but its axes.
Kurvenbild achsenbild(const Achse& x, const Achse& y)
{
    Kurvenbild bild;
    bild.x = x;
    bild.y = y;
    return bild;
}

bool overlap(const Rechteck& a, const Rechteck& b)
{
    constexpr double Touch = 1e-9;
    return a.left + Touch < b.left + b.width && b.left + Touch < a.left + a.width && a.top + Touch < b.top + b.height
        && b.top + Touch < a.top + a.height;
}

/// Why a layout is wrong; empty if all texts lie inside and apart.
std::string fault(const Kurvenlayout& layout, double width, double height)
{
    constexpr double HalfLabel = Size / 2; // the lowest y label may reach that far below the plot
    std::vector<Textstelle> texts = layout.texte;
    texts.insert(texts.end(), layout.kerntexte.begin(), layout.kerntexte.end());
    texts.insert(texts.end(), layout.markentexte.begin(), layout.markentexte.end());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const Rechteck& box = texts[i].box;
        if (box.left < 0 || box.top < -1e-9 || box.left + box.width > width + 1e-9
            || box.top + box.height > height + 1e-9)
            return "outside: " + texts[i].text;
        if (!texts[i].senkrecht && breiteOf(texts[i].text, masse(texts[i].schrift)) > box.width + 1e-9)
            return "cut: " + texts[i].text;
        for (std::size_t k = 0; k < i; ++k)
            if (overlap(box, texts[k].box))
                return texts[k].text + " on " + texts[i].text;
    }
    return layout.plot.top + layout.plot.height + HalfLabel > height ? "plot outside" : "";
}

std::string labels(const Kurvenlayout& layout)
{
    std::string all;
    for (const Textstelle& stelle : layout.kerntexte)
        all += stelle.text + '|';
    return all;
}

} // namespace

TEST(KurvenlayoutTest, TextsLieInsideAndApartInEveryStyleAndSize)
{
    constexpr std::pair<double, double> Groessen[] = {{460, 330}, {300, 240}, {700, 500}, {1200, 800}, {2400, 1400}};
    for (const double largest : {3.4e-11, 1.0, 9.999, 1096.0, 2.5e28}) {
        for (const auto& [width, height] : Groessen) {
            for (const bool isRound : {false, true}) {
                SCOPED_TRACE(std::to_string(largest) + ", " + std::to_string(width) + (isRound ? ", round" : ""));
                const Kurvenbild bild = vollesBild(largest);
                const Bildstil stil{.rundeTeilung = isRound};
                EXPECT_EQ(fault(layOut(bild, width, height, stil, masse), width, height), "");
                const Ausschnitt part{{40.25, 41.5}, {largest * 0.123, largest * 0.124}, {3, 4}};
                EXPECT_EQ(fault(layOut(bild, width, height, stil, masse, part), width, height), "") << "zoomed";
            }
        }
    }
}

TEST(KurvenlayoutTest, NoSizeIsTooSmall)
{
    for (int width = 0; width < 500; width += 23) {
        for (int height = 0; height < 400; height += 17) {
            for (const bool isRound : {false, true}) {
                SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height) + (isRound ? ", round" : ""));
                const Kurvenlayout layout =
                    layOut(vollesBild(3.4e-11), width, height, {.rundeTeilung = isRound}, masse);
                EXPECT_EQ(layout.istLeer() ? "" : fault(layout, width, height), "");
            }
        }
    }
}

TEST(KurvenlayoutTest, AFigureOfOneColumnHasAllItsTexts)
{
    Kurvenbild bild = vollesBild(1);
    bild.kurven.resize(3);
    bild.hinweise = {"Warum."};
    bild.bildschirmhinweise = {"Verborgen."};
    const auto texts = [&](const Bildstil& stil, double height) {
        std::string all;
        const Kurvenlayout layout = layOut(bild, 321, height, stil, masse);
        EXPECT_GE(layout.plot.height, 0.37 * height - 1);
        for (const Textstelle& t : layout.texte)
            all += t.text + '|';
        return all;
    };
    Bildstil figure{.rundeTeilung = true, .bildschirm = false};
    for (const char* const text : {"Größe [m³/As] über", "Al 60 at%", "Al [at%]", "Namen 2", "Dichte [g/cm³]"})
        EXPECT_NE(texts(figure, 270).find(text), std::string::npos) << text;
    EXPECT_NE(texts(figure, 600).find("Warum."), std::string::npos);
    EXPECT_EQ(texts(figure, 600).find("Verborgen."), std::string::npos) << "on the screen only";
    figure.legende = false;
    EXPECT_EQ(texts(figure, 600).find("Warum."), std::string::npos) << "explains the legend";
    EXPECT_NE(texts({}, 600).find("Verborgen."), std::string::npos);
}

TEST(KurvenlayoutTest, AxesKeepTheGivenPlacesInsideTheStrips)
{
    const Kurvenlayout alone = layOut(achsenbild({"", {0, 100}}, {"", {0, 1}}), 460, 330, {}, masse);
    EXPECT_EQ(std::pair(alone.plot.left, alone.plot.top), std::pair(60.0, 0.0));
    EXPECT_EQ(std::pair(alone.plot.width, alone.plot.height), std::pair(400.0, 300.0));
    const Kurvenlayout full = layOut(vollesBild(1), 1200, 800, {}, masse);
    EXPECT_EQ(full.plot.left, full.kern.left + 60);
    EXPECT_EQ(full.plot.top, full.kern.top);
    EXPECT_EQ(full.plot.height, full.kern.height - 30);
    EXPECT_EQ(full.plot.left + full.plot.width, full.kern.left + full.kern.width);
    EXPECT_EQ(full.legende.size(), Kurvenfarben);
    EXPECT_GE(full.kern.height, 0.6 * 800) << "most of the height stays with the plot";
    const Kurvenlayout tiny = layOut(vollesBild(1), 160, 120, {}, masse);
    EXPECT_TRUE(tiny.texte.size() <= 10 && tiny.legende.empty()) << "strips only where there is room for them";
}

TEST(KurvenlayoutTest, LabelsTooWideForTheirStripBreakBeforeTheyShrink)
{
    const auto first = [](const Bereich& y, double height, const Schriftmasse& letters) {
        return layOut(achsenbild({"", {0, 100}}, {"", y}), 460, height, {}, letters).kerntexte.front();
    };
    const Textstelle broken = first({-3.46e-11, -1.02e-11}, 330, masse);
    EXPECT_EQ(broken.text, "-3,46\nE-11");
    EXPECT_EQ(broken.schrift.grad, 1);
    EXPECT_EQ(broken.box.top, 300 - Size) << "around its tick";
    EXPECT_EQ(first({0, 9}, 330, masse).text, "0,000");
    const auto large = [](const Schrift& schrift) {
        const Textmasse normal = masse(schrift);
        return Textmasse{[normal](std::string_view text) { return 2 * normal.width(text); }, normal.height};
    };
    EXPECT_LT(first({-3.46e-11, -1.02e-11}, 330, large).schrift.grad, 0.7) << "the last resort";
}

TEST(KurvenlayoutTest, RoundLabelsHaveTheirPowerOfTenInTheTitle)
{
    Kurvenbild bild = achsenbild({"Al [at%]", {0, 100}}, {"R_H [m³/As]", {-3.46e-11, -1.02e-11}});
    const Kurvenlayout print = layOut(bild, 600, 400, {.rundeTeilung = true, .dezimal = Dezimaltrenner::Punkt}, masse);
    EXPECT_EQ(labels(print).substr(0, 24), "−3.25|−3.00|−2.75|");
    EXPECT_EQ(print.texte.back().text, "R_H [10⁻¹¹ m³/As]");
    EXPECT_TRUE(print.texte.back().senkrecht);
    bild.rechts = Achse{"Dichte der Legierung [10⁻¹¹ g/cm³]", {0, 10}};
    const auto titles = [&](double height) {
        std::string all;
        for (const Textstelle& t : layOut(bild, 320, height, {.rundeTeilung = true}, masse).texte)
            all += t.schrift.grad == 0.75 ? t.text + '|' : "";
        return all;
    };
    EXPECT_EQ(titles(160), "Al [at%]|R_H [10⁻¹¹ m³/As]|Dichte der… [10⁻¹¹ g/cm³]|") << "in one size";
    EXPECT_EQ(titles(60), "") << "a unit is whole or absent";
    bild.rechts.reset();
    bild.kurven = {{"Al60Cu40Zn: 9,25·10⁻¹¹ m³", {{1, 1}}, {}, Linienart::Keine, Punktzeichen::Kreis}};
    EXPECT_EQ(layOut(bild, 200, 330, {.rundeTeilung = true}, masse).texte.front().text, "Al60Cu…: 9,25·10⁻¹¹ m³");
    bild.y.bereich = {2, 2};
    EXPECT_EQ(layOut(bild, 600, 400, {}, masse).ausschnitt.y, (Bereich{1, 3})) << "an empty range";
}

TEST(KurvenlayoutTest, RangesTooNarrowForDoublesAreWidened)
{
    for (const Bereich& range :
        {Bereich{1e30, 1e30}, {-1e20, -1e20 + 16384}, {0, 5e-324}, {0, 1e-310}, {1, 1 + 1e-15}, {-1e30, 1e30}}) {
        const Kurvenlayout layout =
            layOut(achsenbild({"", range, "", true}, {"", range, "", true}), 600, 400, {}, masse);
        EXPECT_GT(std::ranges::count_if(layout.kerntexte, [](const Textstelle& text) { return !text.text.empty(); }), 4)
            << range.min;
    }
}

} // namespace zerna
