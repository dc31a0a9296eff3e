#include "ui/diagram/conLabel.h"

#include <gtest/gtest.h>

namespace zerna {

/// Steps and wrapping within 0 to 100 are recorded in stunde.txt.
TEST(conLabelTest, StepsLeadBackFromBeyondTheLimits)
{
    EXPECT_EQ(steppedValue(250, 1), 0);
    EXPECT_EQ(steppedValue(250, 0), 249);
    EXPECT_EQ(steppedValue(-3, 0), 100);
}

} // namespace zerna
