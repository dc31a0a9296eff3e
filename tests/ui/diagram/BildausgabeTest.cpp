#include "ui/diagram/Bildausgabe.h"

#include <QPainter>

#include <gtest/gtest.h>

#include "core/Laufzeitfehler.h"

namespace zerna {

/// A picture that is red on its left half and remembers how finely it was asked for.
struct BildausgabeTest : testing::Test {
    const Leinwand leinwand{{40, 20}, {}, 1};
    std::vector<double> ratios;
    const Bildmaler maler = [this](QPainter& painter, const Leinwand& canvas) {
        ratios.push_back(canvas.devicePixelRatio);
        painter.fillRect(QRect(0, 0, canvas.size.width() / 2, canvas.size.height()), Qt::red);
    };
};

TEST_F(BildausgabeTest, ImagesHaveTheirPixelsAndVectorsFineSurfaces)
{
    const struct {
        const char* name;
        Exportart art;
        const char* extension;
        const char* begin;
        double ratio;
    } rows[] = {
        {"bitmap", bitmap(maler, leinwand), ".bmp", "BM", 1},
        {"png", bildarten(maler, leinwand).at(0), ".png", "\x89PNG", 2},
        {"svg", bildarten(maler, leinwand).at(1), ".svg", "<?xml", 3},
        {"pdf", bildarten(maler, leinwand).at(2), ".pdf", "%PDF", 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.art.endung, row.extension);
        EXPECT_TRUE(ratios.empty()) << "nothing is painted before it is chosen";
        EXPECT_TRUE(row.art.bytes()->starts_with(row.begin));
        EXPECT_EQ(std::exchange(ratios, {}), std::vector<double>{row.ratio});
    }
    const auto expectPicture = [this](const Exportart& art, int scale) {
        const QImage image = QImage::fromData(QByteArray::fromStdString(*art.bytes()));
        EXPECT_EQ(image.size(), leinwand.size * scale);
        EXPECT_EQ(image.pixelColor(20 * scale - 1, 10), QColor(Qt::red));
        EXPECT_EQ(image.pixelColor(20 * scale, 10), QColor(Qt::white));
    };
    expectPicture(rows[0].art, 1);
    expectPicture(rows[1].art, 2);
}

TEST_F(BildausgabeTest, PictureWithoutPixelsIsNoFile)
{
    const Leinwand empty{{0, 20}, {}, 1};
    EXPECT_THROW(bitmap(maler, empty).bytes(), Laufzeitfehler);
    EXPECT_THROW(bildarten(maler, empty).at(0).bytes(), Laufzeitfehler);
}

} // namespace zerna
