#include "ui/controls/Auskunftsliste.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zerna {

struct AuskunftslisteTest : testing::Test {
    AuskunftslisteTest() { liste.setLines(lines); }

    void copyRow(int row)
    {
        liste.setCurrentRow(row);
        QTest::keySequence(&liste, QKeySequence::Copy);
    }

    static std::string clipboard() { return QApplication::clipboard()->text().toStdString(); }

    const std::vector<std::string> lines{"Name: Kupfer", "Masse: 63,546 amu", "Hinweis: fest: bis 1358 K", "ohne Wert"};
    Auskunftsliste liste;
};

TEST_F(AuskunftslisteTest, ValueAloneIsCopied)
{
    copyRow(1);
    EXPECT_EQ(clipboard(), "63,546 amu");
    copyRow(2);
    EXPECT_EQ(clipboard(), "fest: bis 1358 K") << "with the colon in it";
    copyRow(-1);
    EXPECT_EQ(clipboard(), "fest: bis 1358 K") << "no line to copy";
    copyRow(3);
    EXPECT_EQ(clipboard(), "");
}

TEST_F(AuskunftslisteTest, MenuCopiesToo)
{
    liste.setCurrentRow(0);
    QTimer::singleShot(0, [] {
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    });
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {5, 5}, liste.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(liste.viewport(), &menu);
    EXPECT_EQ(clipboard(), "Kupfer");
}

TEST_F(AuskunftslisteTest, ChosenLineStaysWhenTheElementChanges)
{
    liste.setCurrentRow(1);
    liste.setLines(std::vector<std::string>{"Name: Zink", "Masse: 65,38 amu"});
    EXPECT_EQ(liste.currentItem()->toolTip(), "Masse: 65,38 amu");
}

} // namespace zerna
