#include "ui/diagram/Diagramm.h"

#include <QApplication>
#include <QClipboard>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "core/Unbekannt.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/diagram/Diagrammmeldung.h"
#include "ui/diagram/Konzentrationsdiagramm.h"
#include "ui/diagram/PSEDiagramm.h"
#include "ui/diagram/Ternaerdiagramm.h"

namespace zerna {

namespace {

/// From 2 at 0 at% down to 1: on a canvas of 460 x 330 four pixels to the right and two and a half down per at%.
Reihe fallend()
{
    Reihe reihe{};
    for (std::size_t i = 0; i < reihe.size(); ++i)
        reihe.at(i) = 2 - 0.01F * static_cast<float>(i);
    return reihe;
}

Ternaergitter gitter()
{
    Ternaergitter grid{4, {"Al", "Cu", "Mg"}, "eV", {}};
    for (int i = 0; i < 15; ++i)
        grid.werte.push_back(static_cast<float>(i));
    return grid;
}

std::unique_ptr<Diagramm> konzentration()
{
    auto diagramm = std::make_unique<Konzentrationsdiagramm>([] { return 50; });
    diagramm->setSymbol("Al");
    diagramm->setEinheit("g/cm³");
    diagramm->zeichneReihe(fallend());
    return diagramm;
}

std::unique_ptr<Diagramm> pse()
{
    Elementdiagramm elemente{"Titel", "", "eV", {"Titel", {1, 2, 3, 4}, {2, Unbekannt, 8, 5}},
        {"Titel", {1, 2, 3, 4}, {Unbekannt, Unbekannt, 7, 4}}, {}};
    for (const char* const symbol : {"H", "He", "Li", "Be"})
        elemente.elemente.push_back({symbol, symbol, "", "", false});
    elemente.elemente[1].luecke = "flüssige Dichte unbekannt";
    for (const std::size_t i : {0U, 1U})
        elemente.elemente[i].kristallineLuecke = "kristalline Dichte unbekannt";
    auto diagramm = std::make_unique<PSEDiagramm>();
    diagramm->setElemente(std::move(elemente));
    return diagramm;
}

std::unique_ptr<Diagramm> ternaer()
{
    auto diagramm = std::make_unique<Ternaerdiagramm>();
    diagramm->setAngaben({gitter(), {0.2, 0.3, 0.5}, "Titel", "Untertitel", {}});
    return diagramm;
}

std::unique_ptr<Diagramm> meldung() { return std::make_unique<Diagrammmeldung>(QStringLiteral("Grund")); }

struct Art {
    const char* name;
    std::unique_ptr<Diagramm> (*make)();
};

constexpr Art Arten[] = {
    {"concentration", konzentration},
    {"element property", pse},
    {"ternary", ternaer},
    {"message", meldung},
};

const Leinwand Flaeche{{460, 330}, {}, 1};

QImage picture(const Diagramm& diagramm, const Leinwand& leinwand = Flaeche)
{
    return imageOf(diagramm.maler(), leinwand);
}

QImage withCursor(const Diagramm& diagramm)
{
    const auto maler = [&](QPainter& painter, const Leinwand& leinwand) {
        diagramm.paint(painter, leinwand);
        diagramm.paintCursor(painter, leinwand);
    };
    return imageOf(maler, Flaeche);
}

/// The middle column of the upright line that the cursor has painted.
int cursorColumn(const QImage& without, const QImage& with)
{
    std::vector<int> changed;
    for (int x = 0; x < with.width(); ++x) {
        changed.push_back(0);
        for (int y = 0; y < with.height(); ++y)
            changed.back() += without.pixel(x, y) != with.pixel(x, y) ? 1 : 0;
    }
    const auto isLine = [most = *std::ranges::max_element(changed)](int count) { return 2 * count > most; };
    const auto left = std::ranges::find_if(changed, isLine) - changed.begin();
    const auto right = std::find_if(changed.rbegin(), changed.rend(), isLine).base() - changed.begin() - 1;
    return static_cast<int>((left + right) / 2);
}

/// The middle row of the curve in a column.
int curveRow(const QImage& image, int column)
{
    int first = -1;
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(column, y) == QColor(Qt::blue)) {
            first = first < 0 ? y : first;
            last = y;
        }
    }
    return (first + last) / 2;
}

} // namespace

TEST(DiagrammTest, EachSizeIsPaintedAsIfItWereTheOnlyOne)
{
    QFont large;
    large.setPointSize(20);
    const struct {
        const char* name;
        Leinwand leinwand;
    } rows[] = {{"screen", Flaeche}, {"smaller", {{230, 140}, {}, 1}}, {"screen again", Flaeche},
        {"finer", {{460, 330}, {}, 2}}, {"other font", {{460, 330}, large, 1}}, {"nothing", {{0, 0}, {}, 1}}};
    for (const Art& art : Arten) {
        const auto painted = art.make();
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string(art.name) + ", " + row.name);
            const QImage image = picture(*painted, row.leinwand);
            EXPECT_EQ(image, picture(*art.make(), row.leinwand));
            EXPECT_EQ(image.size(), row.leinwand.size * row.leinwand.devicePixelRatio);
            painted->positionText({100, 100}, Flaeche);
        }
    }
}

