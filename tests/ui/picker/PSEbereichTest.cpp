#include "ui/picker/PSEbereich.h"

#include <QTimer>

#include "support/FakeDesk.h"
#include "ui/picker/Periodentafel.h"

namespace zerna {

/// Keys, clicks, menus and the lines beside the table are recorded in stunde.txt.
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

TEST_F(PSEbereichTest, TheChosenCellIsSpokenAndTheAlloyIsMarked)
{
    clickCell(2, 3);
    EXPECT_EQ(table().accessibleDescription().toStdString(), "Mg, Ordnungszahl 12, Magnesium, Hauptgruppen");
    QTest::mouseDClick(&table(), Qt::LeftButton, {}, cell(2, 8).center()); // beside the cells no menu comes up
    const QImage plain = image(2, 3);
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_2); });
    QTest::mouseDClick(&table(), Qt::LeftButton, {}, cell(2, 3).center());
    EXPECT_NE(image(2, 3), plain);
    clickCell(2, 3);
    EXPECT_TRUE(table().accessibleDescription().endsWith(", Komponente 2 der Legierung"));
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
