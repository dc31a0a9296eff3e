#include <QTableView>

#include "support/FakeDesk.h"
#include "support/Zaehlwerk.h"

namespace zerna {

/// What one action costs, counted.
struct AufwandTest : FakeDesk {
    AufwandTest()
    {
        settings["Komponenten"] = "4";
        for (int row = 0; const char* const symbol : {"Al", "Cu", "Zn", "Mg", "Ni"})
            settings["Element_" + std::to_string(row++)] = symbol;
    }

    template <class Action>
    Zaehlwerk cost(Action&& action)
    {
        const Zaehlwerk before = zaehlwerk();
        action();
        return zaehlwerk() - before;
    }
};

TEST_F(AufwandTest, TheStartAndEveryKeyCalculateOnce)
{
    const Zaehlwerk start = cost([this] { open(); });
    EXPECT_LE(start.rechnungen, 2);
    EXPECT_LE(start.diagramme, 1);
    choose("cmbDiagramm", "Fermienergie");
    type("Istmasse_0", "100");
    type("Istmasse_1", "300");
    for (const char* const list : {"cmdDichte_1", "cmbValenz_1"})
        choose(list, "<andere>");
    for (const char* const field : {"txtDichte_1", "txtProzent_0", "txtValenz_1"}) {
        SCOPED_TRACE(field);
        type(field, "2");
        const Zaehlwerk key = cost([&] { QTest::keyClick(&find(field), Qt::Key_5); });
        EXPECT_GE(key.zahlen, 1);
        EXPECT_LE(key.zahlen, 6);
        EXPECT_EQ(key.rechnungen, 1);
        EXPECT_EQ(key.diagramme, 1);
    }
}

TEST_F(AufwandTest, TheStartLeavesWhatIsNotSeen)
{
    open();
    for (const char* const panel : {"Pic_1_1", "Pic_1_2"})
        EXPECT_FALSE(find(panel).testAttribute(Qt::WA_Resized)) << panel << " is laid out when it is shown";
    EXPECT_EQ(find("conDisplay1").width(), find("picDiagramm").width()) << "the picture is";
    EXPECT_EQ(find("cmbElement_0").findChild<QAbstractItemView*>(), nullptr) << "made when it is opened";
    for (const char* const panel : {"Pic_1_2", "picDiagramm"})
        EXPECT_EQ(find(panel).parentWidget()->findChild<QTableView*>(), nullptr) << "made when there is something";
    EXPECT_EQ(find<QComboBox>("cmbElement_0").model(), find<QComboBox>("cmbElement_4").model());
    click("optButton_1_2");
    EXPECT_TRUE(find("Pic_1_2").testAttribute(Qt::WA_Resized));
}

/// Counts what happens to widgets, by their names or else their classes.
struct Ereigniszaehler : QObject {
    Ereigniszaehler() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QString name = watched->objectName();
        ++counts[{event->type(), name.isEmpty() ? QLatin1String(watched->metaObject()->className()) : name}];
        if (event->type() == QEvent::Paint)
            for (const QRect& part : static_cast<QPaintEvent*>(event)->region())
                pixels[name] += part.width() * part.height();
        return false;
    }

    /// Of widgets whose names begin so.
    int count(QEvent::Type type, const char* name) const
    {
        int sum = 0;
        for (const auto& [what, times] : counts)
            sum += what.first == type && what.second.startsWith(QLatin1String(name)) ? times : 0;
        return sum;
    }

    std::map<std::pair<QEvent::Type, QString>, int> counts;
    std::map<QString, int> pixels;
};

