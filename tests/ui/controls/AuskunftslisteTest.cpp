#include "ui/controls/Auskunftsliste.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <gtest/gtest.h>

namespace zerna {

/// What the menu offers and copies is recorded in stunde.txt.
TEST(AuskunftslisteTest, TheKeyCopiesTheValueAloneOfTheChosenLine)
{
    Auskunftsliste liste;
    liste.setLines(std::vector<std::string>{"Valenz: 2 ", "Hinweis: fest: bis 1358 K", "ohne Wert"});
    for (const auto& [row, copied] :
        {std::pair(0, "2"), {1, "fest: bis 1358 K"}, {-1, "fest: bis 1358 K"}, {2, ""}}) { // no line, nothing copied
        liste.setCurrentRow(row);
        QTest::keySequence(&liste, QKeySequence::Copy);
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(), copied) << row;
    }
    liste.setCurrentRow(1);
    liste.setLines(std::vector<std::string>{"Name: Zink", "Masse: 65,38 amu"});
    EXPECT_EQ(liste.currentItem()->toolTip(), "Masse: 65,38 amu") << "the line stays when the element changes";
}

} // namespace zerna
