#include <gmock/gmock.h>

#include <QApplication>
#include <QTemporaryFile>

// Every test has an application, on an offscreen platform with room for the largest dialog with a large font, and with
// two smaller screens: one of 1280 by 800, and one of 1920 by 1080 at twice the scale.
int main(int argc, char** argv) {
    QTemporaryFile screen;
    if (!screen.open()) {
        return 1;
    }
    screen.write(R"({"screens": [{"name": "none", "x": 0, "y": 0, "width": 2560, "height": 2160,
                                  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
                                 {"name": "small", "x": 3000, "y": 0, "width": 1280, "height": 800,
                                  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
                                 {"name": "scaled", "x": 5000, "y": 0, "width": 960, "height": 540,
                                  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    screen.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
