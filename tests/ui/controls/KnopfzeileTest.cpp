#include "ui/controls/Knopfzeile.h"

#include <gtest/gtest.h>

namespace zerna {

TEST(KnopfzeileTest, ButtonsOfOneSizeStandAtTheRight)
{
    QWidget window;
    auto* const copy = new StyledButton("&Ja");
    auto* const save = new StyledButton("&Nein");
    window.setLayout(knopfzeile({copy, save}));
    window.layout()->setContentsMargins(0, 0, 0, 0);
    window.resize(500, 40);
    window.show();
    EXPECT_EQ(copy->size(), save->size());
    EXPECT_GE(copy->width(), Knopfbreite);
    EXPECT_EQ(save->geometry().right(), 499);
    EXPECT_LT(copy->geometry().right(), save->geometry().left());
}

} // namespace zerna
