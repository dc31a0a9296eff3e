#include <QAction>
#include <QDir>
#include <QPalette>

#include <algorithm>
#include <cstdlib>

#include "support/FakeDesk.h"
#include "support/Messkurven.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/diagram/Diagrammflaeche.h"

namespace zerna {

namespace {

const QString Ordner = QStringLiteral(ZERNA_TESTS_DIR "/ui/bilder/");

/// The same letters on every system that has the font.
QFont bildschrift()
{
    QFont font(QStringLiteral("DejaVu Sans"), 9);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

/// Mean difference of two tiles, 0 to 255.
double difference(const QImage& a, const QImage& b, const QRect& tile)
{
    int sum = 0;
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        for (int x = tile.left(); x <= tile.right(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum +=
                std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return static_cast<double>(sum) / (tile.width() * tile.height());
}

/// Where two pictures of one size differ most: what a missing label or a shifted line changes shows in the tiles in
/// which it is, while smoothing of edges may differ a little everywhere.
std::pair<double, QPoint> greatestDifference(const QImage& a, const QImage& b, int tileSize)
{
    std::pair<double, QPoint> greatest{0, {}};
    for (int y = 0; y < a.height(); y += tileSize) {
        for (int x = 0; x < a.width(); x += tileSize) {
            const double here = difference(a, b, QRect(x, y, tileSize, tileSize) & a.rect());
            if (here > greatest.first)
                greatest = {here, {x, y}};
        }
    }
    return greatest;
}

} // namespace

/// The diagrams as the window shows them of Al60Cu30Mg10, against pictures that someone has looked at. With
/// ZERNA_AUFZEICHNEN set the pictures are written anew.
struct BilderTest : FakeDesk {
    BilderTest() { settings["Komponenten"] = "2"; }
    ~BilderTest() override { QApplication::setPalette(usual); }

    struct Art {
        const char* name;
        const char* typ;
        bool flach = false;
    };

    void show(const Art& art)
    {
        choose("cmbDiagramm_Typ", art.typ);
        if (find("cmbDiagramm").isEnabled())
            choose("cmbDiagramm", "Fermienergie");
        find<Diagrammflaeche>("picDiagramm").setAnsicht({.flach = art.flach});
    }

    /// With few shades, which makes the files small.
    QImage picture(const Leinwand& leinwand)
    {
        const QImage image = imageOf(find<Diagrammflaeche>("picDiagramm").diagramm().maler(), leinwand);
        return image.convertToFormat(QImage::Format_RGB555).convertToFormat(QImage::Format_RGB32);
    }

    void compare(const QString& name, const Leinwand& leinwand)
    {
        constexpr double Tolerance = 12;
        constexpr int Tile = 16;
        const QImage image = picture(leinwand);
        const QString file = Ordner + name + QStringLiteral(".png");
        if (std::getenv("ZERNA_AUFZEICHNEN") != nullptr) {
            ASSERT_TRUE(QDir().mkpath(Ordner) && image.save(file, "PNG", 0)) << file.toStdString();
            return;
        }
        const QImage expected = QImage(file).convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(image.size(), expected.size()) << file.toStdString();
        const auto [greatest, place] = greatestDifference(image, expected, Tile);
        const QString actual = QDir::tempPath() + QStringLiteral("/zerna-") + name + QStringLiteral(".png");
        EXPECT_LE(greatest, Tolerance) << "at " << place.x() << ", " << place.y() << "; now " << actual.toStdString()
                                       << (image.save(actual) ? "" : " (not written)");
    }

    const QPalette usual = QApplication::palette();
};

TEST_F(BilderTest, DiagramsLookAsRecorded)
{
    ASSERT_EQ(QFontInfo(bildschrift()).family(), QStringLiteral("DejaVu Sans")) << "the package fonts-dejavu-core";
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    open();
    type("txtFormel", "Al60Cu30Mg10");
    QTest::keyClick(&find("txtFormel"), Qt::Key_Return);
    writeBytes(folder / "g.txt", messdatei(glasmodell().punkte(0.15, 0.001, 1000, 0.001, 1)));
    openDialog.answer = (folder / "g.txt").string();
    find<QAction>("mnuMesskurve").trigger();
    for (const bool isDark : {false, true}) {
        if (isDark)
            QApplication::setPalette(dark); // diagrams are white in every theme
        for (const Art& art : {Art{"konzentration", "2 D"}, {"ternaer-flach", "3 D - ternär", true},
                 {"ternaer-raum", "3 D - ternär"}, {"elemente", "PSE"}, {"messkurve", "Messkurve"}}) {
            SCOPED_TRACE(std::string(art.name) + (isDark ? ", dark" : ", light"));
            show(art);
            compare(QLatin1String(art.name), {{480, 360}, bildschrift()});
            compare(QLatin1String(art.name) + QStringLiteral("-klein"), {{280, 210}, bildschrift()});
            compare(QLatin1String(art.name) + QStringLiteral("-klein-2x"), {{280, 210}, bildschrift(), 2});
            compare(QLatin1String(art.name) + QStringLiteral("-druck"),
                {{280, 210}, bildschrift(), 1,
                    {.rundeTeilung = true, .dezimal = Dezimaltrenner::Punkt, .grau = true, .linienbreite = 1}});
        }
    }
}

} // namespace zerna
