#include "ui/diagram/Bildausgabe.h"

#include <QPainter>

#include <gtest/gtest.h>

#include "dokument/Dokumentdatei.h"
#include "support/RechnerTest.h"
#include "support/Zufallsdokument.h"
#include "traeger/Dokumentfund.h"

namespace zerna {

/// A picture that is red on its left half and remembers how finely it was asked for.
struct BildausgabeTest : RechnerTest {
    const Leinwand leinwand{{40, 20}, {}, 1};
    std::vector<double> ratios;
    const Bildmaler maler = [this](QPainter& painter, const Leinwand& canvas) {
        ratios.push_back(canvas.devicePixelRatio);
        painter.fillRect(QRect(0, 0, canvas.size.width() / 2, canvas.size.height()), Qt::red);
    };
    const std::string dokument = "{}";
};

TEST_F(BildausgabeTest, ImagesHaveTheirPixelsAndVectorsFineSurfaces)
{
    const struct {
        const char* name;
        Exportart art;
        const char* begin;
        double ratio;
    } rows[] = {
        {"png", bildarten(maler, leinwand, dokument).at(0), "\x89PNG", 2},
        {"svg", bildarten(maler, leinwand, dokument).at(1), "<?xml", 3},
        {"pdf", bildarten(maler, leinwand, dokument).at(2), "%PDF", 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(ratios.empty()) << "nothing is painted before it is chosen";
        EXPECT_TRUE(row.art.bytes()->starts_with(row.begin));
        EXPECT_EQ(std::exchange(ratios, {}), std::vector<double>{row.ratio});
    }
    const QImage image = QImage::fromData(QByteArray::fromStdString(*rows[0].art.bytes()));
    EXPECT_EQ(image.size(), leinwand.size * 2);
    EXPECT_EQ(image.pixelColor(39, 10), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(40, 10), QColor(Qt::white));
    EXPECT_THROW(bitmap(maler, {{0, 20}, {}, 1}).bytes(), Laufzeitfehler) << "no pixels, no file";
}

TEST_F(BildausgabeTest, LettersHaveTheSizeInWhichTheyAreMeasured)
{
    QFont font;
    font.setPointSizeF(9);
    double letters = 0;
    const Bildmaler lettered = [&](QPainter& painter, const Leinwand& canvas) {
        painter.setFont(canvas.font);
        painter.drawText(QPointF(0, 15), QStringLiteral("E"));
        letters = painter.fontMetrics().height();
    };
    for (const Exportart& art : bildarten(lettered, {leinwand.size, font}, dokument)) {
        SCOPED_TRACE(art.endung);
        const std::string bytes = art.bytes().value();
        EXPECT_NEAR(letters, QFontMetricsF(font).height(), 1);
        const std::string size = "font-size=\"" + std::to_string(QFontInfo(font).pixelSize()) + "\"";
        EXPECT_TRUE(art.endung != ".svg" || bytes.find(size) != std::string::npos) << bytes;
    }
}

TEST_F(BildausgabeTest, EveryPictureCarriesTheDocument)
{
    constexpr int Documents = 2000;
    addElements();
    Zufallsdokument zufall(elements, 3);
    for (int i = 0; i < Documents; ++i) {
        const std::string carried = schreibe(zufall.naechstes());
        for (const Exportart& art : bildarten(maler, leinwand, carried)) {
            SCOPED_TRACE(std::string(art.endung) + " " + std::to_string(i));
            ASSERT_EQ(dokumentAus(*art.bytes()).dokument, carried);
        }
    }
}

} // namespace zerna
