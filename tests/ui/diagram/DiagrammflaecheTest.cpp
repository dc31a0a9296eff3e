#include "ui/diagram/Diagrammflaeche.h"

#include <QMouseEvent>

#include <cmath>
#include <functional>

#include "core/Zahlentext.h"
#include "support/FakeDesk.h"
#include "ui/diagram/conDisplay.h"

namespace zerna {

/// The window with the valence of aluminium and copper over aluminium: from 0.5 to 3.
struct DiagrammflaecheTest : FakeDesk {
    DiagrammflaecheTest() { openAluminiumCopper(); }

    Diagrammflaeche& flaeche() const { return find<Diagrammflaeche>("picDiagramm"); }
    conDisplay& display() const { return flaeche().display(); }

    static void moveMouse(QWidget& widget, const QPoint& to, Qt::MouseButtons pressed = Qt::NoButton)
    {
        QMouseEvent event(QEvent::MouseMove, to, widget.mapToGlobal(QPointF(to)), Qt::NoButton, pressed, {});
        QApplication::sendEvent(&widget, &event);
    }

    /// Over the plot; made events do not reach the area on their own.
    void turnWheel(const QPoint& at, int notches) const
    {
        const QPointF there = find("pic").mapTo(&flaeche(), at);
        QWheelEvent event(
            there, flaeche().mapToGlobal(there), {}, {0, 120 * notches}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&flaeche(), &event);
    }

    /// The at% that are read out at a place on the plot, which may be just outside of it.
    double percentAt(QPoint place) const
    {
        QWidget& pic = find("pic");
        place = {std::min(place.x(), pic.width() - 1), std::min(place.y(), pic.height() - 1)};
        moveMouse(pic, place);
        const std::string read = text("LabelPos");
        const std::size_t end = read.find(" at%");
        const std::size_t before = read.rfind(' ', end - 1); // none if the curve has no name
        return doubleFromText(read.substr(before + 1, end - before - 1));
    }

