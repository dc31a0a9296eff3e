#include "ui/main/Fensterplatz.h"

#include <QScreen>

#include "support/FakeDesk.h"

namespace zerna {

using FensterplatzTest = FakeDesk;

TEST_F(FensterplatzTest, TheWindowOpensWhereItWasAndNeverOffTheScreen)
{
    settings["Fensterplatz"] = "kein Platz";
    start();
    const QRect screen = window->screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window->geometry()));
    for (const QRect& place :
        {QRect(30, 50, 600, 450), QRect(70, 60, 640, 480), QRect(screen.width() + 500, 5000, 5000, 5000)}) {
        window->setGeometry(place);
        const std::string before = settings["Fensterplatz"];
        EXPECT_TRUE(QTest::qWaitFor([&] { return settings["Fensterplatz"] != before; }));
        start();
        EXPECT_TRUE(screen.contains(window->geometry()));
        EXPECT_EQ(window->geometry() == place, screen.contains(place));
    }
}

} // namespace zerna
