#include "ui/diagram/conLabel.h"

#include <QTest>

#include <gtest/gtest.h>

namespace zerna {

TEST(conLabelTest, ButtonsStepAndWrap)
{
    conLabel label;
    int changes = 0;
    QObject::connect(&label, &conLabel::Change, [&] { ++changes; });
    for (const auto& [value, button, stepped] :
        {std::tuple(7, 0, 6), {7, 1, 8}, {100, 1, 0}, {0, 0, 100}, {250, 1, 0}, {250, 0, 249}, {-3, 0, 100}}) {
        label.setValue(value);
        QTest::mouseClick(label.findChild<QWidget*>(QStringLiteral("cmdStep_%1").arg(button)), Qt::LeftButton);
        EXPECT_EQ(label.Value(), stepped) << value;
    }
    EXPECT_EQ(changes, 7) << "writing is no change";
}

} // namespace zerna
