#include "hosts/desktop/window/Application.h"

#include <gmock/gmock.h>

#include <QStandardPaths>

// Every test has an application, on an offscreen platform.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    desktop::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
