#include "ui/diagram/conLabel.h"

#include <QTest>

#include <gtest/gtest.h>

namespace zerna {

TEST(conLabelTest, ButtonsStepAndWrap)
{
    conLabel label;
    int changes = 0;
    QObject::connect(&label, &conLabel::Change, [&] { ++changes; });
    struct Row {
        const char* name;
        int value, button, stepped;
    };
    for (const auto& [name, value, button, stepped] : {
             Row{"down", 7, 0, 6},
             {"up", 7, 1, 8},
             {"over the top", 100, 1, 0},
             {"below the bottom", 0, 0, 100},
             {"up from beyond the top", 250, 1, 0},
             {"down from beyond the top", 250, 0, 249},
             {"down from below the bottom", -3, 0, 100},
         }) {
        label.setValue(value);
        QTest::mouseClick(label.findChild<QWidget*>(QStringLiteral("cmdStep_%1").arg(button)), Qt::LeftButton);
        EXPECT_EQ(label.Value(), stepped) << name;
    }
    EXPECT_EQ(changes, 7) << "writing is no change";
}

} // namespace zerna
