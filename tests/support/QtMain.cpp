#include <QApplication>

#include <gmock/gmock.h>

#include "support/TemporaryFolder.h"
#include "ui/platform/Bildschriften.h"

/// Tests of widgets need no display, and leave the user's settings alone.
int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const zerna::TemporaryFolder settings;
    qputenv("XDG_CONFIG_HOME", settings.path().string().c_str());
    qputenv("XDG_CONFIG_DIRS", (settings.path() / "system").string().c_str());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // theirs could not be driven
    const QApplication application(argc, argv);
    zerna::ladeBildschriften();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
