#include "ui/diagram/conLabel.h"

#include <QTest>

#include <gtest/gtest.h>

namespace zerna {

TEST(conLabelTest, ButtonsStepAndWrap)
{
    conLabel label;
    int changes = 0;
    QObject::connect(&label, &conLabel::Change, [&] { ++changes; });
    const auto step = [&](int value, const char* button) {
        label.setValue(value);
        QTest::mouseClick(label.findChild<QWidget*>(button), Qt::LeftButton);
        return label.Value();
    };
    EXPECT_EQ(label.Value(), 50);
    for (const auto& [value, up, down] :
        {std::tuple(50, 51, 49), {100, 0, 99}, {0, 1, 100}, {250, 0, 249}, {-3, -2, 100}})
        EXPECT_EQ(std::pair(step(value, "cmdStep_1"), step(value, "cmdStep_0")), std::pair(up, down)) << value;
    EXPECT_EQ(changes, 10) << "writing is no change";
    label.setEnabled(false);
    EXPECT_EQ(step(7, "cmdStep_1"), 7);
}

} // namespace zerna