    /// The picture of the series with titles, notes and a second curve, which leaves it.
    Kurvenbild vollesBild() const
    {
        Kurvenbild bild = display().diagramm().bild();
        bild.titel = "Valenz [e/a] über Al";
        bild.untertitel = "Al 50 at%, Cu 50 at%";
        bild.x.titel = "Al [at%]";
        bild.hinweise = {"Ein Hinweis."};
        bild.kurven.resize(1);
        bild.kurven[0].name = "eingetragen";
        bild.kurven.push_back({"gemischt", {{0, 1}, {50, 2.5}, {100, 3}}, {200, 0, 0}, Linienart::Gestrichelt});
        return bild;
    }
};

TEST_F(DiagrammflaecheTest, TheDisplayKeepsItsGivenInsideBetweenTheStrips)
{
    const QWidget& pic = find("pic");
    const auto inside = [&] { return QRect(60, 0, display().width() - 60, display().height() - 30) == pic.geometry(); };
    display().setBild(vollesBild());
    EXPECT_TRUE(inside());
    EXPECT_GT(display().y(), 20);
    EXPECT_LT(display().geometry().bottom() + 40, flaeche().height());
    window->resize(1700, 1000);
    EXPECT_TRUE(inside());
    display().Zeichne_Diagramm_2D(8, 0);
    flaeche().showKonzentration();
    EXPECT_EQ(display().geometry(), flaeche().rect()) << "the next series stands alone until it gets its picture";
    EXPECT_TRUE(inside());
}

TEST_F(DiagrammflaecheTest, WheelBandAndKeysZoomAndLeadBack)
{
    auto& pic = find("pic");
    const auto at = [&](double x, double y) {
        return QPoint(static_cast<int>(x * pic.width()), static_cast<int>(y * pic.height()));
    };
    const auto band = [&](const QPoint& from, const QPoint& to) {
        QTest::mousePress(&pic, Qt::LeftButton, {}, from);
        moveMouse(pic, to, Qt::LeftButton);
        QTest::mouseRelease(&pic, Qt::LeftButton, {}, to);
    };
    const struct {
        const char* name;
        std::function<void()> zoom;
        double left, right; // at%
    } rows[] = {
        {"wheel in the middle", [&] { turnWheel(at(0.5, 0.5), 1); }, 10, 90},
        {"wheel at an edge", [&] { turnWheel(at(0, 1), 2); }, 0, 64},
        {"wheel back beyond the whole", [&] { turnWheel(at(0.5, 0.5), 1), turnWheel(at(0, 0), -9); }, 0, 100},
        {"rubber band", [&] { band(at(0.25, 0.25), at(0.75, 0.75)); }, 25, 75},
        {"band upwards to the left", [&] { band(at(0.75, 0.75), at(0.25, 0.25)); }, 25, 75},
        {"flat band", [&] { band(at(0.5, 0.5), at(0.6, 0.5)); }, 50, 60},
        {"upright band", [&] { band(at(0.5, 0.5), at(0.5, 0.8)); }, 0, 100},
        {"a click", [&] { QTest::mouseClick(&pic, Qt::LeftButton, {}, at(0.3, 0.3)); }, 0, 100},
        {"plus key at the crosshair", [&] { moveMouse(pic, at(0.5, 0)), QTest::keyClick(&display(), Qt::Key_Plus); },
            10, 90},
        {"plus and minus", [&] { QTest::keyClicks(&display(), QStringLiteral("+-")); }, 0, 100},
    };
    for (const auto& row : rows) {
        for (const auto& back : {Qt::Key_Escape, Qt::Key_0, Qt::Key_unknown}) {
            SCOPED_TRACE(row.name);
            row.zoom();
            EXPECT_NEAR(percentAt(at(0, 0.5)), row.left, 0.6);
            EXPECT_NEAR(percentAt(at(1, 0.5)), row.right, 0.6);
            if (back == Qt::Key_unknown)
                QTest::mouseDClick(&pic, Qt::LeftButton, {}, at(0.5, 0.5));
            else
                QTest::keyClick(&display(), back);
            EXPECT_NEAR(percentAt(at(1, 0.5)) - percentAt(at(0, 0.5)), 100, 1);
        }
    }
}

TEST_F(DiagrammflaecheTest, WheelAndBandBringTheKeysThatUndoThem)
{
    auto& pic = find("pic");
    const auto hasFocus = [&](auto&& zoom) {
        find("txtProzent_0").setFocus();
        zoom();
        return window->focusWidget() == &display();
    };
    EXPECT_TRUE(hasFocus([&] { turnWheel(pic.rect().center(), 1); }));
    EXPECT_TRUE(hasFocus([&] {
        QTest::mousePress(&flaeche(), Qt::LeftButton, {}, pic.mapTo(&flaeche(), QPoint(50, 50)));
        moveMouse(flaeche(), pic.mapTo(&flaeche(), QPoint(90, 90)), Qt::LeftButton);
    }));
}

TEST_F(DiagrammflaecheTest, ZoomStaysWithOtherValuesAndGoesWithAnotherPicture)
{
    const auto& pic = find("pic");
    const auto span = [&] {
        const double left = percentAt({0, 5});
        return std::lround(percentAt({pic.width() - 1, 5}) - left);
    };
    const auto zoom = [&] { turnWheel(pic.rect().center(), 2); };
    const std::string saved = display().values(1);
    zoom();
    EXPECT_EQ(span(), 64);
    EXPECT_EQ(display().values(1), saved);
    type("txtProzent_0", "30");
    EXPECT_EQ(span(), 64) << "other values";
    choose("cmbDiagramm", "Fermienergie");
    EXPECT_EQ(span(), 100) << "another quantity";
    zoom();
    choose("cmbDiagramm_Element", "Cu");
    EXPECT_EQ(span(), 100) << "another component";
    zoom();
    choose("cmbDiagramm_Typ", "PSE");
    choose("cmbDiagramm_Typ", "2 D");
    EXPECT_EQ(span(), 100) << "another type and back";
}

TEST_F(DiagrammflaecheTest, CrosshairSnapsToTheCurveByMouseAndByKeys)
{
    display().setBild(vollesBild());
    auto& pic = find("pic");
    const auto key = [&](Qt::Key which, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(&display(), which, held);
        return text("LabelPos");
    };
    EXPECT_EQ(key(Qt::Key_Right), "eingetragen: 0,00 at% Al - 0,5 e/a");
    EXPECT_EQ(key(Qt::Key_Right), "eingetragen: 1,00 at% Al - 0,525 e/a");
    EXPECT_EQ(key(Qt::Key_Right, Qt::ShiftModifier), "eingetragen: 11,00 at% Al - 0,775 e/a");
    EXPECT_EQ(key(Qt::Key_Left, Qt::ControlModifier), "eingetragen: 1,00 at% Al - 0,525 e/a");
    EXPECT_EQ(key(Qt::Key_End), "eingetragen: 100,00 at% Al - 3 e/a");
    EXPECT_EQ(key(Qt::Key_Home), "eingetragen: 0,00 at% Al - 0,5 e/a");
    EXPECT_EQ(key(Qt::Key_Right, Qt::ShiftModifier), "eingetragen: 10,00 at% Al - 0,75 e/a");
    EXPECT_EQ(key(Qt::Key_Down), "gemischt: 10,00 at% Al - 1,3 e/a") << "between its points";
    EXPECT_EQ(key(Qt::Key_Down), "eingetragen: 10,00 at% Al - 0,75 e/a");
    const QImage keys = pic.grab().toImage();
    const int middle = pic.width() / 2;
    for (const double share : {0.0, 0.4, 0.95}) { // the height of the mouse does not matter, but which curve is near
        moveMouse(pic, {middle, static_cast<int>(share * (pic.height() - 1))});
        const std::string read = text("LabelPos");
        EXPECT_EQ(read.substr(0, read.find(' ')), share < 0.3 ? "gemischt:" : "eingetragen:") << share;
        EXPECT_NE(read.find(share < 0.3 ? "2,5" : "1,75 e/a"), std::string::npos) << read;
    }
    EXPECT_NE(pic.grab().toImage(), keys) << "the crosshair follows";
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&pic, &leave);
    EXPECT_EQ(text("LabelPos"), "");
}

TEST_F(DiagrammflaecheTest, ACrosshairThatGoesIsPaintedOver)
{
    Kurvendiagramm& diagramm = display().diagramm();
    diagramm.setBild(vollesBild());
    const Leinwand leinwand{{400, 300}, {}, 1};
    const QRect plot = diagramm.plot(leinwand);
    ASSERT_TRUE(diagramm.hovered(plot.center(), leinwand));
    for (const bool isPlotNew : {true, true, false}) { // all of the canvas, without the crosshair, the same
        EXPECT_EQ(diagramm.neues(leinwand).plot.boundingRect().contains(plot), isPlotNew);
        diagramm.clearCursor();
    }
}

} // namespace zerna
