#include "ui/results/Ergebnisdetails.h"

#include <QToolTip>

#include "support/FakeDesk.h"

namespace zerna {

struct ErgebnisdetailsTest : FakeDesk {
    ErgebnisdetailsTest() { openAluminiumCopper(); }

    Ergebnisdetails& details() const { return find<Ergebnisdetails>("Ergebnisdetails"); }
    QLabel& text() const { return *details().findChild<QLabel*>("lblEinzelheiten"); }
};

TEST_F(ErgebnisdetailsTest, OpensByClickAndKeysAndEscapeGivesTheKeyboardBack)
{
    auto& line = find("lblMFE_18");
    const std::initializer_list<std::function<void()>> ways{[&] { click("lblMFE_18"); },
        [&] { QTest::keyClick(&line, Qt::Key_Return); }, [&] { QTest::keyClick(&line, Qt::Key_Space); }};
    for (const auto& open : ways) {
        line.setFocus();
        open();
        EXPECT_TRUE(details().isVisible());
        QTest::keyClick(&text(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&text(), Qt::Key_C, Qt::ControlModifier);
        EXPECT_NE(clipboard().find("Lehrbuch:\n148,75 GPa"), std::string::npos) << clipboard();
        QTest::keyClick(&text(), Qt::Key_Escape);
        EXPECT_FALSE(details().isVisible());
    }
    EXPECT_EQ(window->focusWidget(), &line);
    EXPECT_EQ(text().accessibleName(), "Einzelheiten: Kompressionsmodul");
    EXPECT_TRUE(text().accessibleDescription().contains("Formel: 2/3·n·E_F"));
    type("txtMFE_0", "");
    click("lblMFE_17");
    EXPECT_EQ(text().text().count("unbekannt"), 2) << "value and textbook";
}

TEST_F(ErgebnisdetailsTest, TheHintOfAMarkedLineFollowsTheAlloy)
{
    const auto hint = [this](const char* name) {
        auto& line = find(name);
        QHelpEvent event(QEvent::ToolTip, QPoint(), line.mapToGlobal(QPoint()));
        QApplication::sendEvent(&line, &event);
        return QToolTip::text().toStdString();
    };
    EXPECT_NE(hint("lblMFE_17").find("835,6 eV/nm³"), std::string::npos) << hint("lblMFE_17");
    type("txtProzent_0", "100");
    EXPECT_EQ(hint("lblMFE_17").find("835,6 eV/nm³"), std::string::npos);
}

TEST_F(ErgebnisdetailsTest, TheMarkOfADiagramShowsTheTextbooksValue)
{
    choose("cmbDiagramm", "Thermokraft");
    click("cmdDiagramm_Lehrbuch");
    auto& shown = find<Ergebnisdetails>("Diagrammdetails");
    EXPECT_TRUE(shown.findChild<QLabel*>()->accessibleDescription().contains(QString::fromUtf8("−3,7098·10⁻⁹ V/K²")));
    shown.close();
}

TEST(ErgebnisdetailsPlaceTest, StaysOnTheScreen)
{
    const QRect screen(0, 0, 1000, 700);
    const QSize size(400, 200);
    EXPECT_EQ(platzNeben({100, 100, 150, 20}, size, screen), QPoint(100, 123));
    EXPECT_EQ(platzNeben({900, 100, 150, 20}, size, screen), QPoint(599, 123)) << "at the right";
    EXPECT_EQ(platzNeben({100, 600, 150, 20}, size, screen), QPoint(100, 396)) << "at the bottom";
    EXPECT_EQ(platzNeben({-50, 300, 150, 20}, {400, 690}, screen), QPoint(0, 0)) << "too tall for either side";
}

} // namespace zerna
