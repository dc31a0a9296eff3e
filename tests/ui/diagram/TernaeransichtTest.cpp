#include <QContextMenuEvent>
#include <QTimer>
#include <QWheelEvent>

#include <random>

#include "support/FakeDesk.h"
#include "ui/diagram/Diagrammflaeche.h"

namespace zerna {

/// The ternary diagram of aluminium, copper and magnesium, driven by mouse and keys.
struct TernaeransichtTest : FakeDesk {
    TernaeransichtTest()
    {
        settings["Element_2"] = "Mg";
        openAluminiumCopper();
        click("cmdKom_0");
        choose("cmbDiagramm_Typ", "3 D - ternär");
    }

    Diagrammflaeche& area() const { return find<Diagrammflaeche>("picDiagramm"); }
    QImage picture() const { return area().grab().toImage(); }
    void send(QEvent& event) const { QCoreApplication::sendEvent(&area(), &event); }

    void mouse(QEvent::Type type, const QPointF& place, Qt::MouseButtons pressed = Qt::LeftButton) const
    {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, area().mapToGlobal(place), button, pressed, {});
        send(event);
    }

    void drag(std::initializer_list<QPointF> moves) const
    {
        QPointF place(200, 200);
        mouse(QEvent::MouseButtonPress, place);
        for (const QPointF& move : moves)
            mouse(QEvent::MouseMove, place += move);
        mouse(QEvent::MouseButtonRelease, place, {});
    }

    void wheel(int notches) const
    {
        QWheelEvent event({}, {}, {}, {0, 120 * notches}, {}, {}, {}, false);
        send(event);
    }

    void press(std::initializer_list<Qt::Key> keys) const
    {
        for (const Qt::Key key : keys)
            QTest::keyClick(&area(), key);
    }

    /// The read-out with the mouse to the right of and above the diagram's middle.
    std::string readOut(double right, double up) const
    {
        picture();
        mouse(QEvent::MouseMove, {area().width() / 2.0 - 23 + right, area().height() / 2.0 - up}, {});
        return text("LabelPos");
    }
};

TEST_F(TernaeransichtTest, DragsAndArrowKeysTiltAndTurn)
{
    const QImage start = picture();
    drag({{0, 5}});
    EXPECT_NE(picture(), start);
    press({Qt::Key_Up});
    EXPECT_EQ(picture(), start);
    drag({{-5, 0}, {-5, -5}});
    press({Qt::Key_Right, Qt::Key_Right, Qt::Key_Down});
    EXPECT_EQ(picture(), start);
    drag({{0, 500}, {0, -65}}); // from the limit of 90 degrees
    mouse(QEvent::MouseMove, {300, 300}, {});
    EXPECT_EQ(picture(), start);
}

TEST_F(TernaeransichtTest, ReadOutAndFileNameThePoints)
{
    drag({{-30, 65}}); // from above and not turned: the third corner is at the top
    const double side = std::min(area().width() - 194, area().height() - 68) / 1.301281;
    for (const auto& [right, up, shown] : {std::tuple(0.0, 0.0, "Al 33,3 at%  Cu 33,3 at%  Mg 33,3 at%  -  2 e/a"),
             {0.0, 0.288675, "Al 16,7 at%  Cu 16,7 at%  Mg 66,7 at%  -  2 e/a"},
             {0.25, 0.0, "Al 8,3 at%  Cu 58,3 at%  Mg 33,3 at%  -  1,5 e/a"}, {0.4, 0.0, ""}, {0.0, -0.3, ""}})
        EXPECT_EQ(readOut(right * side, up * side), shown);
    saveDialog.answer = {(folder / "t").string(), 1};
    click("cmdDiagramm_Speichern");
    const std::string file = bytesOf(folder / "t.3dd");
    EXPECT_EQ(file.substr(0, 54), "Al [at%]\tCu [at%]\tMg [at%]\te/a\r\n0\t0\t100\t2\r\n0\t2\t98\t1.9");
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 1 + 51 * 52 / 2);
}

TEST_F(TernaeransichtTest, WheelAndKeysZoomAndSeveralMovesAreOneFrame)
{
    struct : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } watcher;
    const QImage start = picture();
    area().installEventFilter(&watcher);
    drag({{1, 1}, {2, 2}, {3, 3}});
    QCoreApplication::processEvents();
    EXPECT_EQ(watcher.paints, 1);
    for (const int notches : {40, -40}) {
        wheel(notches);
        const QImage limit = picture();
        wheel(notches);
        EXPECT_EQ(picture(), limit);
        wheel(-notches / 20);
        EXPECT_NE(picture(), limit);
    }
    mouse(QEvent::MouseButtonDblClick, {200, 200});
    EXPECT_EQ(picture(), start);
    wheel(1);
    const QImage zoomed = picture();
    press({Qt::Key_Plus, Qt::Key_Minus});
    EXPECT_EQ(picture(), zoomed);
}

TEST_F(TernaeransichtTest, FlatViewStandsStill)
{
    const auto chosen = [this](std::initializer_list<Qt::Key> keys) {
        QTimer::singleShot(0, [&] {
            for (QWidget* const menu = QApplication::activePopupWidget(); const Qt::Key key : keys)
                QTest::keyClick(menu, key);
        });
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        send(event);
        return picture();
    };
    const QImage start = picture();
    const QImage flat = chosen({Qt::Key_Down, Qt::Key_Return});
    EXPECT_NE(flat, start);
    drag({{40, 50}});
    EXPECT_EQ(picture(), flat);
    EXPECT_EQ(chosen({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}), start);
}

TEST_F(TernaeransichtTest, RandomDragsLeaveNoTrace)
{
    choose("cmbValenz_0", "<andere>");
    type("txtValenz_0", "1e30");
    choose("cmbDiagramm", "Hall-Koeffizient"); // over 30 decades
    const QImage start = picture();
    std::minstd_rand generator(1);
    const auto any = [&](int from, int to) { return std::uniform_int_distribution(from, to)(generator); };
    const int drags = qEnvironmentVariableIsSet("ZERNA_DRAGS") ? qEnvironmentVariableIntValue("ZERNA_DRAGS") : 200;
    for (int i = 0; i < drags; ++i) {
        drag({QPointF(any(-300, 300), any(-300, 300)), QPointF(any(-9, 9), any(-9, 9))});
        wheel(any(-3, 3));
        area().resize(any(1, 400), any(1, 300));
        readOut(any(-50, 50), any(-50, 50));
    }
    for (const QSize size : {QSize(50, 50), QSize(4000, 2500), QSize(1280, 800)}) {
        window->resize(size);
        readOut(0, 0);
    }
    choose("cmdDichte_0", "<andere>"); // is 0, so there is a message
    drag({{5, 5}});
    EXPECT_EQ(readOut(0, 0), "");
    choose("cmdDichte_0", "kristallin");
    mouse(QEvent::MouseButtonDblClick, {200, 200});
    EXPECT_EQ(picture(), start);
    EXPECT_TRUE(boxes.shown.empty());
}

} // namespace zerna
