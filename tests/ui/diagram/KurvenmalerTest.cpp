#include "ui/diagram/Kurvenmaler.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "ui/diagram/Bildausgabe.h"

namespace zerna {

namespace {

Kurve line(std::vector<Punkt> punkte, Linienart art = Linienart::Durchgezogen)
{
    return {"", std::move(punkte), {0, 0, 255}, art};
}

/// A plot of 400 x 300 from 0 to 100 and from 0 to 300: four pixels a unit along, one up.
Kurvenbild bildOf(std::vector<Kurve> kurven)
{
    Kurvenbild bild;
    bild.x.bereich = {0, 100};
    bild.y.bereich = {0, 300};
    bild.kurven = std::move(kurven);
    return bild;
}

QImage picture(const Kurvenbild& bild, const Leinwand& leinwand = {{460, 330}, {}, 1})
{
    return imageOf([&](QPainter& painter, const Leinwand& canvas) { paintKurven(painter, bild, canvas); }, leinwand);
}

/// The middle of the ink in a column, in logical pixels; NaN without any.
double inkRow(const QImage& image, int column, int ratio)
{
    double weight = 0;
    double sum = 0;
    for (int y = 0; y < 300 * ratio; ++y) {
        const int ink = 255 - qRed(image.pixel(column * ratio, y));
        weight += ink;
        sum += ink * (y + 0.5) / ratio;
    }
    return weight > 0 ? sum / weight : std::numeric_limits<double>::quiet_NaN();
}

int inkIn(const QImage& image, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += qGray(image.pixel(x, y)) < 200 ? 1 : 0;
    return count;
}

} // namespace

TEST(KurvenmalerTest, CurvesRunBetweenPixelsAtEveryScale)
{
    const Kurvenbild bild = bildOf({line({{0, 150.3}, {50, 152.8}, {100, 155.3}})});
    for (const int ratio : {1, 2, 3}) {
        const QImage image = picture(bild, {{460, 330}, {}, static_cast<double>(ratio)});
        for (const int column : {80, 163, 256, 370, 444}) {
            const double x = column + 0.5 / ratio - 60 - 0.5;
            EXPECT_NEAR(inkRow(image, column, ratio), 300 - (150.3 + x / 400 * 5) + 0.5, 0.1) << column << " " << ratio;
        }
    }
}

TEST(KurvenmalerTest, GapsDashesSignsAndTheRightAxisAreDrawn)
{
    const double gap = std::numeric_limits<double>::quiet_NaN();
    Kurvenbild bild = bildOf({line({{0, 100}, {40, 100}, {50, gap}, {60, 100}, {100, 100}}),
        line({{0, 200}, {100, 200}}, Linienart::Gestrichelt), line({{30, 50}}, Linienart::Keine),
        line({{0, 5}, {100, 5}})});
    bild.kurven[2].zeichen = Punktzeichen::Quadrat;
    bild.kurven[3].rechts = true;
    bild.rechts = Achse{"rechts", {0, 6}};
    const QImage image = picture(bild, {{520, 354}, {}, 1});
    const Kurvenlayout layout = kurvenzeichnung(bild, {{520, 354}, {}, 1}).layout;
    const auto row = [&](double y) { return static_cast<int>(layout.plot.top + layout.links.punkt(0, y).y); };
    const auto column = [&](double x) { return static_cast<int>(layout.plot.left + layout.links.punkt(x, 0).x); };
    const auto ink = [&](double x, double y, int size) {
        return inkIn(image, {column(x) - size / 2, row(y) - size / 2, size, size});
    };
    EXPECT_GT(ink(20, 100, 3), 0);
    EXPECT_EQ(ink(50, 100, 9), 0) << "a gap";
    EXPECT_GT(ink(30, 50, 5), 9) << "a sign";
    EXPECT_GT(ink(50, 250, 3), 0) << "5 on the right is 250 on the left";
    const int dashed = inkIn(image, {column(10), row(200) - 1, 200, 3});
    EXPECT_TRUE(dashed > 80 && dashed < 360) << dashed;
    EXPECT_GT(inkIn(image, {column(100) + 10, row(280), 40, 260}), 50) << "labels of the right axis";
    Leinwand grey{{520, 354}, {}, 1};
    grey.stil.grau = true;
    EXPECT_TRUE(picture(bild, grey).allGray());
}

TEST(KurvenmalerTest, WhatIsPaintedForTheScreenLooksAsThroughAllPoints)
{
    std::vector<Kurve> kurven{
        line({}), line({}, Linienart::Strichpunkt), line({{30, 50}, {62.4, 80}}, Linienart::Keine)};
    kurven[2].zeichen = Punktzeichen::Raute;
    for (int i = 0; i <= 100; ++i) {
        kurven[0].punkte.push_back({i + 0.0, 20 + 2.5 * i * i / 100});
        kurven[1].punkte.push_back({i + 0.0, i == 50 ? 400 : 280 - 2.0 * i});
    }
    const Kurvenbild bild = bildOf(std::move(kurven));
    const Leinwand leinwand{{1260, 330}, {}, 1};
    const Kurvenlayout layout = kurvenzeichnung(bild, leinwand).layout;
    const auto painted = [&](Linien linien) {
        return imageOf(
            [&](QPainter& painter, const Leinwand&) {
                paintPlot(painter, bild, layout, kurvenbahnen(bild, layout, linien), leinwand, linien);
            },
            leinwand);
    };
    const QImage all = painted(Linien::DurchAllePunkte);
    const QImage seen = painted(Linien::WieZuSehen);
    int most = 0;
    for (int y = 0; y < all.height(); ++y)
        for (int x = 0; x < all.width(); ++x)
            most = std::max(most, std::abs(qRed(all.pixel(x, y)) - qRed(seen.pixel(x, y))));
    EXPECT_LE(most, 32) << "of 255";
}

} // namespace zerna
