#include "ui/ternary/Ternaerbild.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "bild/Ternaerangaben.h"
#include "bild/Textablage.h"
#include "support/RechnerTest.h"

namespace zerna {

namespace {

constexpr double Coarse = 0.25; // device pixels: texts have their places at any resolution

const Ansicht Flach{25, 45, 1, true};

std::ptrdiff_t countOf(const std::vector<Ternaertext>& texts, Textrolle rolle)
{
    return std::ranges::count(texts, rolle, &Ternaertext::rolle);
}

QImage imageOf(const Ternaerbild& bild, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    bild.paint(painter);
    return image;
}

} // namespace

struct TernaerbildTest : RechnerTest {
    TernaerbildTest() { addElements(); }

    /// A picture of aluminium, copper and magnesium, with the middle of the range as target.
    Ternaeraufnahme aufnahme(int groesse, const QSize& size, const Ansicht& ansicht, double ratio = Coarse)
    {
        std::vector<Legierungskomponente> alloy;
        for (const auto& [symbol, valenz] : {std::pair("Al", 3.0F), {"Cu", 1.0F}, {"Mg", 2.0F}})
            alloy.push_back({elements.Item(symbol), 30, elements.Item(symbol)->Dichte_Fluessig(), valenz});
        Ternaerangaben angaben = ternaerangaben(calc, alloy, groesse, 1);
        const Wertebereich range = wertebereich(angaben.gitter.werte);
        const float middle = (range.min + range.max) / 2;
        auto inhalt = std::make_shared<const Ternaerinhalt>(std::move(angaben.gitter));
        Ternaerbeiwerk beiwerk{angaben.titel, angaben.untertitel, Anteile3{0.5, 0.3, 0.2}, middle, {}};
        beiwerk.ziellinien = hoehenlinien(inhalt->gitter, inhalt->triangles, middle, angaben.groesse);
        return {std::move(inhalt), std::move(beiwerk), ansicht, size, QFont(), ratio};
    }

    Ternaerbild bild;
};

/// All texts of the picture lie apart from each other, each in its area and as wide as it is.
void expectTidy(const Ternaerbild& bild, const QSize& size)
{
    const QFontMetricsF metrics{QFont()};
    Textablage canvas({0, 0, static_cast<double>(size.width()), static_cast<double>(size.height())});
    Textablage inside(bild.aufteilung().bild);
    const auto check = [&](const Ternaertext& text, Textablage& area) {
        EXPECT_TRUE(area.belege(text.box)) << text.text;
        EXPECT_GE(text.box.width + 1e-6, metrics.horizontalAdvance(QString::fromStdString(text.text))) << text.text;
    };
    for (const Ternaertext& text : bild.aufteilung().texte)
        check(text, canvas);
    for (const Ternaertext& text : bild.beschriftung().texte)
        check(text, inside);
    if (const auto& bar = bild.aufteilung().balken) {
        EXPECT_TRUE(canvas.istFrei(bar->box)) << "beside its labels";
        EXPECT_FALSE(inside.istFrei(bar->box)) << "on a ground of its own";
    }
}

TEST_F(TernaerbildTest, NoTextIsCutOffOrOverAnother)
{
    const QSize sizes[] = {{150, 120}, {360, 510}, {640, 610}, {1000, 500}, {1900, 1300}};
    const Ansicht views[] = {Flach, {}, {0, 10, 1}, {-35, -100, 1}, {70, 160, 2.2}};
    for (const int groesse : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}) {
        for (const QSize& size : sizes) {
            Ternaeraufnahme wanted = aufnahme(groesse, size, {});
            if (groesse % 2 == 0) // a target may take the place of a label
                wanted.beiwerk.ziel.reset();
            for (const Ansicht& view : views) {
                wanted.ansicht = view;
                bild.zeige(wanted);
                SCOPED_TRACE(wanted.beiwerk.titel + " " + std::to_string(size.width()) + " tilt "
                    + std::to_string(view.tilt) + (view.flach ? " flat" : ""));
                expectTidy(bild, size);
                const auto& labels = bild.beschriftung().texte;
                if (size.height() < 500 || wanted.beiwerk.ziel)
                    continue;
                const auto barLabels = countOf(bild.aufteilung().texte, Textrolle::Balken) - 1; // and the unit
                EXPECT_TRUE(barLabels >= 5 && barLabels <= 10) << barLabels;
                EXPECT_EQ(countOf(bild.aufteilung().texte, Textrolle::Titel), 1);
                EXPECT_TRUE(countOf(labels, Textrolle::Ecke) == 3 || view.zoom > 1);
                const int edges = view.flach ? 3 : view == Ansicht{} ? 2 : 0; // that the surface cannot hide
                EXPECT_GE(countOf(labels, Textrolle::Kante), 5 * edges) << "numbers and a name each";
            }
        }
    }
}

TEST_F(TernaerbildTest, SurfaceTakesTheRoomThatThereIs)
{
    for (const QSize& size : {QSize(360, 510), QSize(640, 610), QSize(1000, 700)}) {
        const auto sideOf = [&](const Ansicht& view) {
            bild.zeige(aufnahme(5, size, view));
            return Projektion(view, bild.aufteilung().plot).scale();
        };
        EXPECT_GE(sideOf(Flach), 0.72 * std::min(size.width(), size.height())) << size.width();
        EXPECT_GE(sideOf({}), 0.62 * std::min(size.width(), size.height())) << size.width();
    }
}

TEST_F(TernaerbildTest, ZoomLeavesTheColourBarAlone)
{
    constexpr QSize Size(640, 610);
    const auto rest = [&](double zoom) {
        bild.zeige(aufnahme(6, Size, {40, 45, zoom}));
        return imageOf(bild, Size)
            .copy(static_cast<int>(bild.aufteilung().bild.right()), 0, Size.width(), Size.height());
    };
    EXPECT_EQ(rest(3), rest(1));
}

TEST_F(TernaerbildTest, TargetLineIsLabelledOnce)
{
    Ternaeraufnahme wanted = aufnahme(8, {640, 610}, Flach);
    const auto counts = [&](float ziel) {
        wanted.beiwerk.ziel = ziel;
        wanted.beiwerk.ziellinien = hoehenlinien(wanted.inhalt->gitter, wanted.inhalt->triangles, ziel);
        bild.zeige(wanted);
        const auto& labels = bild.beschriftung().texte;
        return std::pair(std::ranges::count(labels, "9,5", &Ternaertext::text), countOf(labels, Textrolle::Ziel));
    };
    EXPECT_EQ(counts(9.5F), std::pair(std::ptrdiff_t{1}, std::ptrdiff_t{1}));
    EXPECT_EQ(counts(9.25F), std::pair(std::ptrdiff_t{1}, std::ptrdiff_t{1})) << "a line of its own";
    EXPECT_EQ(counts(99).second, 0) << "beside the range";
}

TEST_F(TernaerbildTest, WithoutTitleAndLegendAllIsForTheSurface)
{
    constexpr QSize Size(500, 400);
    Ternaeraufnahme wanted = aufnahme(8, Size, {}, 1);
    wanted.stil.titel = false;
    wanted.stil.legende = false;
    bild.zeige(wanted);
    EXPECT_TRUE(bild.aufteilung().texte.empty());
    EXPECT_FALSE(bild.aufteilung().balken);
    EXPECT_EQ(bild.aufteilung().bild, (Rechteck{0, 0, 500, 400}));
}

} // namespace zerna