TEST(DiagrammTest, CursorCurveAndReadOutNameTheSamePoint)
{
    const struct {
        const char* name;
        std::unique_ptr<Diagramm> (*make)();
        std::vector<Qt::Key> keys;
        const char* text;
    } rows[] = {
        {"from the last at%", konzentration, {Qt::Key_End, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left},
            "98,00 at% Al - 1,02 g/cm³"},
        {"first element", pse, {Qt::Key_Home, Qt::Key_Left}, "H   OZ 1   2 eV"},
        {"gap", pse, {Qt::Key_End, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left}, "He: flüssige Dichte unbekannt"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto diagramm = row.make();
        for (const Qt::Key key : row.keys)
            EXPECT_TRUE(diagramm->keyPressed(key, Flaeche));
        EXPECT_EQ(diagramm->cursorText().toStdString(), row.text);
        const QImage image = picture(*diagramm);
        const int column = cursorColumn(image, withCursor(*diagramm));
        const QPointF point(column, curveRow(image, column));
        EXPECT_EQ(diagramm->positionText(point, Flaeche).toStdString(), row.text);
        diagramm->clearCursor();
        EXPECT_EQ(withCursor(*diagramm), image);
        EXPECT_EQ(diagramm->cursorText(), QString());
    }
}

TEST(DiagrammTest, BitmapHoldsThePicture)
{
    const auto pixels = [](const Diagramm& diagramm) {
        return QImage::fromData(QByteArray::fromStdString(*diagramm.exportarten(Flaeche).at(1).bytes()));
    };
    EXPECT_EQ(pixels(*ternaer()), picture(*ternaer()));
    Reihe shifted = fallend();
    for (std::size_t i = 1; i < 100; ++i)
        shifted.at(i) += 0.001F; // a quarter of a pixel
    Konzentrationsdiagramm diagramm([] { return 1; });
    diagramm.zeichneReihe(shifted);
    Kurvenbild bild = diagramm.bild();
    bild.titel = "Titel";
    bild.kurven.push_back({"other", {{0, 1}, {100, 1}}, {255, 0, 0}});
    diagramm.setBild(bild);
    const QImage bitmap = pixels(diagramm);
    EXPECT_EQ(bitmap.size(), diagramm.plot(Flaeche).size()) << "the plot alone";
    const Abbildung places(bitmap.width(), bitmap.height(), {0, 100}, bild.y.bereich);
    for (int i = 2; i < 99; i += 5) {
        const auto column = static_cast<int>(places.column(i));
        const auto row = static_cast<int>(places.row(shifted.at(static_cast<std::size_t>(i))));
        EXPECT_EQ(bitmap.pixelColor(column, row), QColor(Qt::blue)) << i << ": through whole pixels";
    }
    EXPECT_EQ(bitmap.pixelColor(20, static_cast<int>(places.row(1))), QColor(Qt::white)) << "the given series alone";
}

TEST(DiagrammTest, ElementsAtBothDensities)
{
    const auto owner = pse();
    auto& diagramm = dynamic_cast<PSEDiagramm&>(*owner);
    const QImage liquid = picture(diagramm);
    const auto commands = diagramm.commands();
    ASSERT_EQ(commands.size(), 3U);
    EXPECT_EQ(commands[0].an, true) << "symbols";
    EXPECT_EQ(commands[1].an, false) << "crystalline";
    commands[1].execute();
    EXPECT_NE(picture(diagramm), liquid);
    const char* const texts[] = {"H   OZ 1   2 eV   kristallin kristalline Dichte unbekannt",
        "He: flüssige Dichte unbekannt, kristalline Dichte unbekannt", "Li   OZ 3   8 eV   kristallin 7"};
    for (const char* const text : texts) {
        diagramm.keyPressed(Qt::Key_Right, Flaeche);
        EXPECT_EQ(diagramm.cursorText().toStdString(), text);
    }
    diagramm.commands().at(2).execute();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), diagramm.luecken());
    EXPECT_EQ(diagramm.exportarten(Flaeche).at(0).bytes(), "OZ\tTitel\r\n1\t2\r\n3\t8\r\n4\t5\r\n") << "as given";
}

TEST(DiagrammTest, CurvesOverElementsRunBetweenPixelsButInTheBitmap)
{
    const auto diagramm = pse();
    const QImage bitmap = QImage::fromData(QByteArray::fromStdString(*diagramm->exportarten(Flaeche).at(1).bytes()));
    EXPECT_EQ(bitmap.size(), Flaeche.size);
    EXPECT_NE(bitmap, picture(*diagramm));
}

TEST(DiagrammTest, TheMouseMarksTheElementItPointsAt)
{
    const auto diagramm = pse();
    const QImage plain = withCursor(*diagramm);
    EXPECT_TRUE(diagramm->hovered({400, 100}, Flaeche));
    EXPECT_NE(withCursor(*diagramm), plain);
    EXPECT_FALSE(diagramm->hovered({401, 200}, Flaeche)) << "the same element";
    EXPECT_TRUE(diagramm->left());
    EXPECT_EQ(withCursor(*diagramm), plain);
}

} // namespace zerna
