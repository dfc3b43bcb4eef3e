#include "hosts/desktop/look/DarkStyle.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <algorithm>

namespace {

const QColor window(0x2B, 0x2E, 0x33);
const QColor base(0x1F, 0x22, 0x26);

QPalette darkPalette() {
    QPalette palette(window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

// How much brighter the brightest point at the edge of an empty, unfocused widget is than the window.
int outlineOf(QWidget& widget) {
    desktop::DarkStyle style;
    widget.setStyle(&style);
    widget.setPalette(darkPalette());
    widget.resize(160, 40);
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(window);
    widget.render(&image);
    widget.setStyle(nullptr);
    int brightest = 0;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            brightest = std::max(brightest, image.pixelColor(x, y).lightness());
        }
    }
    return brightest - window.lightness();
}

constexpr int visible = 40; // of 255

TEST(DarkStyle, anUncheckedBoxCanBeSeen) {
    QCheckBox box;
    EXPECT_GT(outlineOf(box), visible);
}

TEST(DarkStyle, aRadioButtonThatIsNotChosenCanBeSeen) {
    QRadioButton button;
    EXPECT_GT(outlineOf(button), visible);
}

TEST(DarkStyle, anEmptyBoxForTextCanBeSeen) {
    QLineEdit line;
    EXPECT_GT(outlineOf(line), visible);
    QPlainTextEdit lines;
    EXPECT_GT(outlineOf(lines), visible);
}

TEST(DarkStyle, aDisabledBoxIsFainterThanOneThatCanBeUsed) {
    QLineEdit usable;
    QLineEdit disabled;
    disabled.setEnabled(false);
    EXPECT_LT(outlineOf(disabled), outlineOf(usable));
}

} // namespace
