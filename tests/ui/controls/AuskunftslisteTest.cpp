#include "ui/controls/Auskunftsliste.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
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
    liste.setLines(std::vector<std::string>{"Masse: 65,38 amu", "Ordnungszahl: 30", "Dichte: ?", "Valenz: 2 "});
    const char* const offers[]{
        "&Kopieren\t65,38 amu|&Zahl kopieren\t65,38", "&Kopieren\t30", "&Kopieren\t?", "&Kopieren\t2"};
    for (int row = 0; row < liste.count(); ++row) {
        liste.setCurrentRow(row);
        QTimer::singleShot(0, [&, row] {
            auto* const shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QStringList texts;
            for (const QAction* const action : shown->actions())
                texts += action->text();
            EXPECT_EQ(texts.join('|').toStdString(), offers[row]);
            QTest::keyClick(shown, row == 0 ? Qt::Key_Z : Qt::Key_Escape);
        });
        QContextMenuEvent key(QContextMenuEvent::Keyboard, {5, 5}, liste.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(liste.viewport(), &key);
        EXPECT_EQ(clipboard(), "65,38");
    }
    liste.setCurrentRow(1);
    liste.setLines(std::vector<std::string>{"Name: Zink", "Masse: 65,38 amu"});
    EXPECT_EQ(liste.currentItem()->toolTip(), "Masse: 65,38 amu") << "the line stays when the element changes";
}

} // namespace zerna
