#include "ui/controls/Auskunftsliste.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zerna {

TEST(AuskunftslisteTest, KeyAndMenuCopyTheValueAloneOfTheChosenLine)
{
    const auto clipboard = [] { return QApplication::clipboard()->text().toStdString(); };
    Auskunftsliste liste;
    liste.setLines(std::vector<std::string>{"Name: Kupfer", "Hinweis: fest: bis 1358 K", "ohne Wert"});
    for (const auto& [row, copied] :
        {std::pair(1, "fest: bis 1358 K"), {-1, "fest: bis 1358 K"}, {2, ""}}) { // no line, nothing copied
        liste.setCurrentRow(row);
        QTest::keySequence(&liste, QKeySequence::Copy);
        EXPECT_EQ(clipboard(), copied) << row;
    }
    liste.setCurrentRow(0);
    QTimer::singleShot(0, [] {
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    });
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {5, 5}, liste.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(liste.viewport(), &menu);
    EXPECT_EQ(clipboard(), "Kupfer");
    liste.setCurrentRow(1);
    liste.setLines(std::vector<std::string>{"Name: Zink", "Masse: 65,38 amu"});
    EXPECT_EQ(liste.currentItem()->toolTip(), "Masse: 65,38 amu") << "the line stays when the element changes";
}

} // namespace zerna
