#include "ui/diagram/LastResult.h"

#include <gtest/gtest.h>

#include <string>

namespace zerna {

TEST(LastResultTest, IsComputedOnceAsLongAsTheSameIsAskedFor)
{
    const LastResult<int, std::string> last;
    int computed = 0;
    const auto ask = [&](int key) { return last.get(key, [&] { return ++computed, std::to_string(key); }); };
    EXPECT_EQ(ask(0), "0") << "the key's default is no result";
    EXPECT_EQ(ask(0), "0");
    EXPECT_EQ(computed, 1);
    EXPECT_EQ(ask(1), "1");
    EXPECT_EQ(ask(0), "0");
    EXPECT_EQ(computed, 3);
}

} // namespace zerna
