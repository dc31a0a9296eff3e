#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QTimer>
#include <QWheelEvent>

#include <functional>
#include <random>

#include "support/FakeDesk.h"
#include "support/ModalDialog.h"
#include "traeger/Dokumentfund.h"
#include "ui/diagram/Diagrammflaeche.h"
#include "ui/diagram/frmBild.h"

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

    void press(const QKeySequence& keys) const { QTest::keySequence(&area(), keys); }
};

TEST_F(TernaeransichtTest, DragsAndArrowKeysTiltAndTurn)
{
    const QImage start = picture();
    drag({{0, 5}});
    EXPECT_NE(picture(), start);
    press(Qt::Key_Up);
    EXPECT_EQ(picture(), start);
    drag({{-5, 0}, {-5, -5}});
    press({Qt::Key_Right, Qt::Key_Right, Qt::Key_Down});
    EXPECT_EQ(picture(), start);
    drag({{0, 500}, {0, -65}}); // from the limit of 90 degrees
    mouse(QEvent::MouseMove, {300, 300}, {});
    EXPECT_EQ(picture(), start);
}

TEST_F(TernaeransichtTest, WheelAndKeysZoomAndSeveralMovesAreOneFrame)
{
    struct : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            return (paints += event->type() == QEvent::Paint ? 1 : 0) < 0; // never taken
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

TEST_F(TernaeransichtTest, ReadingFollowsThePictureUnderTheMouse)
{
    const QPointF place(210, 330);
    const auto reading = [this] { return find("LabelPos").property("text").toString(); };
    const auto readAnew = [&] {
        mouse(QEvent::MouseMove, place + QPointF(1, 0), {});
        mouse(QEvent::MouseMove, place, {});
        return reading();
    };
    std::vector readings{readAnew()};
    const struct {
        const char* name;
        std::function<void()> turn;
    } rows[] = {
        {"drag",
            [&] {
                mouse(QEvent::MouseButtonPress, place - QPointF(3, 4));
                mouse(QEvent::MouseMove, place);
                mouse(QEvent::MouseButtonRelease, place, {});
            }},
        {"key", [&] { press(Qt::Key_Left); }},
        {"wheel", [&] { wheel(1); }},
        {"quantity", [&] { choose("cmbDiagramm", "Fermienergie"); }},
    };
    for (const auto& row : rows) {
        row.turn();
        picture();
        EXPECT_NE(reading(), readings.back()) << row.name;
        readings.push_back(reading());
        EXPECT_EQ(readAnew(), readings.back()) << row.name;
    }
}

TEST_F(TernaeransichtTest, TargetLineCanBeCopied)
{
    area().setTernaerziel(2);
    const QImage marked = picture();
    QTimer::singleShot(0, [] {
        QTest::keySequence(
            QApplication::activePopupWidget(), {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    send(event);
    const std::string copied = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_EQ(copied.substr(0, copied.find('\n')), "Al [at%]\tCu [at%]\tMg [at%]\r");
    EXPECT_NE(copied.find("25.0000\t25.0000\t50.0000\r\n"), std::string::npos) << "valence 2 with as much Al as Cu";
    area().setTernaerziel(3.5F);
    EXPECT_EQ(area().ternaerzielpunkte(), "");
    area().setTernaerziel({});
    EXPECT_NE(picture(), marked);
}

TEST_F(TernaeransichtTest, FlatViewStandsStill)
{
    const auto chosen = [this](const QKeySequence& keys) {
        QTimer::singleShot(0, [&] { QTest::keySequence(QApplication::activePopupWidget(), keys); });
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        send(event);
        return picture();
    };
    const QImage start = picture();
    const QImage flat = chosen({Qt::Key_Down, Qt::Key_Return});
    drag({{40, 50}});
    EXPECT_EQ(picture(), flat);
    EXPECT_EQ(chosen({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}), start);
}

TEST_F(TernaeransichtTest, ItsPictureCarriesWhatIsEntered)
{
    type("txtProzent_0", "33.30");
    saveDialog.next = {(folder / "bild").string(), 2};
    QTimer::singleShot(0, [] { // "Bild speichern ..." is the last but one
        QTest::keySequence(QApplication::activePopupWidget(), {Qt::Key_Up, Qt::Key_Up, Qt::Key_Return});
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    inDialog<frmBild>([](frmBild& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }, [&] { send(event); });
    const Dokumentfund found = dokumentAus(bytesOf(folder / "bild.svg"));
    EXPECT_EQ(found.dokument, programm->dokumenttext());
    EXPECT_NE(found.dokument.value_or("").find("\"33.30\""), std::string::npos);
}

TEST_F(TernaeransichtTest, RandomDragsLeaveNoTrace)
{
    choose("cmbValenz_0", "<andere>");
    type("txtValenz_0", "1e30");
    choose("cmbDiagramm", "Hall-Koeffizient"); // over 30 decades
    const QImage start = picture();
    std::minstd_rand generator(1);
    const auto any = [&](int from, int to) { return std::uniform_int_distribution(from, to)(generator); };
    const int drags = qEnvironmentVariableIsSet("ZERNA_DRAGS") ? qEnvironmentVariableIntValue("ZERNA_DRAGS") : 60;
    for (int i = 0; i < drags; ++i) {
        drag({QPointF(any(-300, 300), any(-300, 300)), QPointF(any(-9, 9), any(-9, 9))});
        wheel(any(-3, 3));
        area().resize(any(1, 500), any(1, 400));
        picture();
        mouse(QEvent::MouseMove, QPointF(any(0, 500), any(0, 400)), {});
    }
    for (const QSize size : {QSize(50, 50), QSize(4000, 2500), QSize(1280, 800)}) {
        window->resize(size);
        picture();
    }
    mouse(QEvent::MouseButtonDblClick, {200, 200});
    EXPECT_EQ(picture(), start);
    EXPECT_TRUE(boxes.shown.empty());
}

} // namespace zerna
