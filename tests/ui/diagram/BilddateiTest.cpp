#include "ui/diagram/Bilddatei.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <gtest/gtest.h>

#include "dokument/Dokumentdatei.h"
#include "support/RechnerTest.h"
#include "support/Zufallsdokument.h"
#include "traeger/Dokumentfund.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/diagram/Kurvendiagramm.h"

namespace zerna {

/// A picture that is red on its left half, with a letter, and remembers what it was painted for.
struct BilddateiTest : RechnerTest {
    const Bildmaler maler = [this](QPainter& painter, const Leinwand& leinwand) {
        painted.push_back(leinwand);
        painter.fillRect(QRect(0, 0, leinwand.size.width() / 2, leinwand.size.height()), Qt::red);
        painter.setFont(leinwand.font);
        painter.drawText(QPointF(leinwand.size.width() * 0.7, 40), QStringLiteral("E"));
        letters = painter.fontMetrics().height();
    };
    Bildvorgabe vorgabe{.breite = 85, .hoehe = 60.5, .schriftgroesse = 9, .aufloesung = 192};
    const Bildtexte texte{"E_F in eV <1>", "Al60Cu40 & mehr"};
    const std::string dokument = R"({"format": "?"})";
    std::vector<Leinwand> painted;
    double letters = 0;

    std::string bytes(Bildart art)
    {
        painted.clear();
        const auto arten = bildarten(maler, vorgabe, texte, dokument);
        EXPECT_TRUE(painted.empty()) << "nothing is painted before it is chosen";
        const std::string made = arten.at(static_cast<std::size_t>(art)).bytes().value();
        EXPECT_EQ(painted, std::vector{leinwandNach(vorgabe)}) << "the same for all kinds";
        EXPECT_NEAR(letters, QFontMetricsF(painted.at(0).font).height(), 1) << "as large as they were measured";
        EXPECT_EQ(dokumentAus(made).dokument, dokument);
        return made;
    }

    QImage image() { return QImage::fromData(QByteArray::fromStdString(bytes(Bildart::PNG))); }
};

TEST_F(BilddateiTest, ImageHasItsPixelsItsSizeOnPaperAndItsTexts)
{
    const QImage picture = image();
    EXPECT_EQ(picture.size(), QSize(643, 457)) << "85 and 60.5 mm at 192 dots per inch";
    EXPECT_EQ(picture.dotsPerMeterX(), 7559);
    EXPECT_EQ(picture.pixelColor(319, 10), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(321, 10), QColor(Qt::white));
    EXPECT_EQ(picture.text("Title").toStdString(), texte.titel);
    EXPECT_EQ(picture.text("Description").toStdString(), texte.beschreibung);
    vorgabe.grau = true;
    EXPECT_TRUE(image().isGrayscale());
    EXPECT_TRUE(painted.at(0).stil.grau);
    vorgabe.breite = 0;
    EXPECT_THROW(bildarten(maler, vorgabe, texte, "{}").at(0).bytes(), Laufzeitfehler) << "no pixels, no file";
}

TEST_F(BilddateiTest, VectorPicturesHaveTheirSizeTheirLettersAndTheirTexts)
{
    const std::pair<Bildart, std::vector<const char*>> rows[] = {
        {Bildart::SVG,
            {"<svg width=\"85mm\" height=\"60.5mm\"", "viewBox=\"0 0 321.2598 228.6614\"", "font-size=\"12\"",
                "font-family=\"DejaVu Sans, sans-serif\"",
                "<title>E_F in eV &lt;1&gt;</title>\n<desc>Al60Cu40 &amp; mehr</desc>\n<defs>"}},
        {Bildart::PDF,
            {"/MediaBox [0 0 241.000000 171.000000]", "/FontFile2", "/Title", "E_F in eV &lt;1&gt;</rdf:li>",
                "Al60Cu40 &amp; mehr</rdf:li>"}},
    };
    for (const auto& [art, parts] : rows) {
        const std::string file = bytes(art);
        for (const char* const part : parts)
            EXPECT_NE(file.find(part), std::string::npos) << part << "\n" << file.substr(0, 3000);
    }
}

TEST_F(BilddateiTest, CurvesThatLeaveThePlotStayInsideInEveryFile)
{
    Kurvenbild bild;
    bild.titel = "Titel";
    bild.x.bereich = {0, 100};
    bild.y.bereich = {0, 1};
    bild.kurven = {{"steil", {{0, -9}, {100, 10}}, {0, 0, 255}}};
    Kurvendiagramm diagramm;
    diagramm.setBild(bild);
    vorgabe.legende = false;
    const QRect plot = diagramm.plot(leinwandNach(vorgabe));
    const auto arten = bildarten(diagramm.maler(), vorgabe, {}, {});
    QImage shown(leinwandNach(vorgabe).size, QImage::Format_RGB32);
    QPainter painter(&shown);
    QSvgRenderer(QByteArray::fromStdString(arten.at(1).bytes().value()))
        .render(&painter, QRectF(0, 0, pixelAusMillimeter(vorgabe.breite), pixelAusMillimeter(vorgabe.hoehe)));
    const auto isBlue = [&](int x, int y) { return qBlue(shown.pixel(x, y)) > qRed(shown.pixel(x, y)) + 60; };
    int inside = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            inside += plot.contains(x, y) && isBlue(x, y) ? 1 : 0;
            ASSERT_FALSE(!plot.adjusted(-1, -1, 1, 1).contains(x, y) && isBlue(x, y)) << x << " " << y;
        }
    }
    EXPECT_GT(inside, 20);
}

TEST_F(BilddateiTest, EveryPictureCarriesTheDocument)
{
    constexpr int Documents = 150;
    addElements();
    vorgabe.breite = vorgabe.hoehe = vorgabe.aufloesung = 20;
    Zufallsdokument zufall(elements, 3);
    for (int i = 0; i < Documents; ++i) {
        const std::string carried = schreibe(zufall.naechstes());
        for (const Exportart& art : bildarten(maler, vorgabe, texte, carried)) {
            SCOPED_TRACE(std::string(art.endung) + " " + std::to_string(i));
            ASSERT_EQ(dokumentAus(*art.bytes()).dokument, carried);
        }
    }
}

} // namespace zerna
