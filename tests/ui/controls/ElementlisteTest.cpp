#include "ui/controls/Elementliste.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace zerna {

TEST(ElementlisteTest, LettersJumpToTheSymbolAndTheNamesStandBesideIt)
{
    Elementliste list;
    const std::pair<const char*, const char*> elements[] = {{"H", "Wasserstoff"}, {"C", "Kohlenstoff"},
        {"Na", "Natrium"}, {"S", "Schwefel"}, {"K", "Kalium"}, {"Sc", "Scandium"}, {"Cu", "Kupfer"},
        {"N", "Stickstoff"}};
    for (const auto& [symbol, name] : elements) {
        list.addItem(QLatin1String(symbol));
        list.setName(list.count() - 1, QLatin1String(name));
    }
    QSignalSpy chosen(&list, &QComboBox::textActivated);
    for (const auto& [typed, symbol] :
        {std::pair("cu", "Cu"), {"N", "N"}, {"sc", "Sc"}, {"s", "S"}, {"Kup", "Cu"}, {"w", "H"}, {"x", "H"}}) {
        SCOPED_TRACE(typed);
        list.view()->keyboardSearch({}); // as after a pause
        QTest::keyClicks(&list, QLatin1String(typed));
        EXPECT_EQ(list.currentText().toStdString(), symbol);
        EXPECT_EQ(chosen.last().first().toString().toStdString(), symbol);
    }
    list.resize(50, 24);
    list.show();
    list.showPopup();
    EXPECT_GT(list.view()->width(), list.fontMetrics().horizontalAdvance("Cu Wasserstoff"));
    list.hidePopup();
}

} // namespace zerna