TEST_F(AufwandTest, AnotherElementRepaintsWhatItChangesAndLaysOutNothing)
{
    open();
    choose("cmbDiagramm", "Fermienergie");
    choose("cmbElement_0", "Co");
    QTest::qWait(10);
    const Ereigniszaehler counted;
    QTest::keyClick(&find("cmbElement_0"), Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_EQ(counted.count(QEvent::Paint, "cmdStep_"), 0);
    EXPECT_EQ(counted.count(QEvent::Paint, "Label6_"), 0);
    EXPECT_EQ(counted.count(QEvent::Paint, "pic"), 2); // the plot and what is around it
    EXPECT_EQ(counted.count(QEvent::Resize, "pic"), 0);
    EXPECT_EQ(counted.count(QEvent::LayoutRequest, ""), 0);
    const auto& display = find("conDisplay1");
    const int plot = find("pic").width() * find("pic").height();
    EXPECT_LT(counted.pixels.at("conDisplay1"), (display.width() * display.height() - plot) / 2);
    EXPECT_LT(counted.pixels.at("pic"), plot / 2);
}

TEST_F(AufwandTest, TheMouseOverADiagramLaysOutNothing)
{
    open();
    choose("cmbDiagramm", "Fermienergie");
    auto& plot = find("pic");
    const auto moveTo = [&](const QPoint& place) { // a widget as target would move the desktop's own pointer
        QTest::mouseMove(window->windowHandle(), plot.mapTo(window.get(), place));
    };
    moveTo(plot.rect().center() + QPoint(20, 5));
    QTest::qWait(10);
    const std::string before = text("LabelPos");
    const Ereigniszaehler counted;
    moveTo(plot.rect().center());
    QCoreApplication::processEvents();
    EXPECT_NE(text("LabelPos"), before);
    EXPECT_EQ(counted.count(QEvent::LayoutRequest, ""), 0);
}

TEST_F(AufwandTest, TheTernaryDiagramIsRepaintedOnlyAsAnotherOne)
{
    settings["Komponenten"] = "2";
    open();
    choose("cmbDiagramm_Typ", "3 D - ternär");
    type("txtProzent_0", "5");
    QTest::qWait(10);
    for (const auto& [key, paintings] : {std::pair(Qt::Key_Backspace, 0), {Qt::Key_5, 0}, {Qt::Key_1, 1}}) {
        const Ereigniszaehler counted;
        QTest::keyClick(&find("txtProzent_0"), key);
        QCoreApplication::processEvents();
        EXPECT_EQ(counted.count(QEvent::Paint, "picDiagramm"), paintings) << key;
    }
}

TEST_F(AufwandTest, AnotherElementInTheTableRepaintsItsCellAndItsData)
{
    open();
    click("optButton_1_1");
    window->grab(); // lays the panel out
    QTest::qWait(10);
    const Ereigniszaehler counted;
    QTest::keyClick(&find("picPSE"), Qt::Key_Right);
    QCoreApplication::processEvents();
    EXPECT_EQ(counted.count(QEvent::Paint, "lblHerkunft"), 0);
    EXPECT_LT(counted.pixels.at("picPSE"), find("picPSE").width() * find("picPSE").height() / 50);
}

TEST_F(AufwandTest, WhatIsRepaintedInPartsLooksAsPaintedWhole)
{
    open();
    choose("cmbDiagramm", "Fermienergie");
    const auto compare = [this] {
        QCoreApplication::processEvents();
        const QImage seen = window->screen()->grabWindow(window->winId()).toImage();
        EXPECT_EQ(
            seen.convertToFormat(QImage::Format_RGB32), window->grab().toImage().convertToFormat(QImage::Format_RGB32));
    };
    const auto check = [&](const char* name, Qt::Key key) {
        SCOPED_TRACE(name);
        find(name).setFocus();
        QTest::keyClick(&find(name), key);
        compare();
    };
    for (const auto& [name, key] : std::initializer_list<std::pair<const char*, Qt::Key>>{
             {"cmbElement_0", Qt::Key_Down}, {"cmbElement_1", Qt::Key_Down}, {"txtProzent_0", Qt::Key_1},
             {"txtProzent_0", Qt::Key_Backspace}, {"conDisplay1", Qt::Key_Plus}, {"cmbElement_0", Qt::Key_Down},
             {"conDisplay1", Qt::Key_0}, {"conDisplay1", Qt::Key_End}, {"cmbElement_1", Qt::Key_Up},
             {"lblMFE_7", Qt::Key_Shift}, {"cmbDiagramm", Qt::Key_Down}})
        check(name, key);
    auto& back = find<QAction>("cmdZurueck_1"); // the number beside it moves
    for (const bool isThere : {true, false}) {
        SCOPED_TRACE(isThere);
        back.setVisible(isThere);
        compare();
    }
}

} // namespace zerna
