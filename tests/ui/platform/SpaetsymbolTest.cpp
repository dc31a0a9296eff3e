#include <QPixmap>

#include <gtest/gtest.h>

#include "ui/platform/Lesbarkeit.h"
#include "ui/platform/Spaetsymbol.h"

namespace zerna {

TEST(Spaetsymbol, IsReadOnceAndNotBeforeItIsPainted)
{
    int reads = 0;
    QPixmap dot(16, 16);
    dot.fill(Qt::red);
    const QIcon symbol = spaetesSymbol([&] { return ++reads, QIcon(dot); });
    EXPECT_EQ(reads, 0);
    EXPECT_FALSE(symbol.isNull());
    EXPECT_EQ(symbol.availableSizes(), QList({QSize(16, 16)}));
    EXPECT_EQ(symbol.actualSize({24, 24}), QSize(16, 16));
    EXPECT_EQ(symbol.pixmap(16).toImage(), QIcon(dot).pixmap(16).toImage());
    EXPECT_EQ(symbol.pixmap({8, 8}, 2).toImage(), QIcon(dot).pixmap({8, 8}, 2).toImage());
    EXPECT_EQ(reads, 1);
}

TEST(Spaetsymbol, IsWhatAMenuBarHasForCommandsWithoutRoom)
{
    const LesbarerStil style;
    const auto usual = style.baseStyle()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    const auto late = style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    EXPECT_EQ(late.pixmap(16).toImage(), usual.pixmap(16).toImage());
    EXPECT_FALSE(late.isNull());
}

} // namespace zerna
