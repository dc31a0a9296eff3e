#include "ui/main/PSEbereich.h"

#include <QListWidget>
#include <QMenu>
#include <QPaintEvent>
#include <QTimer>

#include "support/FakeDesk.h"
#include "ui/main/Periodentafel.h"

namespace zerna {

struct PSEbereichTest : FakeDesk {
    PSEbereichTest()
    {
        openAluminiumCopper();
        click("optButton_1_1");
        table().setFocus();
    }

    Periodentafel& table() const { return find<Periodentafel>("picPSE"); }

    /// A cell of the 18.2 by 10.2.
    QRect cell(int column, int row) const
    {
        const QSizeF size(table().width() / 18.2, table().height() / 10.2);
        return QRectF({(column - 1) * size.width(), (row - 1) * size.height()}, size).toRect();
    }

    QImage image(int column, int row) const { return table().grab(cell(column, row)).toImage(); }
    void clickCell(int column, int row) const
    {
        QTest::mouseClick(&table(), Qt::LeftButton, {}, cell(column, row).center());
    }
    std::string chosen() const { return programm->SelectedElement() ? programm->SelectedElement()->symbol() : ""; }
};

/// Keys and the menu of the Return key are recorded in stunde.txt.
TEST_F(PSEbereichTest, ClicksSelectElements)
{
    struct Click {
        const char* name;
        int column;
        int row;
        const char* symbol;
    };
    const Click clicks[]{
        {"in the main body", 11, 4, "Cu"},
        {"beside it: nothing changes", 2, 8, "Cu"},
        {"in a separate row", 4, 9, "Ce"},
        {"at the edge", 18, 1, "He"},
    };
    for (const Click& click : clicks) {
        clickCell(click.column, click.row);
        EXPECT_EQ(chosen(), click.symbol) << click.name;
    }
    EXPECT_EQ(table().accessibleDescription().toStdString(), "He, Ordnungszahl 2, Helium, Hauptgruppen");
    clickCell(11, 4);
    EXPECT_EQ(table().accessibleDescription().toStdString(),
        "Cu, Ordnungszahl 29, Kupfer, Nebengruppen, Komponente 2 der Legierung");
}

TEST_F(PSEbereichTest, DoubleClickOpensTheMenuOfAnElement)
{
    clickCell(2, 3);
    const QImage plain = image(2, 3);
    const auto take = [this](int column, int row) {
        QStringList offered;
        QTimer::singleShot(0, [&offered] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (const QAction* const action : menu->actions())
                offered += action->text();
            QTest::keyClick(menu, Qt::Key_1);
        });
        QTest::mouseDClick(&table(), Qt::LeftButton, {}, cell(column, row).center());
        return offered.join('|').toStdString();
    };
    EXPECT_EQ(take(2, 3), "Als Komponente &1 (Al) übernehmen|Als Komponente &2 (Cu) übernehmen");
    EXPECT_EQ(text("cmbElement_0"), "Mg");
    EXPECT_EQ(text("lblUebernahme"), "✓  Komponente 1 ist jetzt Mg statt Al");
    EXPECT_NE(image(2, 3), plain) << "marked as a member of the alloy";
    choose("cmdDichte_0", "kristallin");
    take(2, 3);
    EXPECT_EQ(text("lblUebernahme"), "Komponente 1 ist schon Mg");
    EXPECT_EQ(text("cmdDichte_0"), "kristallin") << "left alone";
    clickCell(1, 1);
    EXPECT_EQ(text("lblUebernahme"), "Doppelklick oder Eingabetaste: als Komponente übernehmen");
    QTest::mouseDClick(&table(), Qt::LeftButton, {}, cell(2, 8).center()); // no menu to wait for
}

TEST_F(PSEbereichTest, TheChosenLineTellsWhereItsValueComesFrom)
{
    clickCell(11, 4);
    auto& list = find<QListWidget>("lstInfo");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(text("lblHerkunft"), "Quelle: Wikipedia (Stand 2016) oder libelemental\nZustand: Raumtemperatur");
    EXPECT_EQ(list.currentItem()->toolTip().toStdString(), "Dichte (kristallin): 8,96 g/cm³\n" + text("lblHerkunft"));
    clickCell(12, 4);
    programm->ElementCollection().Item("Cu")->setDichte_Kristallin(9);
    clickCell(11, 4);
    EXPECT_EQ(text("lblHerkunft"), "eigener Wert (Quelle nennt 8,96 g/cm³)");
}

TEST_F(PSEbereichTest, CellsAreColouredByAProperty)
{
    const auto fill = [this](int column, int row) { return image(column, row).pixel(cell(1, 1).center().x(), 4); };
    const QRgb group = fill(1, 1);
    choose("cmbFarbe", "Masse");
    EXPECT_EQ(fill(1, 1), 0xFF440154) << "the lightest";
    choose("cmbFarbe", "Elektronegativität");
    EXPECT_EQ(fill(17, 2), 0xFFFDE725) << "the highest";
    EXPECT_NE(image(18, 1).copy(8, 18, 8, 2), image(18, 1).copy(9, 18, 8, 2)) << "unknown ones are hatched";
    choose("cmbFarbe", "Gruppe");
    EXPECT_EQ(fill(1, 1), group);
}

TEST_F(PSEbereichTest, HoverRepaintsOnlyTheCellsConcerned)
{
    struct : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            const auto* const paint = dynamic_cast<QPaintEvent*>(event);
            region += paint != nullptr ? paint->region() : QRegion();
            return false;
        }
        QRegion region;
    } painted;
    const auto moveTo = [this](const QPoint& place) {
        QTest::mouseMove(window->windowHandle(), table().mapTo(window.get(), place));
        QCoreApplication::processEvents();
    };
    moveTo(cell(11, 4).center());
    table().installEventFilter(&painted);
    moveTo(cell(11, 4).center() + QPoint(3, 3));
    EXPECT_TRUE(painted.region.isEmpty()) << "the same cell";
    moveTo(cell(2, 3).center());
    EXPECT_FALSE(painted.region.isEmpty());
    EXPECT_TRUE(painted.region.subtracted(cell(11, 4) + QMargins(6, 6, 6, 6))
                    .subtracted(cell(2, 3) + QMargins(6, 6, 6, 6))
                    .isEmpty());
}

TEST_F(PSEbereichTest, OddElementsStayInTheirCells)
{
    const QImage neighbour = image(12, 4);
    clsElement& copper = *programm->ElementCollection().Item("Cu");
    copper.setsymbol("ABCDEFGHIJKLMNOPQRST");
    copper.setName("");
    EXPECT_EQ(image(12, 4), neighbour);
    clickCell(11, 4);
    find("PicInfo").grab();
    copper.setX(40);
    clickCell(12, 4);
    QTest::keyClick(&table(), Qt::Key_Left);
    EXPECT_EQ(chosen(), "Ni");
    const ElementCollection none;
    Periodentafel empty(none);
    empty.grab();
    QTest::keyClicks(&empty, "h\r");
    QTest::mouseClick(&empty, Qt::LeftButton);
}

} // namespace zerna
